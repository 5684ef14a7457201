#include "System.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <windows.h>

namespace support {

namespace {

const int c_attempts = 1000;
const ULONGLONG c_ticks = 10000000; // a second

unsigned s_patience = 0;

void CALLBACK endBecauseOfTime(void*, BOOLEAN) {
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    std::fprintf(stderr, "No end after %u seconds: %s.%s hangs\n", s_patience,
                 test ? test->test_suite_name() : "", test ? test->name() : "");
    std::fflush(nullptr);
    ::TerminateProcess(::GetCurrentProcess(), 3);
}

} // namespace

void setVariable(const char* name, const std::string& value) {
    ::_putenv_s(name, value.c_str());
}

void unsetVariable(const char* name) {
    ::_putenv_s(name, "");
}

std::string makeFreshFolder(const std::string& beginning) {
    // A name comes once in a process: a remembered folder of an earlier test must not come to life again.
    static int s_attempt = 0;
    for (const int end = s_attempt + c_attempts; s_attempt < end;) {
        const std::string folder =
            beginning + std::to_string(::GetCurrentProcessId()) + '-' + std::to_string(++s_attempt);
        if (::CreateDirectoryA(folder.c_str(), nullptr))
            return folder;
    }
    return std::string();
}

void giveAway(const std::string&, unsigned) {}

void makeOld(const std::string& path) {
    // The flag is what opens a folder.
    const HANDLE handle = ::CreateFileA(path.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr,
                                        OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    FILETIME now = {};
    ::GetSystemTimeAsFileTime(&now);
    ULARGE_INTEGER time = {};
    time.LowPart = now.dwLowDateTime;
    time.HighPart = now.dwHighDateTime;
    time.QuadPart -= 48 * 3600 * c_ticks;
    const FILETIME then = {time.LowPart, time.HighPart};
    EXPECT_TRUE(::SetFileTime(handle, nullptr, nullptr, &then)) << path;
    ::CloseHandle(handle);
}

void giveUpAfter(unsigned seconds) {
    static HANDLE s_timer = nullptr;
    s_patience = seconds;
    if (s_timer)
        ::ChangeTimerQueueTimer(nullptr, s_timer, seconds * 1000, 0);
    else
        ::CreateTimerQueueTimer(&s_timer, nullptr, endBecauseOfTime, nullptr, seconds * 1000, 0,
                                WT_EXECUTEONLYONCE);
}

} // namespace support
