#ifndef RUQGUI_FAULTS_ROUNDS_H
#define RUQGUI_FAULTS_ROUNDS_H

#include <cstdlib>
#include <string>

/// How often: \a everyday, or what RUQGUI_ROUNDS says. Under wine a process takes a fifth of a second to
/// start, so that every day has fewer rounds there.
inline int rounds(int everyday) {
#ifdef _WIN32
    everyday /= 10;
#endif
    const char* const asked = std::getenv("RUQGUI_ROUNDS");
    return asked ? std::stoi(asked) : everyday;
}

/// Whether RUQGUI_ROUNDS asks for more than an everyday run.
inline bool isLongRun() {
    return std::getenv("RUQGUI_ROUNDS") != nullptr;
}

/// What random numbers begin with: what RUQGUI_SEED says, 1 otherwise.
inline unsigned seed() {
    const char* const asked = std::getenv("RUQGUI_SEED");
    return asked ? static_cast<unsigned>(std::stoul(asked)) : 1;
}

#endif
