#include "Field.h"

#include <CDoubleSpinBox.h>
#include <CRangeSliderSpinboxed.h>
#include <algorithm>
#include <cmath>
#include <qt3/Descendants.h>
#include <qt3/SpinBox.h>
#include <qt3/Text.h>
#include <qt3/WidgetFunctions.h>

namespace autodlg {

namespace {

const double c_dNoDecimals = 1e15;

QString suffixFor(const std::string& unit) {
    return unit.empty() ? QString() : qt3::fromAscii(' ' + unit);
}

class CIntegerField : public CFieldOf<qt3::SpinBox> {
public:
    CIntegerField(const StIntegerKind& kind, QWidget* parent, const char* name)
        : CFieldOf(new qt3::SpinBox(static_cast<int>(kind.min), static_cast<int>(kind.max),
                                    static_cast<int>(kind.step), parent, name)) {
        m_pEditor->setSuffix(suffixFor(kind.unit));
    }

protected:
    void show(const Value& value) override {
        m_pEditor->setValue(static_cast<int>(std::get<long>(value)));
    }

    QString shown() override { return QString::number(m_pEditor->value()); }
    Value edited() override { return static_cast<long>(m_pEditor->value()); }
};

/// A double spin box that shows a fixed number of decimals, if there is one.
///
/// What is typed with more decimals is rounded, so that the value is what shows. From 1e15 on, where a
/// double has no decimals, numbers show as without it.
class CNumberBox : public TEVU::CDoubleSpinBox {
public:
    CNumberBox(const StNumberKind& kind, QWidget* parent, const char* name)
        : TEVU::CDoubleSpinBox(kind.min, kind.max, kind.step, parent, name),
          m_nDecimals(kind.decimals) {
        setSuffix(suffixFor(kind.unit));
    }

    /// As of the base, but no wider than for a number of usual length: the limits may be far away.
    QSize sizeHint() const override {
        const QSize size = TEVU::CDoubleSpinBox::sizeHint();
        const int usual = qt3::textWidth(this, "-0000000000.00000" + suffix());
        return QSize(std::min(size.width(), usual + 2 * size.height()), size.height());
    }

protected:
    QString mapValueToText(double v) override {
        return showsDecimals(v) ? qt3::number(v, 'f', *m_nDecimals)
                                : TEVU::CDoubleSpinBox::mapValueToText(v);
    }

    double mapTextToValue(bool* ok) override {
        const double typed = TEVU::CDoubleSpinBox::mapTextToValue(ok);
        return showsDecimals(typed) ? qt3::toDouble(mapValueToText(typed)) : typed;
    }

private:
    bool showsDecimals(double value) const {
        return m_nDecimals && std::fabs(value) < c_dNoDecimals;
    }

    std::optional<int> m_nDecimals;
};

class CNumberField : public CFieldOf<CNumberBox> {
public:
    CNumberField(const StNumberKind& kind, QWidget* parent, const char* name)
        : CFieldOf(new CNumberBox(kind, parent, name)) {}

protected:
    void show(const Value& value) override { m_pEditor->setValue(std::get<double>(value)); }

    QString shown() override {
        m_pEditor->value(); // reads typed text
        return m_pEditor->text();
    }

    Value edited() override { return m_pEditor->value(); }
};

// Made with the whole range, because there slider and spin boxes agree from the beginning.
TEVU::CRangeSliderSpinboxed* createRange(const StRangeKind& kind, QWidget* parent,
                                         const char* name) {
    const int min = static_cast<int>(kind.min);
    const int max = static_cast<int>(kind.max);
    return new TEVU::CRangeSliderSpinboxed(Qt::Horizontal, false, min, max, min, max, parent, name);
}

class CRangeField : public CFieldOf<TEVU::CRangeSliderSpinboxed> {
public:
    explicit CRangeField(TEVU::CRangeSliderSpinboxed* range)
        : CFieldOf(range, qt3::child<qt3::SpinBox>(range)) {}

protected:
    void show(const Value& value) override {
        readTyped(); // else it would stay where the range does not change
        const auto& range = std::get<StRange>(value);
        m_pEditor->SlotSetRange(static_cast<int>(range.lower), static_cast<int>(range.upper));
    }

    QString shown() override {
        readTyped();
        return QString::number(m_pEditor->GetLower()) + " " +
               QString::number(m_pEditor->GetUpper());
    }

    Value edited() override { return StRange{m_pEditor->GetLower(), m_pEditor->GetUpper()}; }

private:
    void readTyped() {
        for (QObject* const object : qt3::descendants(m_pEditor)) {
            if (auto* const spinBox = dynamic_cast<qt3::SpinBox*>(object))
                spinBox->value();
        }
    }
};

} // namespace

FieldPointer createField(const StIntegerKind& kind, QWidget* parent, const char* name) {
    return std::make_unique<CIntegerField>(kind, parent, name);
}

FieldPointer createField(const StNumberKind& kind, QWidget* parent, const char* name) {
    return std::make_unique<CNumberField>(kind, parent, name);
}

FieldPointer createField(const StRangeKind& kind, QWidget* parent, const char* name) {
    return std::make_unique<CRangeField>(createRange(kind, parent, name));
}

} // namespace autodlg
