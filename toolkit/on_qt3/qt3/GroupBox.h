#ifndef RUQGUI_QT3_GROUPBOX_H
#define RUQGUI_QT3_GROUPBOX_H

#include <qgroupbox.h>

namespace qt3 {

typedef QGroupBox GroupBox;

} // namespace qt3

#endif
