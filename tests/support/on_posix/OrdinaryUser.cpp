#include "OrdinaryUser.h"

#include "TempDir.h"

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <grp.h>
#include <link.h>
#include <pwd.h>
#include <set>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace support {

namespace {

namespace fs = std::filesystem;

const char* c_rerunMark = "RUQGUI_TESTS_RERUN";

struct User {
    uid_t id;
    gid_t group;
};

User ordinaryUser() {
    const passwd* nobody = getpwnam("nobody");
    return nobody ? User{nobody->pw_uid, nobody->pw_gid} : User{65534, 65534};
}

std::string currentTest() {
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    return std::string(test->test_suite_name()) + '.' + test->name();
}

void giveAway(const std::string& path, const User& user) {
    EXPECT_EQ(chown(path.c_str(), user.id, user.group), 0) << path;
}

// The key to the display is readable for its owner only.
void bringDisplayKey(const std::string& to, const User& user) {
    const char* key = std::getenv("XAUTHORITY");
    if (!key || !fs::exists(key))
        return;
    fs::copy_file(key, to);
    giveAway(to, user);
    setenv("XAUTHORITY", to.c_str(), true);
}

int collectFolder(dl_phdr_info* object, std::size_t, void* folders) {
    const fs::path file(object->dlpi_name);
    if (file.is_absolute())
        static_cast<std::set<std::string>*>(folders)->insert(file.parent_path());
    return 0;
}

// The build may lie where the other user cannot go, as below the home of root. What is open already is
// reached all the same: so the libraries are looked for by way of their folders' open handles.
void bringLibraries() {
    std::set<std::string> folders;
    dl_iterate_phdr(collectFolder, &folders);
    std::string searched;
    for (const std::string& folder : folders) {
        const int handle = ::open(folder.c_str(), O_PATH | O_DIRECTORY);
        if (handle >= 0)
            searched += "/proc/self/fd/" + std::to_string(handle) + ':';
    }
    setenv("LD_LIBRARY_PATH", searched.c_str(), true);
}

bool become(const User& user) {
    return setgroups(0, nullptr) == 0 && setgid(user.group) == 0 && setuid(user.id) == 0;
}

[[noreturn]] void runAs(const User& user, const TempDir& home, int output) {
    std::string filter = "--gtest_filter=" + currentTest();
    std::string name = fs::read_symlink("/proc/self/exe");
    const int program = ::open("/proc/self/exe", O_PATH);
    char* const arguments[] = {name.data(), filter.data(), nullptr};
    dup2(output, STDOUT_FILENO);
    dup2(output, STDERR_FILENO);
    bringDisplayKey(home.path("Xauthority"), user);
    giveAway(home.path(), user);
    setenv("HOME", home.path().c_str(), true);
    setenv("XDG_RUNTIME_DIR", home.path().c_str(), true);
    setenv(c_rerunMark, "1", true);
    unsetenv("GTEST_OUTPUT");
    bringLibraries();
    if (chdir(home.path().c_str()) == 0 && become(user))
        fexecve(program, arguments, environ);
    _exit(EXIT_FAILURE);
}

std::string readAll(int input) {
    std::string all;
    char part[4096];
    for (ssize_t got = read(input, part, sizeof part); got > 0;
         got = read(input, part, sizeof part))
        all.append(part, std::size_t(got));
    return all;
}

bool endedWell(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

} // namespace

bool isSuperuser() {
    return geteuid() == 0;
}

bool isRerun() {
    return std::getenv(c_rerunMark);
}

Outcome runCurrentTestAsOrdinaryUser() {
    const TempDir home;
    int ends[2];
    if (pipe(ends) != 0)
        return {false, "no pipe"};
    const pid_t child = fork();
    if (child < 0)
        return {false, "no process"};
    if (child == 0)
        runAs(ordinaryUser(), home, ends[1]);
    ::close(ends[1]);
    const std::string output = readAll(ends[0]);
    ::close(ends[0]);
    // A program that found no test to run ends well, too.
    const bool ran = output.find("[  PASSED  ] 1 test.") != std::string::npos;
    return {endedWell(child) && ran, output};
}

} // namespace support
