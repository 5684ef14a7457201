#ifndef RUQGUI_HEADER_SPACING_H
#define RUQGUI_HEADER_SPACING_H

#include <string>

namespace TEVU {

/// The distance of neighbouring pixels along the three axes, in metres.
struct StSpacing {
    double dX;
    double dY;
    double dZ;
};

/// Whether two distances differ by more than the double epsilon.
bool differ(double a, double b);

/// "(x,y,z)" with six significant digits, with as many parts as the image has dimensions.
std::string spacingText(const StSpacing& spacing, unsigned int dimension);

/// "ChangeSpacing((x,y,z)->(x,y,z))": what the history says of a new spacing.
std::string spacingChangeEntry(const StSpacing& before, const StSpacing& after,
                               unsigned int dimension);

} // namespace TEVU

#endif
