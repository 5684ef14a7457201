#include "Differences.h"

namespace differential {

const std::vector<Difference>& differences() {
    static const std::vector<Difference> all = {
        {"Sizes that follow the style: hints, and the buttons of small spin boxes",
         "looks are the host's",
         "subjects have sizes for which both styles agree; hints are not logged"},
        {"Where a click lands in a text", "fonts are the host's", "no mouse in text fields"},
        {"Where the focus goes when its widget is hidden, disabled or destroyed",
         "each toolkit has its own search for another one",
         "it is given to the neighbour before the subject"},
        {"When a hidden widget hears of its new size: on Qt 3.3 at once, on Qt 6 when it is shown",
         "the delivery of events is the toolkit's", "hidden widgets are not resized"},
        {"A hide event for a widget that is hidden already comes on Qt 6 only",
         "the delivery of events is the toolkit's", "hidden widgets are not hidden"},
        {"An override of setEnabled() that is called through a plain pointer without an effect",
         "Qt 6 has no virtual setEnabled()", "it is called through the class"},
        {"Keys of editing: Shift with Delete and Insert, Control with letters",
         "they are the platform's", "not typed, but for pasting"},
        {"Repeats of a button held down", "they follow the clock", "timers stand still"},
    };
    return all;
}

} // namespace differential
