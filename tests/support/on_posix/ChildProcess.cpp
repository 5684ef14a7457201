#include "ChildProcess.h"

#include "ChildTask.h"

#include <csignal>
#include <cstdio>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

namespace {

std::string readRest(std::FILE* file) {
    std::string text;
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
        text += static_cast<char>(c);
    return text;
}

void makePipe(int (&ends)[2]) {
    if (::pipe(ends) != 0)
        throw std::runtime_error("no pipe");
}

/// Waits for a byte; false when the parent ends without sending one.
bool isToldToGo(const int (&go)[2]) {
    char sign = 0;
    ::close(go[1]);
    return ::read(go[0], &sign, 1) == 1;
}

} // namespace

void ChildProcess::Output::write(const std::string& text) {
    if (::write(m_descriptor, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
        ::_exit(3);
}

struct ChildProcess::Handles {
    pid_t process = 0;
    int go = -1;
    std::FILE* output = nullptr;
    std::FILE* errors = nullptr;
};

ChildProcess::ChildProcess(Task task, const Arguments& arguments, EnStart start)
    : m_handles(std::make_unique<Handles>()) {
    int output[2];
    int go[2];
    makePipe(output);
    makePipe(go);
    m_handles->errors = std::tmpfile();
    m_handles->process = ::fork();
    if (m_handles->process == 0) {
        ::dup2(::fileno(m_handles->errors), STDERR_FILENO);
        // No destructor of the test program may run twice.
        ::_exit(isToldToGo(go) ? runTask(task, output[1], arguments) : 0);
    }
    ::close(output[1]);
    ::close(go[0]);
    m_handles->go = go[1];
    m_handles->output = ::fdopen(output[0], "r");
    if (start == eNow)
        letGo();
}

ChildProcess::~ChildProcess() {
    if (m_handles->process > 0) {
        kill();
        wait();
    }
    ::close(m_handles->go);
    std::fclose(m_handles->output);
    std::fclose(m_handles->errors);
}

void ChildProcess::letGo() {
    if (::write(m_handles->go, "!", 1) != 1)
        throw std::runtime_error("the child is gone");
}

std::string ChildProcess::readLine() {
    std::string line;
    for (int c = std::fgetc(m_handles->output); c != EOF && c != '\n';
         c = std::fgetc(m_handles->output))
        line += static_cast<char>(c);
    return line;
}

void ChildProcess::kill() {
    ::kill(m_handles->process, SIGKILL);
}

ChildProcess::Outcome ChildProcess::wait() {
    Outcome outcome;
    outcome.output = readRest(m_handles->output);
    ::waitpid(m_handles->process, &outcome.status, 0);
    m_handles->process = 0;
    std::rewind(m_handles->errors);
    outcome.errors = readRest(m_handles->errors);
    return outcome;
}

// Children are copies of this process: none begins at the main function.
bool ChildProcess::isOne() {
    return false;
}

int ChildProcess::runItsTask() {
    return 0;
}

void ChildProcess::killThis() {
    std::raise(SIGKILL);
    ::_exit(9);
}

} // namespace support
