#include "NumberFields.h"

#include <algorithm>
#include <cmath>
#include <qt3/Descendants.h>
#include <qt3/Text.h>
#include <qt3/WidgetFunctions.h>

namespace autodlg {

namespace {

const double c_dNoDecimals = 1e15;

QString suffixFor(const std::string& unit) {
    return unit.empty() ? QString() : qt3::fromAscii(' ' + unit);
}

} // namespace

CIntegerField::CIntegerField(const StIntegerKind& kind, QWidget* parent, const char* name)
    : m_pSpinBox(new qt3::SpinBox(static_cast<int>(kind.min), static_cast<int>(kind.max),
                                  static_cast<int>(kind.step), parent, name)) {
    m_pSpinBox->setSuffix(suffixFor(kind.unit));
}

QWidget* CIntegerField::widget() const {
    return m_pSpinBox;
}

void CIntegerField::show(const Value& value) {
    m_pSpinBox->setValue(static_cast<int>(std::get<long>(value)));
}

QString CIntegerField::shown() {
    return QString::number(m_pSpinBox->value());
}

Value CIntegerField::edited() {
    return static_cast<long>(m_pSpinBox->value());
}

CNumberBox::CNumberBox(const StNumberKind& kind, QWidget* parent, const char* name)
    : TEVU::CDoubleSpinBox(kind.min, kind.max, kind.step, parent, name),
      m_nDecimals(kind.decimals) {
    setSuffix(suffixFor(kind.unit));
}

QSize CNumberBox::sizeHint() const {
    const QSize size = TEVU::CDoubleSpinBox::sizeHint();
    const int usual = qt3::textWidth(this, "-0000000000.00000" + suffix());
    return QSize(std::min(size.width(), usual + 2 * size.height()), size.height());
}

bool CNumberBox::showsDecimals(double value) const {
    return m_nDecimals && std::fabs(value) < c_dNoDecimals;
}

QString CNumberBox::mapValueToText(double v) {
    return showsDecimals(v) ? qt3::number(v, 'f', *m_nDecimals)
                            : TEVU::CDoubleSpinBox::mapValueToText(v);
}

double CNumberBox::mapTextToValue(bool* ok) {
    const double typed = TEVU::CDoubleSpinBox::mapTextToValue(ok);
    return showsDecimals(typed) ? qt3::toDouble(mapValueToText(typed)) : typed;
}

CNumberField::CNumberField(const StNumberKind& kind, QWidget* parent, const char* name)
    : m_pBox(new CNumberBox(kind, parent, name)) {}

QWidget* CNumberField::widget() const {
    return m_pBox;
}

void CNumberField::show(const Value& value) {
    m_pBox->setValue(std::get<double>(value));
}

QString CNumberField::shown() {
    m_pBox->value(); // reads typed text
    return m_pBox->text();
}

Value CNumberField::edited() {
    return m_pBox->value();
}

// Made with the whole range, because there slider and spin boxes agree from the beginning.
CRangeField::CRangeField(const StRangeKind& kind, QWidget* parent, const char* name)
    : m_pRange(new TEVU::CRangeSliderSpinboxed(
          Qt::Horizontal, false, static_cast<int>(kind.min), static_cast<int>(kind.max),
          static_cast<int>(kind.min), static_cast<int>(kind.max), parent, name)) {}

QWidget* CRangeField::widget() const {
    return m_pRange;
}

QWidget* CRangeField::focusTarget() const {
    return qt3::child<qt3::SpinBox>(m_pRange);
}

void CRangeField::show(const Value& value) {
    const auto& range = std::get<StRange>(value);
    m_pRange->SlotSetRange(static_cast<int>(range.lower), static_cast<int>(range.upper));
}

QString CRangeField::shown() {
    for (QObject* const object : qt3::descendants(m_pRange)) {
        if (auto* const spinBox = dynamic_cast<qt3::SpinBox*>(object))
            spinBox->value(); // reads typed text
    }
    return QString::number(m_pRange->GetLower()) + " " + QString::number(m_pRange->GetUpper());
}

Value CRangeField::edited() {
    return StRange{m_pRange->GetLower(), m_pRange->GetUpper()};
}

} // namespace autodlg
