#include "ChildProcess.h"

#include "TestFolder.h"

#include <csignal>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string readRest(std::FILE* file) {
    std::string text;
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
        text += static_cast<char>(c);
    return text;
}

void writeAll(int descriptor, const std::string& text) {
    if (::write(descriptor, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
        ::_exit(3);
}

[[noreturn]] void runAndEnd(const std::function<void(int)>& run, int descriptor, int errors) {
    ::dup2(errors, STDERR_FILENO);
    try {
        run(descriptor);
    } catch (const std::exception& failure) {
        writeAll(STDERR_FILENO, std::string("exception: ") + failure.what() + "\n");
        ::_exit(2);
    }
    ::_exit(0);
}

} // namespace

ChildProcess::ChildProcess(const std::function<void(int descriptor)>& run)
    : m_pErrors(std::tmpfile()) {
    int ends[2];
    if (!m_pErrors || ::pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    m_nProcess = ::fork();
    if (m_nProcess == 0)
        runAndEnd(run, ends[1], ::fileno(m_pErrors));
    ::close(ends[1]);
    m_pOutput = ::fdopen(ends[0], "r");
}

ChildProcess::~ChildProcess() {
    if (m_nProcess > 0) {
        Kill();
        Wait();
    }
    std::fclose(m_pOutput);
    std::fclose(m_pErrors);
}

std::string ChildProcess::ReadLine() {
    std::string line;
    for (int c = std::fgetc(m_pOutput); c != EOF && c != '\n'; c = std::fgetc(m_pOutput))
        line += static_cast<char>(c);
    return line;
}

void ChildProcess::Kill() {
    ::kill(m_nProcess, SIGKILL);
}

ChildProcess::StOutcome ChildProcess::Wait() {
    StOutcome outcome;
    outcome.output = readRest(m_pOutput);
    ::waitpid(m_nProcess, &outcome.status, 0);
    m_nProcess = 0;
    std::rewind(m_pErrors);
    outcome.errors = readRest(m_pErrors);
    return outcome;
}

ChildProcess::StOutcome inChild(const std::function<std::string()>& run) {
    return ChildProcess([&](int descriptor) { writeAll(descriptor, run()); }).Wait();
}

ChildProcess::StOutcome asOrdinaryUser(const std::function<std::string()>& run) {
    return inChild([&]() -> std::string {
        const auto user = TestFolder::c_nOrdinaryUser;
        if (::geteuid() == 0 && (::setgid(user) != 0 || ::setuid(user) != 0))
            throw std::runtime_error("cannot become another user");
        return run();
    });
}
