#ifndef RUQGUI_FAULTS_ROUNDS_H
#define RUQGUI_FAULTS_ROUNDS_H

#include <cstdlib>
#include <string>

/// How often: \a everyday, or what RUQGUI_ROUNDS says.
inline int rounds(int everyday) {
    const char* const asked = std::getenv("RUQGUI_ROUNDS");
    return asked ? std::stoi(asked) : everyday;
}

#endif
