#include "Display.h"

#include <chrono>
#include <qapplication.h>
#include <thread>

// Behind the toolkit, whose words it defines as macros.
#include <X11/Xlib.h>

namespace support {

// A virtual display starts anew when its last client leaves, and refuses connections meanwhile. The
// tests before this one may have been the last clients. The connection is kept, so that there is no
// such moment while the application object connects.
void prepareDisplay() {
    static Display* s_display = XOpenDisplay(nullptr);
    for (int tries = 0; !s_display && tries < 100; ++tries) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        s_display = XOpenDisplay(nullptr);
    }
}

// For each window, the input method has the display look through all its fonts: ten times the work of
// the window itself. No test types through an input method.
void addDisplayOptions(std::vector<char*>& arguments) {
    static char s_noInputMethod[] = "-noxim";
    arguments.push_back(s_noInputMethod);
}

void setTestedStyle() {
    QApplication::setStyle("windows");
}

void decodeIconsOnce() {} // they are part of the program

} // namespace support
