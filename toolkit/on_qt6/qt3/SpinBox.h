#ifndef RUQGUI_QT3_SPINBOX_H
#define RUQGUI_QT3_SPINBOX_H

#include <qt3/Bridged.h>

#include <qspinbox.h>

namespace qt3 {

/// QSpinBox with the Qt 3.3 members: it starts at its minimum, and typed text counts, and is
/// announced by valueChanged(int), when it is committed: by Return, by leaving the box, by a step, or
/// by asking for value().
class RUQGUI_EXPORT SpinBox : public Bridged<QSpinBox> {
public:
    explicit SpinBox(QWidget* parent = nullptr, const char* name = nullptr);
    SpinBox(int minValue, int maxValue, int step = 1, QWidget* parent = nullptr,
            const char* name = nullptr);
    ~SpinBox() override;

    /// Commits typed text first, which may emit valueChanged(int).
    int value() const;

    int minValue() const { return minimum(); }
    int maxValue() const { return maximum(); }
    int lineStep() const { return singleStep(); }

    /// Moves the other end of the range if it has to. A value outside is clamped and announced.
    void setMinValue(int minValue) { setMinimum(minValue); }
    void setMaxValue(int maxValue) { setMaximum(maxValue); }

    /// The absolute value counts.
    void setLineStep(int step);

    /// Commits typed text first, with an announcement of its own.
    void stepBy(int steps) override;

    /// Acceptable is a number of the range; Intermediate one that further digits may bring into it, and
    /// what may become a number; Invalid all else. Prefix, suffix and blanks around a number do not count.
    QValidator::State validate(QString& input, int& position) const override;

    /// A number outside the range is clamped when it is committed; what is no number gives way to the
    /// value in force.
    void fixup(QString& input) const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace qt3

#endif
