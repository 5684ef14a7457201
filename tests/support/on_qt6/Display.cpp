#include "Display.h"

#include <cstdlib>

namespace support {

void prepareDisplay() {
    setenv("QT_QPA_PLATFORM", "offscreen", false);
}

} // namespace support
