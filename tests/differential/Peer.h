#ifndef RUQGUI_TESTS_DIFFERENTIAL_PEER_H
#define RUQGUI_TESTS_DIFFERENTIAL_PEER_H

#include "Cases.h"

#include <cstdio>
#include <string>
#include <sys/types.h>

namespace differential {

/// A second such program, which runs what it is asked to: on the other toolkit, or where it may
/// crash. It is asked by lines of text, and answers by lines.
class Peer {
public:
    /// \a command is for the shell; "--serve" is given to it.
    explicit Peer(const std::string& command);
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    ~Peer();

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
    void send(const std::string& line);
    bool receive(std::string* line);
    std::string takeLine(); ///< "" from the dead.

    pid_t m_nProcess = 0;
    std::FILE* m_pTo = nullptr;
    std::FILE* m_pFrom = nullptr;
    bool m_bAlive = true;
};

/// The peer's side: answers until there are no more questions.
void serve(Cases& cases);

} // namespace differential

#endif
