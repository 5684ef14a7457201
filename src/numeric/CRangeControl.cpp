#include "CRangeControl.h"

#include <algorithm>
#include <cmath>
#include <qglobal.h>
#include <qt3/Text.h>
#include <string>

namespace TEVU {

namespace {

// Not std::abs: a step of -0.0 is not below zero and stays as it is.
double withoutSign(double step) {
    return step < 0.0 ? -step : step;
}

// As "%lf" prints it. Not left to the warning itself: toolkits round ties differently.
std::string printed(double v) {
    const std::string text = qt3::ascii(qt3::number(v, 'f', 6));
    return v == 0.0 && std::signbit(v) ? '-' + text : text;
}

} // namespace

CRangeControl::CRangeControl()
    : m_dMinValue(0.0), m_dMaxValue(99.0), m_dLineStep(1.0), m_dPageStep(10.0), m_dValue(0.0),
      m_dPrevValue(-1.0), m_pPrivate(nullptr) {}

CRangeControl::CRangeControl(double minValue, double maxValue, double lineStep, double pageStep,
                             double value)
    : m_dMinValue(minValue), m_dMaxValue(maxValue), m_dLineStep(withoutSign(lineStep)),
      m_dPageStep(withoutSign(pageStep)), m_dValue(bound(value)), m_dPrevValue(minValue - 1.0),
      m_pPrivate(nullptr) {}

CRangeControl::CRangeControl(const CRangeControl& other) = default;
CRangeControl& CRangeControl::operator=(const CRangeControl& other) = default;
CRangeControl::~CRangeControl() = default;

double CRangeControl::value() const {
    return m_dValue;
}

double CRangeControl::minValue() const {
    return m_dMinValue;
}

double CRangeControl::maxValue() const {
    return m_dMaxValue;
}

double CRangeControl::lineStep() const {
    return m_dLineStep;
}

double CRangeControl::pageStep() const {
    return m_dPageStep;
}

// Not std::clamp: that leaves a reversed range undefined, here the minimum wins.
double CRangeControl::bound(double v) const {
    if (m_dMinValue > v)
        return m_dMinValue;
    if (v > m_dMaxValue)
        return m_dMaxValue;
    return v;
}

void CRangeControl::setValue(double v) {
    directSetValue(v);
    if (m_dValue != m_dPrevValue)
        valueChange();
}

void CRangeControl::addLine() {
    setValue(value() + lineStep());
}

void CRangeControl::subtractLine() {
    setValue(value() - lineStep());
}

void CRangeControl::addPage() {
    setValue(value() + pageStep());
}

void CRangeControl::subtractPage() {
    setValue(value() - pageStep());
}

void CRangeControl::setRange(double minValue, double maxValue) {
    if (minValue > maxValue) {
        qWarning("CRangeControl::setRange: minValue %s > maxValue %s", printed(minValue).c_str(),
                 printed(maxValue).c_str());
        maxValue = minValue;
    }
    if (minValue == m_dMinValue && maxValue == m_dMaxValue)
        return;
    m_dMinValue = minValue;
    m_dMaxValue = maxValue;

    // Clamped before the hook runs: a hook that sets the value does not change where it ends.
    const double clamped = bound(m_dValue);
    rangeChange();
    if (clamped != m_dValue) {
        m_dPrevValue = m_dValue;
        m_dValue = clamped;
        valueChange();
    }
}

void CRangeControl::setMinValue(double v) {
    setRange(v, std::max(maxValue(), v));
}

void CRangeControl::setMaxValue(double v) {
    setRange(std::min(minValue(), v), v);
}

void CRangeControl::setSteps(double lineStep, double pageStep) {
    if (lineStep == m_dLineStep && pageStep == m_dPageStep)
        return;
    m_dLineStep = withoutSign(lineStep);
    m_dPageStep = withoutSign(pageStep);
    stepChange();
}

double CRangeControl::prevValue() const {
    return m_dPrevValue;
}

void CRangeControl::directSetValue(double v) {
    m_dPrevValue = m_dValue;
    m_dValue = bound(v);
}

void CRangeControl::valueChange() {}

void CRangeControl::rangeChange() {}

void CRangeControl::stepChange() {}

} // namespace TEVU
