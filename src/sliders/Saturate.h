#ifndef RUQGUI_SLIDERS_SATURATE_H
#define RUQGUI_SLIDERS_SATURATE_H

#include <algorithm>
#include <limits>

namespace TEVU {

/// A number computed in a wider type, as an int: beyond the ends of int the end. So differences and
/// shifts of extreme values have a defined answer, and all others the one of int arithmetic.
inline int saturated(long long number) {
    return static_cast<int>(std::clamp<long long>(number, std::numeric_limits<int>::min(),
                                                  std::numeric_limits<int>::max()));
}

} // namespace TEVU

#endif
