#ifndef RUQGUI_TESTS_SUPPORT_RECORDER_H
#define RUQGUI_TESTS_SUPPORT_RECORDER_H

#include <qt3/SignalTap.h>
#include <string>
#include <vector>

class QObject;

namespace support {

using Lines = std::vector<std::string>;

/// One ordered log of signals and calls, to be compared as a whole.
/// \code
/// support::Recorder recorder;
/// recorder.tapAll(&slider, "slider");
/// slider.SlotSetLower(5);
/// EXPECT_EQ(recorder.take(), (support::Lines{"slider.SignalValueChanged(5, 100)"}));
/// \endcode
/// How arguments are written: see qt3::SignalTap. Make it after the objects that it listens to.
class Recorder {
public:
    /// Records every signal that the object's own class declares, as "label.signal(arguments)".
    void tapAll(QObject* sender, const std::string& label);

    /// Records one signal, also an inherited one, by its signature such as "clicked()". Fails the
    /// test if there is no such signal.
    void tap(QObject* sender, const char* signal, const std::string& label);

    /// Adds a line: for hooks and calls.
    void add(const std::string& line);

    /// The lines since the last call.
    Lines take();

private:
    Lines m_vLines;
    qt3::SignalTap m_tap;
};

} // namespace support

#endif
