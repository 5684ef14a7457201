#include "System.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <execinfo.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

namespace support {

namespace {

unsigned s_patience = 0;
std::string (*s_nameOfWhatRuns)() = nullptr;

void tellWhereItHangs(int) {
    std::fprintf(stderr, "No end after %u seconds: %s hangs here:\n", s_patience,
                 s_nameOfWhatRuns().c_str());
    void* frames[100];
    backtrace_symbols_fd(frames, backtrace(frames, 100), STDERR_FILENO);
    std::abort();
}

} // namespace

void setVariable(const char* name, const std::string& value) {
    setenv(name, value.c_str(), true);
}

void unsetVariable(const char* name) {
    unsetenv(name);
}

std::string makeFreshFolder(const std::string& beginning) {
    std::string pattern = beginning + "XXXXXX";
    return mkdtemp(pattern.data()) ? pattern : std::string();
}

void giveAway(const std::string& path, unsigned user) {
    if (geteuid() != 0)
        return;
    EXPECT_EQ(chown(path.c_str(), user, user), 0) << path;
}

void makeOld(const std::string& path) {
    namespace fs = std::filesystem;
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(48));
}

void giveUpAfter(unsigned seconds, std::string (*nameOfWhatRuns)()) {
    s_patience = seconds;
    s_nameOfWhatRuns = nameOfWhatRuns;
    std::signal(SIGALRM, tellWhereItHangs);
    alarm(seconds);
}

InMemory::InMemory() {
    const char* const folder = "/dev/shm";
    if (access(folder, W_OK) == 0)
        setVariable("TMPDIR", folder);
}

} // namespace support
