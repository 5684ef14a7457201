#include "OrdinaryUser.h"

// Tests that need another user do not run here: see NotOnWindows.h.
namespace support {

bool isSuperuser() {
    return false;
}

bool isRerun() {
    return false;
}

Outcome runCurrentTestAsOrdinaryUser() {
    return {false, "no other user"};
}

} // namespace support
