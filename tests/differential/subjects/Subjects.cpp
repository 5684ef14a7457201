#include "Subjects.h"

namespace differential {

const std::vector<SubjectKind>& subjectKinds() {
    static const std::vector<SubjectKind> kinds = {
        {"CRangeControl", rangeControl},
        {"CDoubleSpinBox", doubleSpinBox},
        {"CDoubleLineEdit", doubleLineEdit},
        {"CRangeSlider", rangeSlider},
        {"CRangeSliderSpinboxed", rangeSliderSpinboxed},
        {"CSpinboxSlider", spinboxSlider},
        {"CFileDialog", fileDialog},
        {"CFileLineWidget", fileLineWidget},
        {"CHeaderFieldsWidget", headerFields},
        {"CValueMapFileVersionHandling", fileVersion},
        {"CAutoDialogPluginWrapper", autoDialog},
        {"CColorPushButton", colorPushButton},
        {"CNoNewLinesTextEdit", noNewLinesTextEdit},
    };
    return kinds;
}

} // namespace differential
