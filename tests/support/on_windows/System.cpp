#include "System.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <windows.h>

namespace support {

namespace {

const int c_attempts = 1000;

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
    for (int attempt = 0; attempt < c_attempts; ++attempt) {
        const std::string folder =
            beginning + std::to_string(::GetCurrentProcessId()) + '-' + std::to_string(attempt);
        if (::CreateDirectoryA(folder.c_str(), nullptr))
            return folder;
    }
    return std::string();
}

void giveAway(const std::string&, unsigned) {}

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
