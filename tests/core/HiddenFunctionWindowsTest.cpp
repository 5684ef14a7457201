#include <windows.h>

#include <ruqlib2core/ReplaceFile.h>

#include "CRegistryTest.h"

#include <HiddenFunction.h>

// Elsewhere the linker lets the functions of a test program go before those of a library.

namespace {

using HiddenFunctionWindowsTest = registry_tests::CRegistryTest;
using Write = std::function<void(const std::string&)>;

int s_calls = 0;

void countReplacing(const std::string& path, const Write& write);

const char* const c_symbol =
    "_ZN4TEVU11ReplaceFileERKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE"
    "RKSt8functionIFvS7_EE";

const support::Hidden s_replaceFile(c_symbol, &countReplacing);

void countReplacing(const std::string& path, const Write& write) {
    ++s_calls;
    s_replaceFile(path, write);
}

} // namespace

TEST_F(HiddenFunctionWindowsTest, StandInIsCalledByTheLibraryItselfAndCallsTheFunction) {
    registry_tests::setAndGet("text");

    EXPECT_EQ(s_calls, 1);
    EXPECT_EQ(SettingsInFile().size(), 1u);
}

TEST_F(HiddenFunctionWindowsTest, StandInIsCalledAgainAfterTheFunctionWas) {
    s_calls = 0;
    for (int call = 0; call < 2; ++call)
        TEVU::ReplaceFile(m_folder.Path("a"), [](const std::string&) {});

    EXPECT_EQ(s_calls, 2);
}
