#ifndef RUQGUI_QT3_CHECKBOX_H
#define RUQGUI_QT3_CHECKBOX_H

#include <qcheckbox.h>

namespace qt3 {

typedef QCheckBox CheckBox;

} // namespace qt3

#endif
