#include "Cases.h"

#include "Digest.h"
#include "subjects/Subjects.h"

#include <System.h>
#include <stdexcept>

namespace differential {

namespace {

const unsigned c_nPatience = 120; // seconds for one case, on a busy machine and with sanitizers
std::string s_presentCase;

std::string presentCase() {
    return s_presentCase;
}

std::unique_ptr<Subject> subjectOf(Stage& stage, const std::string& className, bool rubbish) {
    for (const SubjectKind& kind : subjectKinds()) {
        if (kind.className == className)
            return kind.make(stage, Taste(rubbish));
    }
    throw std::runtime_error("there is no class '" + className + "'");
}

} // namespace

std::uint64_t casesOf(std::uint64_t operations) {
    return (operations + c_nCaseLength - 1) / c_nCaseLength;
}

Cases::Cases(Stage& stage, const std::string& className, std::uint64_t seed, bool rubbish)
    : m_stage(stage), m_nEventsBefore(stage.events()), m_sClassName(className), m_nSeed(seed),
      m_pSubject(subjectOf(stage, className, rubbish)) {}

Operations Cases::operations(std::uint64_t index) const {
    Random random(mixedSeed(m_nSeed, m_sClassName, index));
    return m_pSubject->randomCase(random, c_nCaseLength);
}

support::Lines Cases::run(const Operations& operations) {
    s_presentCase = m_sClassName;
    for (const Operation& operation : operations)
        s_presentCase += '\n' + operation.line();
    support::giveUpAfter(c_nPatience, presentCase);
    const support::Lines lines = m_pSubject->run(operations);
    support::giveUpAfter(0);
    return lines;
}

bool isBroken(const std::string& line) {
    return line.find(Subject::c_broken) != std::string::npos;
}

std::string verdictOn(const support::Lines& log) {
    Digest digest;
    for (const std::string& line : log) {
        if (isBroken(line))
            return line;
        digest.add(line);
    }
    return digest.text();
}

} // namespace differential
