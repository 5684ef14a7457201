#include "EventCount.h"

#include <qapplication.h>

namespace differential {

EventCount::EventCount(std::function<bool(const QObject*)> isInQuestion)
    : m_isInQuestion(std::move(isInQuestion)) {
    qApp->installEventFilter(this);
}

bool EventCount::eventFilter(QObject* watched, QEvent*) {
    if (watched->isWidgetType() && m_isInQuestion(watched))
        ++m_nAll;
    return false;
}

} // namespace differential
