#ifndef RUQGUI_TESTS_SUPPORT_DISPLAYTIME_H
#define RUQGUI_TESTS_SUPPORT_DISPLAYTIME_H

namespace support {

/// Tells the toolkit the display's present time, which it learns from what a user does. No user does anything in
/// tests; and who asks for the clipboard with a time before its last change is not heard.
void learnDisplayTime();

} // namespace support

#endif
