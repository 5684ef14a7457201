#ifndef RUQGUI_TESTS_DIFFERENTIAL_SUBJECTS_H
#define RUQGUI_TESTS_DIFFERENTIAL_SUBJECTS_H

#include "../Subject.h"

#include <memory>
#include <string>
#include <vector>

namespace differential {

std::unique_ptr<Subject> rangeControl(Stage& stage, const Taste& taste);
std::unique_ptr<Subject> doubleSpinBox(Stage& stage, const Taste& taste);
std::unique_ptr<Subject> doubleLineEdit(Stage& stage, const Taste& taste);
std::unique_ptr<Subject> rangeSlider(Stage& stage, const Taste& taste);
std::unique_ptr<Subject> rangeSliderSpinboxed(Stage& stage, const Taste& taste);
std::unique_ptr<Subject> spinboxSlider(Stage& stage, const Taste& taste);
std::unique_ptr<Subject> colorPushButton(Stage& stage, const Taste& taste);
std::unique_ptr<Subject> noNewLinesTextEdit(Stage& stage, const Taste& taste);
std::unique_ptr<Subject> fileDialog(Stage& stage, const Taste& taste);
std::unique_ptr<Subject> fileLineWidget(Stage& stage, const Taste& taste);
std::unique_ptr<Subject> headerFields(Stage& stage, const Taste& taste);
std::unique_ptr<Subject> fileVersion(Stage& stage, const Taste& taste);
std::unique_ptr<Subject> autoDialog(Stage& stage, const Taste& taste);

struct SubjectKind {
    std::string className;
    std::unique_ptr<Subject> (*make)(Stage& stage, const Taste& taste);
};

/// In the order in which they are run.
const std::vector<SubjectKind>& subjectKinds();

} // namespace differential

#endif
