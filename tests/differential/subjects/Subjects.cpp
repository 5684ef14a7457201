#include "Subjects.h"

namespace differential {

const std::vector<SubjectKind>& subjectKinds() {
    static const std::vector<SubjectKind> kinds = {
        {"CRangeControl", rangeControl},
        {"CDoubleSpinBox", doubleSpinBox},
    };
    return kinds;
}

} // namespace differential
