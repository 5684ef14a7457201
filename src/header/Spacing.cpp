#include "Spacing.h"

#include <cmath>
#include <limits>
#include <locale>
#include <ruqlib2core/CString.h>
#include <sstream>

namespace TEVU {

bool differ(double a, double b) {
    return std::abs(a - b) > std::numeric_limits<double>::epsilon();
}

std::string spacingText(const StSpacing& spacing, unsigned int dimension) {
    std::ostringstream text;
    text.imbue(std::locale::classic()); // whatever the application has made the global one
    text.exceptions(std::ios::badbit);  // else no memory cuts the text off
    text << '(' << spacing.dX;
    if (dimension > 1)
        text << ',' << spacing.dY;
    if (dimension > 2)
        text << ',' << spacing.dZ;
    text << ')';
    return text.str();
}

std::string spacingChangeEntry(const StSpacing& before, const StSpacing& after,
                               unsigned int dimension) {
    return CString("ChangeSpacing(%1->%2)")
        .Arg(spacingText(before, dimension))
        .Arg(spacingText(after, dimension));
}

} // namespace TEVU
