#include "Differences.h"

namespace differential {

const std::vector<Difference>& differences() {
    static const std::vector<Difference> all = {
        {"Sizes that follow the style: hints, and the buttons of small spin boxes",
         "looks are the host's",
         "subjects have sizes for which both styles agree; hints are not logged"},
        {"Where a click, Up and Down go in a text", "fonts are the host's",
         "no mouse in text fields"},
        {"Which hidden or disabled widgets can be given the focus, and where it goes when its "
         "widget is hidden, disabled or destroyed",
         "each toolkit has its own search for another one",
         "it is given to visible enabled ones only, and then to the neighbour before the subject"},
        {"When a hidden widget hears of its new size: on Qt 3.3 at once, on Qt 6 when it is shown",
         "the delivery of events is the toolkit's", "hidden widgets are not resized"},
        {"A hide event for a widget that is hidden already comes on Qt 6 only",
         "the delivery of events is the toolkit's", "hidden widgets are not hidden"},
        {"An override of setEnabled() that is called through a plain pointer without an effect",
         "Qt 6 has no virtual setEnabled()", "it is called through the class"},
        {"Keys of editing: Insert, Shift with Delete, Control with letters",
         "they are the platform's", "not typed, but for pasting"},
        {"The signal of an empty text set into an empty field",
         "Qt 3.3 tells null from empty; nothing listens for it", "not done"},
        {"Cursor and selection in the toolkit's own spin boxes, and their keys Page Up and Page "
         "Down",
         "feel of the host's control", "not logged, not typed; typing begins with all selected"},
        {"Parts and multiples of a notch of the wheel over the toolkit's own controls",
         "feel of the host's control", "single notches only"},
        {"Text that waits in the toolkit's own spin box while its range changes",
         "Qt 3.3 announces the number and takes it back at once, which serves nobody",
         "it is committed before"},
        {"Keys across a plain slider, and clicks beside its handle", "feel of the host's control",
         "not done; keys along it and drags of the handle are"},
        {"A push button that hears of other buttons or keys, or is disabled or hidden, while it is "
         "held",
         "feel of the host's control", "not done"},
        {"Which moves of a slider's handle are told while dragging",
         "Qt 3.3 compares with the value dragged to last, Qt 6 with the present one",
         "SignalSliderMoved is not logged"},
        {"Carriage returns and line separators in a text set into a text edit",
         "documents of Qt 6 hold line breaks in one form only", "pasted, but not set"},
        {"The cursor in a text edit where all is selected", "feel of the host's control",
         "not done"},
        {"Where Left and Right go in a text edit with a selection",
         "feel of the host's control: Qt 3.3 goes on from the cursor, Qt 6 to the selection's end",
         "not typed there"},
        {"What comes of a selection of nothing in a text edit, made by Shift with a key where the "
         "cursor "
         "cannot go",
         "Qt 3.3 keeps it, and spoils the next paste with it", "Shift is not held with such keys"},
        {"Text pasted or typed into a hidden text edit",
         "the plain one of Qt 3.3 crashes when it is shown after its paragraphs have gone",
         "done while it is visible only"},
        {"The signal of a text edit for an edit that changes nothing",
         "Qt 3.3 tells of some, Qt 6 of none", "the texts are compared, not the signals"},
        {"Repeats of a button held down", "they follow the clock", "timers stand still"},
    };
    return all;
}

} // namespace differential
