#ifndef RUQGUI_CRANGECONTROL_H
#define RUQGUI_CRANGECONTROL_H

#include <qt3/Export.h>

namespace TEVU {

struct StRangeControlPrivate;

/// A bounded floating-point value with a line step and a page step: the model behind a spin box.
///
/// Use it as a second base of a widget that edits one number; override the hooks to follow the
/// changes. It is not a QObject and emits no signals. Nothing is rounded and nothing snaps to a step.
/// \code
/// class Dial : public qt3::Widget, public TEVU::CRangeControl {
/// protected:
///     void valueChange() override { update(); }
/// };
/// \endcode
///
/// Invariants:
/// 1. After every operation that sets the value, value() == bound(value()) for the range in force.
/// 2. minValue() <= maxValue(), unless the five-argument constructor was given a reversed range.
/// 3. lineStep() and pageStep() are not negative.
///
/// GUI thread only. Copies take over all members and call no hook.
class RUQGUI_EXPORT CRangeControl {
public:
    /// Range [0, 99], steps 1 and 10, value 0, previous value -1. Calls no hook.
    CRangeControl();

    /// The range as given, even when reversed; the absolute values of the steps; \a value clamped by
    /// bound(); previous value \a minValue - 1. Calls no hook and reports no warning.
    CRangeControl(double minValue, double maxValue, double lineStep, double pageStep, double value);

    CRangeControl(const CRangeControl& other);
    CRangeControl& operator=(const CRangeControl& other);
    virtual ~CRangeControl();

    double value() const;
    double minValue() const;
    double maxValue() const;
    double lineStep() const; ///< One arrow click or wheel notch.
    double pageStep() const; ///< The large step.

    /// \a v clamped into the range. The minimum is tested first, so that in a reversed range a value
    /// below the minimum yields the minimum. NaN passes through unchanged.
    double bound(double v) const;

    /// Keeps the current value as the previous one, always, then stores bound(\a v). Calls
    /// valueChange() once if the value differs from before (NaN differs from everything).
    void setValue(double v);

    void addLine();      ///< setValue(value() + lineStep()): stops at the maximum, never wraps.
    void subtractLine(); ///< setValue(value() - lineStep()): stops at the minimum, never wraps.
    void addPage();      ///< setValue(value() + pageStep()): stops at the maximum, never wraps.
    void subtractPage(); ///< setValue(value() - pageStep()): stops at the minimum, never wraps.

    /// Sets the range. A reversed range is reported with qWarning and collapses to \a minValue.
    /// Does nothing for the range in force. Otherwise clamps the value, calls rangeChange(), and then
    /// stores the clamped value and calls valueChange() if that differs from the value in force: one
    /// that rangeChange() has set does not last.
    void setRange(double minValue, double maxValue);

    void setMinValue(double v); ///< setRange() with the maximum raised to \a v if it lies below.
    void setMaxValue(double v); ///< setRange() with the minimum lowered to \a v if it lies above.

    /// Stores the absolute values and calls stepChange(). Does nothing if both arguments, with their
    /// signs, equal the steps in force: a negated current step is announced although it changes nothing.
    void setSteps(double lineStep, double pageStep);

protected:
    /// The value before the last operation that set the value, even if that changed nothing.
    double prevValue() const;

    /// setValue() without the hook.
    void directSetValue(double v);

    virtual void valueChange(); ///< Called after the value has changed; empty here.
    virtual void
    rangeChange(); ///< Called after the range has changed, before valueChange(); empty here.
    virtual void stepChange(); ///< Called after the steps have been set; empty here.

private:
    double m_dMinValue;
    double m_dMaxValue;
    double m_dLineStep;
    double m_dPageStep;
    double m_dValue;
    double m_dPrevValue;
    StRangeControlPrivate* m_pPrivate; ///< Reserved for later extension; always null.
};

} // namespace TEVU

#endif
