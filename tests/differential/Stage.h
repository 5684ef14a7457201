#ifndef RUQGUI_TESTS_DIFFERENTIAL_STAGE_H
#define RUQGUI_TESTS_DIFFERENTIAL_STAGE_H

#include "EventCount.h"

#include <Recorder.h>
#include <functional>
#include <memory>
#include <qt3/Pointer.h>
#include <qwidget.h>
#include <string>
#include <utility>
#include <vector>

namespace differential {

/// An active window with a place for one subject, and with two neighbours that the focus can go to.
///
/// No event loop runs while it is set: timers stand still, so that no button held down repeats by
/// the clock. What widgets post to themselves is delivered by settle().
class Stage {
public:
    Stage();
    ~Stage();

    void set();   ///< A new place, new neighbours, nothing recorded.
    void clear(); ///< Destroys the place with all that is in it, and lets the window rest.

    /// The parent for the subject; null after its death.
    QWidget* place() { return m_pPlace; }
    void newPlace(); ///< Instead of one that is dead.
    QWidget* before() { return m_pBefore; }
    /// A neighbour behind the subject in the order of Tab.
    void addNeighbourBehind();

    support::Recorder& recorder() { return *m_pRecorder; }

    /// Gives a widget, with all inside it, a name for the log.
    void name(QWidget* widget, const std::string& label);
    /// Who has the focus, by these names; "-" if nobody.
    std::string focus() const;
    QWidget* focusWidget() const; ///< Null if it is outside the place.

    static void settle();

    /// How many events have reached the widgets of subjects, from the beginning.
    std::uint64_t events() const { return m_events.all(); }

    /// For a change that hides, disables or destroys: where the focus goes then is the toolkit's
    /// choice, here it goes to the neighbour before.
    void withFocusRescued(const std::function<void()>& change);

private:
    bool isOwn(const QObject* widget) const;

    QWidget m_window;
    qt3::Pointer<QWidget> m_pPlace;
    QWidget* m_pBefore; ///< Outside the place, so that it stays visible and enabled.
    qt3::Pointer<QWidget> m_pBehind;
    std::vector<std::pair<qt3::Pointer<QWidget>, std::string>> m_vNames;
    std::unique_ptr<support::Recorder> m_pRecorder;
    EventCount m_events;
};

} // namespace differential

#endif
