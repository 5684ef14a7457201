#include "RangeRules.h"

#include "Saturate.h"

#include <cmath>

namespace TEVU {

namespace {

long long count(const StInterval& range) {
    return static_cast<long long>(range.nUpper) - range.nLower + 1;
}

int lowerFor(int upper, int width) {
    return saturated(static_cast<long long>(upper) - width + 1);
}

int upperFor(int lower, int width) {
    return saturated(static_cast<long long>(lower) + width - 1);
}

long long span(const StInterval& bound) {
    return static_cast<long long>(bound.nUpper) - bound.nLower;
}

long long room(const StAxis& axis) {
    return static_cast<long long>(axis.nLength) - 2LL * axis.nHandle;
}

// Not a plain cast: that is undefined for what an int does not hold.
int truncated(float number, int ifNoNumber) {
    const float end = 2147483648.0f;
    if (std::isnan(number))
        return ifNoNumber;
    if (number >= end)
        return std::numeric_limits<int>::max();
    return number < -end ? std::numeric_limits<int>::min() : static_cast<int>(number);
}

} // namespace

int pixelOf(int value, const StInterval& bound, const StAxis& axis) {
    if (span(bound) == 0)
        return axis.nHandle;
    const long long offset = static_cast<long long>(value) - bound.nLower;
    return saturated(offset * room(axis) / span(bound) + axis.nHandle);
}

int valueAt(int pixel, const StInterval& bound, const StAxis& axis) {
    if (span(bound) == 0)
        return bound.nLower;
    const float pixelsPerValue = static_cast<float>(room(axis)) / static_cast<float>(span(bound));
    const float offset = static_cast<float>(static_cast<long long>(pixel) - axis.nHandle + 1);
    return truncated(offset / pixelsPerValue + static_cast<float>(bound.nLower), bound.nLower);
}

StInterval widened(const StInterval& range, const StInterval& bound) {
    if (range.nLower != bound.nLower && range.nUpper == bound.nUpper)
        return {saturated(range.nLower - 1LL), range.nUpper};
    return {range.nLower, saturated(range.nUpper + 1LL)};
}

StInterval withWidthRepaired(const StInterval& range, const StWidthLimits& limits, bool keepUpper) {
    StInterval repaired = range;
    if (count(repaired) > limits.nMaximum) {
        if (keepUpper)
            repaired.nLower = lowerFor(repaired.nUpper, limits.nMaximum);
        else
            repaired.nUpper = upperFor(repaired.nLower, limits.nMaximum);
    }
    if (count(repaired) < limits.nMinimum) {
        if (keepUpper)
            repaired.nUpper = upperFor(repaired.nLower, limits.nMinimum);
        else
            repaired.nLower = lowerFor(repaired.nUpper, limits.nMinimum);
    }
    return repaired;
}

StInterval withLowerRepaired(const StInterval& range, const StWidthLimits& limits) {
    StInterval repaired = range;
    if (count(repaired) > limits.nMaximum)
        repaired.nLower = lowerFor(repaired.nUpper, limits.nMaximum);
    if (count(repaired) < limits.nMinimum)
        repaired.nLower = lowerFor(repaired.nUpper, limits.nMinimum);
    return repaired;
}

StInterval withUpperRepaired(const StInterval& range, const StWidthLimits& limits) {
    StInterval repaired = range;
    if (count(repaired) > limits.nMaximum)
        repaired.nUpper = upperFor(repaired.nLower, limits.nMaximum);
    if (count(repaired) < limits.nMinimum)
        repaired.nUpper = upperFor(repaired.nLower, limits.nMinimum);
    return repaired;
}

int countOf(const StInterval& range) {
    return saturated(count(range));
}

} // namespace TEVU
