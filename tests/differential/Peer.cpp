#include "Peer.h"

#include <cstdio>
#include <iostream>

namespace differential {

Peer::Peer(const std::string& command, EnErrors errors) : m_program(command + " --serve", errors) {}

bool Peer::endsWell() {
    m_bAlive = false;
    return m_program.endsWell();
}

bool Peer::receive(std::string* line) {
    m_bAlive = m_program.readLine(line);
    return m_bAlive;
}

void Peer::askFor(std::uint64_t index) {
    m_program.writeLine("case " + std::to_string(index));
}

void Peer::askForVerdict(std::uint64_t index) {
    m_program.writeLine("verdict " + std::to_string(index));
}

void Peer::askFor(const Operations& operations) {
    m_program.writeLine("operations " + std::to_string(operations.size()));
    for (const Operation& operation : operations)
        m_program.writeLine(operation.line());
}

support::Lines Peer::takeLog() {
    support::Lines lines;
    for (std::string line; receive(&line) && !line.empty();)
        lines.push_back(line);
    return lines;
}

std::string Peer::takeEvents() {
    m_program.writeLine("events");
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
    support::SecondProgram::behavePlainly();
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
