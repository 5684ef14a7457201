#include <qt3/SpinBox.h>

#include <cstdlib>

namespace qt3 {

SpinBox::SpinBox(QWidget* parent, const char* name) : Bridged<QSpinBox>(name, parent) {
    setKeyboardTracking(false);
}

SpinBox::SpinBox(int minValue, int maxValue, int step, QWidget* parent, const char* name)
    : SpinBox(parent, name) {
    setRange(minValue, maxValue);
    setLineStep(step);
    QSpinBox::setValue(minValue);
}

SpinBox::~SpinBox() = default;

int SpinBox::value() const {
    const_cast<SpinBox*>(this)->interpretText(); // const to callers, as on Qt 3.3
    return QSpinBox::value();
}

void SpinBox::setLineStep(int step) {
    setSingleStep(std::abs(step));
}

void SpinBox::stepBy(int steps) {
    interpretText();
    Bridged<QSpinBox>::stepBy(steps);
}

} // namespace qt3
