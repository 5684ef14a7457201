#include "System.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <io.h>
#include <windows.h>

namespace support {

namespace {

const int c_attempts = 1000;
const ULONGLONG c_ticks = 10000000; // a second
const DWORD c_forEver = 1000000000; // milliseconds, eleven days; nothing ends then either

unsigned s_patience = 0;
std::string (*s_nameOfWhatRuns)() = nullptr;

void CALLBACK endBecauseOfTime(void*, BOOLEAN) {
    if (s_patience == 0)
        return;
    std::fprintf(stderr, "No end after %u seconds: %s hangs\n", s_patience,
                 s_nameOfWhatRuns().c_str());
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

void giveUpAfter(unsigned seconds, std::string (*nameOfWhatRuns)()) {
    static HANDLE s_timer = nullptr;
    const DWORD milliseconds = seconds > 0 ? seconds * 1000 : c_forEver;
    s_patience = seconds;
    s_nameOfWhatRuns = nameOfWhatRuns;
    if (s_timer)
        ::ChangeTimerQueueTimer(nullptr, s_timer, milliseconds, 0);
    else
        ::CreateTimerQueueTimer(&s_timer, nullptr, endBecauseOfTime, nullptr, milliseconds, 0,
                                WT_EXECUTEONLYONCE);
}

// Under wine, the place of the system around it.
InMemory::InMemory() {
    const char* const folder = "Z:/dev/shm";
    if (_access(folder, 2) == 0)
        setVariable("TMP", folder);
}

} // namespace support
