#ifndef RUQGUI_QT3_TABWIDGET_H
#define RUQGUI_QT3_TABWIDGET_H

#include <qtabwidget.h>

namespace qt3 {

typedef QTabWidget TabWidget;

} // namespace qt3

#endif
