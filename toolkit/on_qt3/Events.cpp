#include <qt3/Events.h>

namespace qt3 {

QPoint pos(const QMouseEvent* event) {
    return event->pos();
}

bool hasControl(const QKeyEvent* event) {
    return (event->state() & Qt::ControlButton) != 0;
}

int delta(const QWheelEvent* event) {
    return event->delta();
}

} // namespace qt3
