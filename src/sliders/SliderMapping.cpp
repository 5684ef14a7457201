#include "SliderMapping.h"

#include "Saturate.h"

namespace TEVU {

int StOffsetMapping::ToOffset(int value) const {
    return bMirrored ? saturated(static_cast<long long>(nMax) - value)
                     : saturated(static_cast<long long>(value) - nMin);
}

int StOffsetMapping::ToValue(int offset) const {
    return bMirrored ? saturated(static_cast<long long>(nMax) - offset)
                     : saturated(static_cast<long long>(nMin) + offset);
}

int mirroredIf(bool mirrored, int value, int min, int max) {
    return mirrored ? saturated(static_cast<long long>(min) + max - value) : value;
}

} // namespace TEVU
