#include "System.h"
#include "TempDir.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <windows.h>

// A program with windows that has neither a console nor anything to write to, as it is when it is started by a double
// click.

namespace {

/// Runs the gallery without standard streams; its exit status.
DWORD runWithoutStreams(const std::string& arguments) {
    std::string commandLine = "\"" GALLERY_PROGRAM "\" " + arguments;
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES; // which are none
    PROCESS_INFORMATION process = {};
    EXPECT_TRUE(::CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE,
                                 DETACHED_PROCESS, nullptr, nullptr, &startup, &process));
    DWORD status = 0;
    ::WaitForSingleObject(process.hProcess, INFINITE);
    ::GetExitCodeProcess(process.hProcess, &status);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return status;
}

class GalleryWindowsTest : public testing::Test {
protected:
    GalleryWindowsTest() { support::setVariable("RUQ_REGISTRY", m_dir.path("registry.json")); }

    support::TempDir m_dir;
};

} // namespace

TEST_F(GalleryWindowsTest, WorksWithoutStandardOutputAndErrors) {
    m_dir.writeFile("registry.json", "{"); // of which the registry would tell on standard error

    EXPECT_EQ(runWithoutStreams("--screenshots \"" + m_dir.path("shots") + "\""), 0u);

    EXPECT_TRUE(m_dir.exists("shots/numbers.png"));
    EXPECT_TRUE(m_dir.exists("registry.json.unreadable-1"));
}

TEST_F(GalleryWindowsTest, EndsWithItsStatusWithoutStandardOutputAndErrors) {
    EXPECT_EQ(runWithoutStreams("--help"), 0u);
    EXPECT_EQ(runWithoutStreams("--page Nowhere"), 1u);
}
