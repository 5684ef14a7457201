#ifndef RUQGUI_QT3_WHEELSTEPS_H
#define RUQGUI_QT3_WHEELSTEPS_H

#include <qt3/Export.h>

namespace qt3 {

/// Counts the steps that wheel events make, one a notch, for all widgets that share it.
/// \code
/// static qt3::WheelSteps wheel; // one for the whole process
/// const int steps = wheel.take(this, qt3::delta(event));
/// \endcode
///
/// What is left of a step waits for the next event of the same widget; an event of another widget
/// drops it. An event of less than a whole notch adds nothing.
class RUQGUI_EXPORT WheelSteps {
public:
    /// The steps to make now: positive is up, negative is down.
    /// \param owner the widget that got the event; it is compared, never dereferenced
    /// \param delta 120 for a notch away from the user
    int take(const void* owner, int delta);

private:
    const void* m_pOwner = nullptr;
    float m_fNotches = 0.0f;
};

} // namespace qt3

#endif
