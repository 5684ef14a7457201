#include "RangeSliderModel.h"

#include "Wording.h"

#include <algorithm>

CRangeSliderModel::CRangeSliderModel(int lower, int upper, int min, int max, int length)
    : m_nLower(lower), m_nUpper(upper), m_nMin(min), m_nMax(max), m_nLength(length),
      m_nGreatest(max - min + 1) {
    if (m_nMin == m_nMax)
        m_nMax = m_nMin + 1;
    m_nUpper = std::min(m_nUpper, m_nMax);
    m_nLower = std::max(m_nLower, m_nMin);
    Render();
}

void CRangeSliderModel::EnableNullRange(bool enable) {
    m_bNullRange = enable;
    SetRange(m_nLower, m_nUpper);
}

void CRangeSliderModel::SetRange(int lower, int upper) {
    bool lowerChanged = lower != m_nLower;
    bool upperChanged = upper != m_nUpper;
    if (m_bNullRange || lower != upper) {
        if (!lowerChanged && !upperChanged)
            return;
    } else if (lower != m_nMin && upper == m_nMax) {
        --lower;
        lowerChanged = true;
    } else {
        ++upper;
        upperChanged = true;
    }
    m_nLower = std::max(lower, m_nMin);
    m_nUpper = std::min(m_nMax, upper);
    if (Count() > m_nGreatest)
        m_nLower = m_nUpper - m_nGreatest + 1;
    if (Count() < m_nLeast)
        m_nUpper = m_nLower + m_nLeast - 1;
    Announce(lowerChanged, upperChanged);
}

void CRangeSliderModel::SetBound(int min, int max) {
    m_nGreatest = max - min + 1;
    m_nMin = min;
    m_nMax = std::max(min, max);
    const bool upperChanged = m_nUpper > m_nMax;
    const bool lowerChanged = m_nLower < m_nMin;
    m_nUpper = std::min(m_nUpper, m_nMax);
    m_nLower = std::max(m_nLower, m_nMin);
    if (onRangeChange)
        onRangeChange();
    if (lowerChanged || upperChanged)
        Announce(lowerChanged, upperChanged);
    else
        Redraw();
}

void CRangeSliderModel::SetLower(int lower) {
    if (lower == m_nLower)
        return;
    if (lower < m_nMin)
        m_nLower = m_nMin;
    else if (lower >= m_nUpper)
        m_nLower = m_bNullRange ? m_nUpper : m_nUpper - 1;
    else
        m_nLower = lower;
    if (Count() > m_nGreatest)
        m_nLower = m_nUpper - m_nGreatest + 1;
    if (Count() < m_nLeast)
        m_nLower = m_nUpper - m_nLeast + 1;
    Announce(true, false);
}

void CRangeSliderModel::SetUpper(int upper) {
    if (upper == m_nUpper)
        return;
    if (upper > m_nMax)
        m_nUpper = m_nMax;
    else if (upper <= m_nLower)
        m_nUpper = m_bNullRange ? m_nLower : m_nLower + 1;
    else
        m_nUpper = upper;
    if (Count() > m_nGreatest)
        m_nUpper = m_nLower + m_nGreatest - 1;
    if (Count() < m_nLeast)
        m_nUpper = m_nLower + m_nLeast - 1;
    Announce(false, true);
}

void CRangeSliderModel::Move(int distance) {
    if (distance == 0)
        return;
    if (m_nUpper + distance <= m_nMax && m_nLower + distance >= m_nMin) {
        m_nLower += distance;
        m_nUpper += distance;
    }
    Announce(true, true);
}

void CRangeSliderModel::Press(int along, int across) {
    const EnGrab element = At(along, across);
    if (element != eNothing) {
        m_eGrab = element;
        m_nGrabOffset = along - m_nLowerPixel;
        if (element == eUpperHandle)
            m_nGrabOffset -= m_nBarPixels;
    }
    Redraw();
}

void CRangeSliderModel::Drag(int along) {
    if (m_eGrab == eNothing)
        return;
    int value = m_nMin;
    if (m_nMin != m_nMax) {
        const float scale =
            static_cast<float>(m_nLength - 2 * m_nHandle) / static_cast<float>(m_nMax - m_nMin);
        const float steps = static_cast<float>(along - m_nGrabOffset - m_nHandle + 1) / scale;
        const float sum = steps + static_cast<float>(m_nMin);
        value = static_cast<int>(sum);
    }
    if (m_eGrab == eLowerHandle)
        SetLower(value);
    else if (m_eGrab == eUpperHandle)
        SetUpper(value);
    else
        Move(value - m_nLower);
}

void CRangeSliderModel::Release(int along) {
    if (m_eGrab == eNothing)
        return;
    Drag(along);
    m_eGrab = eNothing;
    Redraw();
}

CRangeSliderModel::EnGrab CRangeSliderModel::At(int along, int across) const {
    if (across < 0 || across >= m_nHandle)
        return eNothing;
    const int upperPixel = m_nLowerPixel + m_nBarPixels;
    if (along >= m_nLowerPixel && along < upperPixel)
        return eBar;
    if (along >= m_nLowerPixel - m_nHandle && along < m_nLowerPixel)
        return eLowerHandle;
    if (along >= upperPixel && along < upperPixel + m_nHandle)
        return eUpperHandle;
    return eNothing;
}

int CRangeSliderModel::PixelOf(int value) const {
    if (m_nMin == m_nMax)
        return m_nHandle;
    return (value - m_nMin) * (m_nLength - 2 * m_nHandle) / (m_nMax - m_nMin) + m_nHandle;
}

std::string CRangeSliderModel::State() const {
    return std::to_string(m_nLower) + ".." + std::to_string(m_nUpper) + " in " +
           std::to_string(m_nMin) + ".." + std::to_string(m_nMax);
}

void CRangeSliderModel::TellTo(std::vector<std::string>* lines, bool repaintings) {
    const auto tell = [lines](const std::string& line) { lines->push_back(line); };
    onValueChange = [=] { tell("ValueChange with " + State()); };
    onRangeChange = [=] { tell("RangeChange with " + State()); };
    onValueChanged = [=](int lower, int upper) { tell(call("slider.ValueChanged", lower, upper)); };
    onLowerChanged = [=](int lower) { tell(call("slider.LowerChanged", lower)); };
    onUpperChanged = [=](int upper) { tell(call("slider.UpperChanged", upper)); };
    if (repaintings)
        onRepaint = [=] { tell("paint"); };
}

void CRangeSliderModel::Announce(bool lowerChanged, bool upperChanged) {
    if (onValueChange)
        onValueChange();
    if (onValueChanged)
        onValueChanged(m_nLower, m_nUpper);
    if (lowerChanged && onLowerChanged)
        onLowerChanged(m_nLower);
    if (upperChanged && onUpperChanged)
        onUpperChanged(m_nUpper);
    Redraw();
}

void CRangeSliderModel::Render() {
    m_nLowerPixel = PixelOf(m_nLower);
    m_nBarPixels = PixelOf(m_nUpper) - m_nLowerPixel;
}

void CRangeSliderModel::Redraw() {
    Render();
    if (onRepaint)
        onRepaint();
}
