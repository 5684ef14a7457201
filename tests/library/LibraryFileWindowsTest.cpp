// What the libraries export, looked up in their tables, and the entry point.

#include "LibraryFile.h"
#include "TestFolder.h"

#include <HiddenFunction.h>

#include <ruqlib2core/CString.h>
#include <ruqlib2image/COrunHeaderTools.h>

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <regex>
#include <set>
#include <sstream>
#include <windows.h>

using namespace TEVU;

namespace {

struct StLibrary {
    const char* name;
    const char* headers; ///< The folder.
    int leastClasses;
};

const char* const c_ownHeaders = RUQGUI_HEADERS;

class ExportsWindowsTest : public testing::TestWithParam<StLibrary> {};

/// What a class is called in a table: 6CImage.
std::string mangled(const std::string& name) {
    return std::to_string(name.size()) + name;
}

std::string textOf(const std::filesystem::path& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

/// The first groups of all that is found.
std::vector<std::string> allIn(const std::string& text, const std::regex& pattern) {
    std::vector<std::string> found;
    for (std::sregex_iterator at(text.begin(), text.end(), pattern), end; at != end; ++at)
        found.push_back((*at)[1]);
    return found;
}

/// The classes of a header. Templates have nothing to export, nor has what a plug-in brings itself.
std::vector<std::string> classesIn(const std::filesystem::path& header) {
    static const std::regex definition(
        R"((?:^|\n)(?:class|struct) (?:\w+_EXPORT )?(\w+)(?: :[^;{]*)? \{)");
    return header.filename() == "PluginExport.h" ? std::vector<std::string>()
                                                 : allIn(textOf(header), definition);
}

/// What the header declares of the copying of its class, and its constants: how their names in the table begin.
std::vector<std::string> membersIn(const std::string& header, const std::string& name) {
    static const std::regex constant(R"(\n    static const (?:[\w:*]+ )+(\w+);)");
    const std::string prefix = "_ZN4TEVU" + mangled(name);
    std::vector<std::string> members;
    for (const std::string& found : allIn(header, constant))
        members.push_back(prefix + mangled(found));
    if (header.find(" " + name + "(const " + name + "& other);") != std::string::npos)
        members.push_back(prefix + "C1ERKS0_");
    if (header.find("& operator=(const " + name + "& other);") != std::string::npos)
        members.push_back(prefix + "aSERKS0_");
    return members;
}

/// Without a toolkit the library has a few classes only, and without libtiff there are no files.
bool isBuilt(const std::filesystem::path& header) {
    static const std::set<std::string> plain = {"CAutoDialogPluginWrapper.h", "CAvailableImages.h",
                                                "StUnit.h"};
    if (header.filename() == "CImageFile.h")
        return IMAGE_HAS_FILES;
    return RUQGUI_HAS_WIDGETS || header.parent_path() != c_ownHeaders ||
           plain.count(header.filename().string()) > 0;
}

bool isAnyWithBeginning(const std::set<std::string>& names, const std::string& beginning) {
    const auto found = names.lower_bound(beginning);
    return found != names.end() && found->compare(0, beginning.size(), beginning) == 0;
}

} // namespace

TEST_P(ExportsWindowsTest, EveryClassOfTheHeadersWithItsCopiesAndConstantsIsInTheTable) {
    const std::set<std::string> exports = LibraryFile(GetParam().name).Exports();
    int classes = 0;
    int members = 0;
    for (const auto& file : std::filesystem::directory_iterator(GetParam().headers)) {
        if (!isBuilt(file.path()))
            continue;
        for (const std::string& name : classesIn(file.path())) {
            EXPECT_TRUE(isAnyWithBeginning(exports, "_ZN4TEVU" + mangled(name))) << name;
            ++classes;
            for (const std::string& member : membersIn(textOf(file.path()), name)) {
                EXPECT_TRUE(isAnyWithBeginning(exports, member)) << member;
                ++members;
            }
        }
    }
    std::cout << classes << " classes, " << members << " of their members, " << exports.size()
              << " exports" << std::endl;
    EXPECT_GE(classes, GetParam().leastClasses);
    EXPECT_GT(members, 0);
}

TEST_P(ExportsWindowsTest, NothingOfOtherLibrariesIsInTheTable) {
    const std::set<std::string> exports = LibraryFile(GetParam().name).Exports();
    for (const char* beginning : {"_ZNSt", "_ZSt", "TIFF", "_ZN8nlohmann", "_ZN7QWidget"})
        EXPECT_FALSE(isAnyWithBeginning(exports, beginning)) << beginning;
}

INSTANTIATE_TEST_SUITE_P(Of, ExportsWindowsTest,
                         testing::Values(StLibrary{"ruqgui.dll", c_ownHeaders, 3},
                                         StLibrary{"ruqlib2core.dll", CORE_HEADERS, 15},
                                         StLibrary{"ruqlib2image.dll", IMAGE_HEADERS, 5}),
                         [](const auto& test) {
                             return std::filesystem::path(test.param.name).stem().string();
                         });

TEST(ConstantsWindowsTest, AreThoseInTheLibraries) {
    EXPECT_EQ(&CString::NPOS, LibraryFile("ruqlib2core.dll").Address("_ZN4TEVU7CString4NPOSE"));
    EXPECT_EQ(
        &COrunHeaderTools::c_sTagFeatures,
        LibraryFile("ruqlib2image.dll").Address("_ZN4TEVU16COrunHeaderTools14c_sTagFeaturesE"));
}

namespace {

std::vector<HMODULE> s_asked;

long noteAndAsk(HMODULE library);

const support::Hidden s_notToBeToldAboutThreads("LdrDisableThreadCalloutsForDll", &noteAndAsk);

long noteAndAsk(HMODULE library) {
    s_asked.push_back(library);
    return s_notToBeToldAboutThreads(library);
}

} // namespace

TEST(EntryPointWindowsTest, AsksOnceNotToBeToldAboutThreads) {
    const TestFolder folder;
    wchar_t path[MAX_PATH];
    ::GetModuleFileNameW(::GetModuleHandleA("ruqgui.dll"), path, MAX_PATH);
    std::filesystem::copy_file(path, folder.Path("copy.dll"));
    s_asked.clear();

    const HMODULE copy = ::LoadLibraryA(folder.Path("copy.dll").c_str());

    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(s_asked, std::vector<HMODULE>{copy});
    EXPECT_TRUE(::FreeLibrary(copy));
    EXPECT_EQ(s_asked.size(), 1u);
}
