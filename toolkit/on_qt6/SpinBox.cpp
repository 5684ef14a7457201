#include <qt3/SpinBox.h>

#include <qt3/LineEdit.h>

#include <qevent.h>
#include <qlineedit.h>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace qt3 {

namespace {

/// What stands between prefix and suffix, which the toolkit adds where they are missing.
QString numberIn(const QSpinBox& box, const QString& text) {
    const QString prefix = box.prefix();
    const QString suffix = box.suffix();
    QString number = text;
    if (number.startsWith(prefix))
        number.remove(0, prefix.size());
    if (number.endsWith(suffix))
        number.chop(suffix.size());
    return number.trimmed();
}

} // namespace

SpinBox::SpinBox(QWidget* parent, const char* name) : Bridged<QSpinBox>(name, parent) {
    setKeyboardTracking(false);
    setLineEdit(new LineEdit(this, "qt_spinbox_lineedit")); // for what it does to refused keys
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
    const QString typed = lineEdit()->text();
    const int least = -std::numeric_limits<int>::max(); // the one below has no positive counterpart
    setSingleStep(std::abs(std::max(step, least)));
    if (lineEdit()->text() != typed)
        lineEdit()->setText(typed); // it goes on waiting
}

void SpinBox::stepBy(int steps) {
    interpretText();
    Bridged<QSpinBox>::stepBy(steps);
}

QValidator::State SpinBox::validate(QString& input, int&) const {
    const QString text = numberIn(*this, input);
    if (text.isEmpty() || (minimum() < 0 && text == QLatin1String("-")))
        return QValidator::Intermediate;
    bool bNumber = false;
    const int number = text.toInt(&bNumber);
    if (!bNumber || (number < 0 && minimum() >= 0))
        return QValidator::Invalid;
    if (number >= minimum() && number <= maximum())
        return QValidator::Acceptable;
    const bool bTooFar = number >= 0 ? number > maximum() : number < minimum();
    return bTooFar ? QValidator::Invalid : QValidator::Intermediate;
}

// What Qt 3.3 does with a number outside the range that may yet become one inside, such as a 1 below a
// minimum of 7. The toolkit itself would go back to the value before.
void SpinBox::fixup(QString& input) const {
    bool bNumber = false;
    const int number = numberIn(*this, input).toInt(&bNumber);
    if (bNumber)
        input = textFromValue(qBound(minimum(), number, maximum()));
}

// Before a step by key or wheel typed text is committed, even if no step would be possible from the
// value before.
void SpinBox::keyPressEvent(QKeyEvent* event) {
    QLineEdit* const editor = lineEdit();
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)
        interpretText();
    // The toolkit selects all from the end to the start. Where a refused key drops the selection, the
    // next one shall be appended.
    else if (!event->text().isEmpty() && editor->selectedText() == editor->text())
        editor->selectAll();
    Bridged<QSpinBox>::keyPressEvent(event);
}

void SpinBox::wheelEvent(QWheelEvent* event) {
    interpretText();
    Bridged<QSpinBox>::wheelEvent(event);
}

} // namespace qt3
