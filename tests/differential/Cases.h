#ifndef RUQGUI_TESTS_DIFFERENTIAL_CASES_H
#define RUQGUI_TESTS_DIFFERENTIAL_CASES_H

#include "Operation.h"
#include "Subject.h"

#include <cstdint>
#include <memory>
#include <string>

namespace differential {

constexpr int c_nCaseLength = 100;   ///< Operations of a case.
constexpr int c_nBlockLength = 1000; ///< Operations that one digest of a record stands for.

std::uint64_t casesOf(std::uint64_t operations);

/// The random cases of one class. A case depends on the seed, the class and its own number alone.
class Cases {
public:
    /// Throws std::runtime_error for an unknown class.
    Cases(Stage& stage, const std::string& className, std::uint64_t seed, bool rubbish);

    Operations operations(std::uint64_t index) const;
    support::Lines run(const Operations& operations);
    support::Lines log(std::uint64_t index) { return run(operations(index)); }

    const std::string& className() const { return m_sClassName; }
    std::uint64_t seed() const { return m_nSeed; }
    /// That have reached the widgets of the class in all cases run so far.
    std::uint64_t events() const { return m_stage.events() - m_nEventsBefore; }

private:
    Stage& m_stage;
    std::uint64_t m_nEventsBefore;
    std::string m_sClassName;
    std::uint64_t m_nSeed;
    std::unique_ptr<Subject> m_pSubject;
};

/// The first broken promise in the log, else its digest.
std::string verdictOn(const support::Lines& log);
bool isBroken(const std::string& line);

} // namespace differential

#endif
