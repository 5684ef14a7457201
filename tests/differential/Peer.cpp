#include "Peer.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace differential {

namespace {

/// The end of the parent is closed in other children, else they would keep the pipe open.
void makePipe(int* ends) {
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
}

} // namespace

Peer::Peer(const std::string& command) {
    std::signal(SIGPIPE, SIG_IGN);
    int to[2];
    int from[2];
    makePipe(to);
    makePipe(from);
    m_nProcess = fork();
    if (m_nProcess < 0)
        throw std::runtime_error("no second process");
    if (m_nProcess == 0) {
        dup2(to[0], STDIN_FILENO);
        dup2(from[1], STDOUT_FILENO);
        execl("/bin/sh", "sh", "-c", ("exec " + command + " --serve").c_str(), nullptr);
        _exit(127);
    }
    close(to[0]);
    close(from[1]);
    m_pTo = fdopen(to[1], "w");
    m_pFrom = fdopen(from[0], "r");
}

Peer::~Peer() {
    if (m_pTo)
        endsWell();
    std::fclose(m_pFrom);
}

bool Peer::endsWell() {
    std::fclose(m_pTo);
    m_pTo = nullptr;
    m_bAlive = false;
    int status = 0;
    waitpid(m_nProcess, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void Peer::send(const std::string& line) {
    std::fprintf(m_pTo, "%s\n", line.c_str());
    std::fflush(m_pTo);
}

bool Peer::receive(std::string* line) {
    char* read = nullptr;
    std::size_t capacity = 0;
    const ssize_t length = getline(&read, &capacity, m_pFrom);
    m_bAlive = length > 0;
    if (m_bAlive)
        line->assign(read, static_cast<std::size_t>(length) - 1);
    std::free(read);
    return m_bAlive;
}

void Peer::askFor(std::uint64_t index) {
    send("case " + std::to_string(index));
}

void Peer::askForVerdict(std::uint64_t index) {
    send("verdict " + std::to_string(index));
}

void Peer::askFor(const Operations& operations) {
    send("operations " + std::to_string(operations.size()));
    for (const Operation& operation : operations)
        send(operation.line());
}

support::Lines Peer::takeLog() {
    support::Lines lines;
    for (std::string line; receive(&line) && !line.empty();)
        lines.push_back(line);
    return lines;
}

std::string Peer::takeEvents() {
    send("events");
    return takeLine();
}

std::string Peer::takeVerdict() {
    return takeLine();
}

std::string Peer::takeLine() {
    std::string line;
    receive(&line);
    return line;
}

namespace {

// Not std::cout: a class under test may write to that.
void answer(const std::string& line) {
    std::puts(line.c_str());
    std::fflush(stdout);
}

void answer(const support::Lines& lines) {
    for (const std::string& line : lines)
        std::puts(line.c_str());
    std::puts("");
    std::fflush(stdout);
}

Operations readOperations(std::size_t count) {
    Operations operations;
    for (std::string line; operations.size() < count && std::getline(std::cin, line);)
        operations.push_back(Operation::parsed(line));
    return operations;
}

} // namespace

void serve(Cases& cases) {
    for (std::string line; std::getline(std::cin, line);) {
        const Operation question = Operation::parsed(line);
        const auto number = static_cast<std::uint64_t>(question.real(0));
        if (question.name() == "verdict") {
            answer(verdictOn(cases.log(number)));
        } else if (question.name() == "events") {
            answer(std::to_string(cases.events()));
        } else {
            answer(question.name() == "case" ? cases.log(number)
                                             : cases.run(readOperations(number)));
        }
    }
}

} // namespace differential
