#ifndef RUQGUI_TESTS_SUPPORT_DISPLAY_H
#define RUQGUI_TESTS_SUPPORT_DISPLAY_H

#include <vector>

namespace support {

/// Makes sure that the application object finds a display. Call it before making that.
void prepareDisplay();

/// Adds to the application object's arguments what keeps windows cheap.
void addDisplayOptions(std::vector<char*>& arguments);

/// The style in which widgets are tested, as the toolkit's factory names it; called once there is an application
/// object.
void setTestedStyle();

/// From here on, each icon that the style gives to dialogs is decoded once, not for every dialog: on Qt 6
/// that is a third of what a file dialog costs.
void decodeIconsOnce();

} // namespace support

#endif
