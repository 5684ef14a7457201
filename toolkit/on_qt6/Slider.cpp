#include <qt3/Slider.h>

namespace qt3 {

Slider::Slider(Qt::Orientation orientation, QWidget* parent, const char* name)
    : Bridged<QSlider>(name, orientation, parent) {
    setInvertedAppearance(orientation == Qt::Vertical);
    setInvertedControls(orientation == Qt::Vertical);
}

Slider::Slider(int minValue, int maxValue, int pageStep, int value, Qt::Orientation orientation,
               QWidget* parent, const char* name)
    : Slider(orientation, parent, name) {
    setRange(minValue, maxValue);
    setPageStep(pageStep);
    setValue(value);
}

Slider::~Slider() = default;

} // namespace qt3
