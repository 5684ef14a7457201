#ifndef RUQGUI_QT3_SPINBOX_H
#define RUQGUI_QT3_SPINBOX_H

#include <qspinbox.h>

namespace qt3 {

typedef QSpinBox SpinBox;

} // namespace qt3

#endif
