#ifndef RUQGUI_SLIDERS_RANGERULES_H
#define RUQGUI_SLIDERS_RANGERULES_H

namespace TEVU {

/// Both ends inclusive. Nothing says that the lower one is the smaller one.
struct StInterval {
    int nLower;
    int nUpper;
};

/// The allowed count of values in a range.
struct StWidthLimits {
    int nMinimum;
    int nMaximum;
};

/// The long axis of a slider, in pixels: handles of nHandle at both ends of a groove of nLength.
struct StAxis {
    int nLength;
    int nHandle;
};

/// The pixel where the bar begins (for the lower value) or ends (for the upper one). Whole numbers,
/// truncated toward zero. In a bound of a single value everything lies at the beginning.
int pixelOf(int value, const StInterval& bound, const StAxis& axis);

/// The value under a pixel, computed in single precision and truncated toward zero; beyond what an
/// int holds its end. In a bound of a single value it is that value. Where there is no room between
/// the handles it is one of the ends of int, or the minimum.
int valueAt(int pixel, const StInterval& bound, const StAxis& axis);

/// A range of a single value where that is forbidden, made one value wider: downward at the top of
/// the bound, upward everywhere else.
StInterval widened(const StInterval& range, const StInterval& bound);

/// Width repair that moves the lower end when too wide and the upper end when too narrow (keeping
/// the upper one), or the other way round.
StInterval withWidthRepaired(const StInterval& range, const StWidthLimits& limits, bool keepUpper);

/// Width repair that moves only the lower end, or only the upper one.
StInterval withLowerRepaired(const StInterval& range, const StWidthLimits& limits);
StInterval withUpperRepaired(const StInterval& range, const StWidthLimits& limits);

/// The count of values from the lower to the upper one; zero or less when they are reversed.
int countOf(const StInterval& range);

} // namespace TEVU

#endif
