#ifndef RUQGUI_BENCH_STAGE_H
#define RUQGUI_BENCH_STAGE_H

#include "Comparison.h"

#include <qcoreevent.h>
#include <qpoint.h>
#include <qwidget.h>

namespace bench {

/// A window for one side of a comparison, and somebody who listens to the widgets in it.
class Stage {
public:
    Stage();

    /// One more slot that is called when \a sender emits \a signal.
    template <class Sender, class Signal>
    void listenTo(Sender* sender, Signal signal) {
        QObject::connect(sender, signal, &m_listener, [this] { ++m_nHeard; });
    }

    void show();

    QWidget m_window;

private:
    QObject m_listener;
    long m_nHeard = 0;
};

/// What an event loop does before it waits: what is to be painted is painted.
void paintWhatIsDue();

/// \throws std::logic_error if \a operation leaves \a widget unpainted: then there is
///         nothing to be compared.
void requirePainting(const Operation& operation, QWidget* widget);

void sendMouse(QWidget* widget, QEvent::Type type, const QPoint& position);

} // namespace bench

#endif
