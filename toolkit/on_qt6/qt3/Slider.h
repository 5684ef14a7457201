#ifndef RUQGUI_QT3_SLIDER_H
#define RUQGUI_QT3_SLIDER_H

#include <qt3/Bridged.h>

#include <qslider.h>

namespace qt3 {

/// QSlider with the Qt 3.3 members. A vertical one has its minimum at the top, and keys and wheel move
/// the handle the way they point.
class RUQGUI_EXPORT Slider : public Bridged<QSlider> {
public:
    explicit Slider(Qt::Orientation orientation, QWidget* parent = nullptr,
                    const char* name = nullptr);
    Slider(int minValue, int maxValue, int pageStep, int value, Qt::Orientation orientation,
           QWidget* parent = nullptr, const char* name = nullptr);
    ~Slider() override;

    int minValue() const { return minimum(); }
    int maxValue() const { return maximum(); }
    int lineStep() const { return singleStep(); }

    /// Moves the other end of the range if it has to. A value outside is clamped and announced.
    void setMinValue(int minValue) { setMinimum(minValue); }
    void setMaxValue(int maxValue) { setMaximum(maxValue); }
    void setLineStep(int step) { setSingleStep(step); }
};

} // namespace qt3

#endif
