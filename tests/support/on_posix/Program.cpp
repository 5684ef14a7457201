#include "Program.h"

#include "TempDir.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace support {

namespace {

std::vector<char*> pointersTo(std::vector<std::string>& words) {
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// -1 when it cannot be started or is killed.
int spawnAndWait(const std::string& program, char* const* words,
                 const posix_spawn_file_actions_t& actions) {
    pid_t process = 0;
    int status = -1;
    if (posix_spawn(&process, program.c_str(), &actions, nullptr, words, environ) != 0)
        return -1;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

Ended runProgram(const std::string& program, const std::vector<std::string>& arguments) {
    const TempDir dir;
    const std::string output = dir.writeFile("output");
    std::vector<std::string> words = {program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(), O_WRONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
    const int status = spawnAndWait(program, pointersTo(words).data(), actions);
    posix_spawn_file_actions_destroy(&actions);
    return {status, dir.read("output")};
}

} // namespace support
