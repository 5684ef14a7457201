#ifndef RUQGUI_QT3_EVENTS_H
#define RUQGUI_QT3_EVENTS_H

#include <qt3/Export.h>

#include <qevent.h>

namespace qt3 {

/// Where the mouse is, in the coordinates of the widget that gets the event.
RUQGUI_EXPORT QPoint pos(const QMouseEvent* event);

/// Whether the Control key is held.
RUQGUI_EXPORT bool hasControl(const QKeyEvent* event);

/// 120 for a notch away from the user, -120 towards the user.
RUQGUI_EXPORT int delta(const QWheelEvent* event);

} // namespace qt3

#endif
