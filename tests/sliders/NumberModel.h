#ifndef RUQGUI_TESTS_SLIDERS_NUMBERMODEL_H
#define RUQGUI_TESTS_SLIDERS_NUMBERMODEL_H

#include <algorithm>
#include <functional>

/// A spin box or a plain slider, without a widget: a number in a range, announced when it really
/// changes.
class CNumberModel {
public:
    CNumberModel(int min, int max, int value)
        : m_nMin(min), m_nMax(max), m_nValue(std::clamp(value, min, max)) {}

    int value() const { return m_nValue; }

    void setValue(int value) {
        const int clamped = std::clamp(value, m_nMin, m_nMax);
        if (clamped == m_nValue)
            return;
        m_nValue = clamped;
        if (onValueChanged)
            onValueChanged(clamped);
    }

    void setMinValue(int min) {
        m_nMin = min;
        m_nMax = std::max(min, m_nMax);
        setValue(m_nValue);
    }

    void setMaxValue(int max) {
        m_nMax = max;
        m_nMin = std::min(m_nMin, max);
        setValue(m_nValue);
    }

    std::function<void(int)> onValueChanged;

private:
    int m_nMin;
    int m_nMax;
    int m_nValue;
};

#endif
