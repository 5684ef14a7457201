#ifndef RUQGUI_TESTS_SUPPORT_DISPLAY_H
#define RUQGUI_TESTS_SUPPORT_DISPLAY_H

namespace support {

/// Makes sure that the application object finds a display. Call it before making that.
void prepareDisplay();

} // namespace support

#endif
