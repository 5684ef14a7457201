#ifndef RUQGUI_TESTS_DIFFERENTIAL_PEER_H
#define RUQGUI_TESTS_DIFFERENTIAL_PEER_H

#include "Cases.h"

#include <SecondProgram.h>
#include <string>

namespace differential {

/// A second such program, which runs what it is asked to: on the other toolkit, or where it may
/// crash. It is asked by lines of text, and answers by lines.
class Peer {
public:
    using EnErrors = support::SecondProgram::EnErrors;

    /// \a command is that of a SecondProgram; "--serve" is given to it.
    explicit Peer(const std::string& command,
                  EnErrors errors = support::SecondProgram::eErrorsShown);

    /// Asks for the case; the answer comes with takeLog().
    void askFor(std::uint64_t index);
    void askFor(const Operations& operations);
    /// The log up to where the peer died, if it did.
    support::Lines takeLog();
    /// Only what verdictOn() says of it, for speed.
    void askForVerdict(std::uint64_t index);
    std::string takeVerdict();

    /// How many events have reached the widgets there; "" if it is dead.
    std::string takeEvents();

    bool isAlive() const { return m_bAlive; }

    /// There are no more questions: whether it ends well then, without a leak that a sanitizer tells
    /// of at the end.
    bool endsWell();

private:
    bool receive(std::string* line);
    std::string takeLine(); ///< "" from the dead.

    support::SecondProgram m_program;
    bool m_bAlive = true;
};

/// The peer's side: answers until there are no more questions.
void serve(Cases& cases);

} // namespace differential

#endif
