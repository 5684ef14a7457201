#include "Subject.h"

#include <ctime>

namespace differential {

namespace {

const char c_beginning[] = "make";

// Of the processor, so that it does not matter how busy the machine is. Longest are a hundred notches in one
// wheel event, each with a text of 32 767 digits, under sanitizers.
const double c_mostSeconds = 20;

double secondsSince(std::clock_t begin) {
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

Operation randomOperation(const std::string& name, const std::vector<Source>& sources,
                          Random& random) {
    std::vector<Argument> arguments;
    for (const Source& source : sources)
        arguments.push_back(source(random));
    return Operation(name, arguments);
}

std::string onOneLine(std::string text) {
    for (std::size_t end = 0; (end = text.find('\n', end)) != std::string::npos;)
        text.replace(end, 1, "\\n");
    return text;
}

} // namespace

Subject::Subject(Stage& stage, const Taste& taste) : m_stage(stage), m_taste(taste) {}

Subject::~Subject() = default;

void Subject::beginning(const std::vector<Source>& arguments) {
    m_vBeginning = arguments;
}

void Subject::action(const std::string& name, int weight, const std::vector<Source>& arguments,
                     Performance performance) {
    m_vActions.push_back({name, weight, arguments, std::move(performance)});
    m_nWeights += weight;
}

const Subject::Action& Subject::randomAction(Random& random) const {
    long long left = random.number(0, m_nWeights - 1);
    for (const Action& candidate : m_vActions) {
        if (left < candidate.weight)
            return candidate;
        left -= candidate.weight;
    }
    return m_vActions.back();
}

const Subject::Action* Subject::find(const std::string& name) const {
    for (const Action& candidate : m_vActions) {
        if (candidate.name == name)
            return &candidate;
    }
    return nullptr;
}

Operations Subject::randomCase(Random& random, int length) const {
    Operations operations = {randomOperation(c_beginning, m_vBeginning, random)};
    while (static_cast<int>(operations.size()) < length) {
        const Action& chosen = randomAction(random);
        operations.push_back(randomOperation(chosen.name, chosen.arguments, random));
    }
    return operations;
}

support::Lines Subject::run(const Operations& operations) {
    support::Lines log;
    const bool begins = !operations.empty() && operations.front().name() == c_beginning;
    m_stage.set();
    make(begins ? operations.front() : Operation(c_beginning));
    for (const Operation& operation : operations)
        perform(operation, log);
    unmake();
    m_stage.clear();
    return log;
}

void Subject::perform(const Operation& operation, support::Lines& log) {
    log.push_back(operation.line());
    const std::clock_t begin = std::clock();
    if (const Action* const known = find(operation.name()))
        known->performance(operation);
    Stage::settle();
    revive();
    const double seconds = secondsSince(begin);
    const support::Lines said = m_stage.recorder().take();
    for (const std::string& line : said)
        log.push_back("  " + onOneLine(line));
    log.push_back("= " + onOneLine(state()));
    const std::string broken = brokenPromise();
    if (!broken.empty())
        log.push_back(c_broken + broken);
    if (said.size() > mostLines(operation))
        log.push_back(c_broken + std::to_string(said.size()) + " lines of one operation");
    if (seconds > c_mostSeconds)
        log.push_back(c_broken + std::to_string(seconds) + " s of the processor for one operation");
}

} // namespace differential
