#include <qt3/Events.h>

namespace qt3 {

QPoint pos(const QMouseEvent* event) {
    return event->position().toPoint();
}

bool hasControl(const QKeyEvent* event) {
    return event->modifiers().testFlag(Qt::ControlModifier);
}

int delta(const QWheelEvent* event) {
    return event->angleDelta().y();
}

} // namespace qt3
