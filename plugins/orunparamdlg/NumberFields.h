#ifndef RUQGUI_ORUNPARAMDLG_NUMBERFIELDS_H
#define RUQGUI_ORUNPARAMDLG_NUMBERFIELDS_H

#include "Field.h"

#include <CDoubleSpinBox.h>
#include <CRangeSliderSpinboxed.h>
#include <qt3/SpinBox.h>

namespace autodlg {

class CIntegerField : public CField {
public:
    CIntegerField(const StIntegerKind& kind, QWidget* parent, const char* name);
    QWidget* widget() const override;

protected:
    void show(const Value& value) override;
    QString shown() override;
    Value edited() override;

private:
    qt3::SpinBox* m_pSpinBox;
};

/// A double spin box that shows a fixed number of decimals, if there is one.
///
/// What is typed with more decimals is rounded, so that the value is what shows. From 1e15 on, where a
/// double has no decimals, numbers show as without it.
class CNumberBox : public TEVU::CDoubleSpinBox {
public:
    CNumberBox(const StNumberKind& kind, QWidget* parent, const char* name);

    /// As of the base, but no wider than for a number of usual length: the limits may be far away.
    QSize sizeHint() const override;

protected:
    QString mapValueToText(double v) override;
    double mapTextToValue(bool* ok) override;

private:
    bool showsDecimals(double value) const;

    std::optional<int> m_nDecimals;
};

class CNumberField : public CField {
public:
    CNumberField(const StNumberKind& kind, QWidget* parent, const char* name);
    QWidget* widget() const override;

protected:
    void show(const Value& value) override;
    QString shown() override;
    Value edited() override;

private:
    CNumberBox* m_pBox;
};

class CRangeField : public CField {
public:
    CRangeField(const StRangeKind& kind, QWidget* parent, const char* name);
    QWidget* widget() const override;
    QWidget* focusTarget() const override;

protected:
    void show(const Value& value) override;
    QString shown() override;
    Value edited() override;

private:
    TEVU::CRangeSliderSpinboxed* m_pRange;
};

} // namespace autodlg

#endif
