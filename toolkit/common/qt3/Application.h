#ifndef RUQGUI_QT3_APPLICATION_H
#define RUQGUI_QT3_APPLICATION_H

#include <qt3/Export.h>

#include <qapplication.h>

namespace qt3 {

typedef QApplication Application;

/// Makes \a widget the main widget, null for none. A destroyed main widget is forgotten. On Qt 3.3
/// it is the application's own main widget, whose closing ends the application.
RUQGUI_EXPORT void setMainWidget(QWidget* widget);

/// The main widget that was set, else the active window, else null.
RUQGUI_EXPORT QWidget* mainWidget();

} // namespace qt3

#endif
