#include "Stage.h"

#include <qcoreapplication.h>
#include <qevent.h>
#include <stdexcept>

namespace bench {

namespace {

class PaintCount : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            ++m_nPaints;
        return false;
    }

    int m_nPaints = 0;
};

} // namespace

Stage::Stage() {
    m_window.resize(300, 80);
}

void Stage::show() {
    m_window.show();
    QCoreApplication::processEvents();
}

void paintWhatIsDue() {
    QCoreApplication::sendPostedEvents();
}

void requirePainting(const Operation& operation, QWidget* widget) {
    const int times = 3;
    PaintCount count;
    widget->installEventFilter(&count);
    for (int i = 0; i < times; ++i)
        operation();
    if (count.m_nPaints < times)
        throw std::logic_error("An operation that is measured with its painting does not paint");
}

void sendMouse(QWidget* widget, QEvent::Type type, const QPoint& position) {
    const bool bMove = type == QEvent::MouseMove;
    const bool bRelease = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, position, widget->mapToGlobal(position),
                      bMove ? Qt::NoButton : Qt::LeftButton,
                      bRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace bench
