#ifndef RUQGUI_SLIDERS_SLIDERMAPPING_H
#define RUQGUI_SLIDERS_SLIDERMAPPING_H

namespace TEVU {

/// Between the user's values in [nMin, nMax] and the offsets of a range slider on [0, nMax - nMin].
/// Mirrored, the greatest value has the offset 0, so that the lower offset is the upper value.
struct StOffsetMapping {
    int nMin;
    int nMax;
    bool bMirrored;

    int ToOffset(int value) const;
    int ToValue(int offset) const;
};

/// The position on a slider for a value in [min, max], and the value for a position: mirrored at the
/// middle, or the same.
int mirroredIf(bool mirrored, int value, int min, int max);

} // namespace TEVU

#endif
