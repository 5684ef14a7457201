#include "SecondProgram.h"

#include <csignal>
#include <fcntl.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

namespace {

/// The end of the parent is closed in other children, else they would keep the pipe open.
void makePipe(int (&ends)[2]) {
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
}

[[noreturn]] void become(const std::string& command, int input, int output) {
    dup2(input, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
    _exit(127);
}

} // namespace

SecondProgram::SecondProgram(const std::string& command, EnErrors errors) {
    std::signal(SIGPIPE, SIG_IGN);
    int to[2];
    int from[2];
    makePipe(to);
    makePipe(from);
    const pid_t process = fork();
    if (process < 0)
        throw std::runtime_error("no second process");
    if (process == 0)
        become("exec " + command + (errors == eErrorsHidden ? " 2>/dev/null" : ""), to[0], from[1]);
    m_nProcess = process;
    close(to[0]);
    close(from[1]);
    m_pTo = fdopen(to[1], "w");
    m_pFrom = fdopen(from[0], "r");
}

bool SecondProgram::hasEndedWell() {
    int status = 0;
    waitpid(static_cast<pid_t>(m_nProcess), &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void SecondProgram::behavePlainly() {}

} // namespace support
