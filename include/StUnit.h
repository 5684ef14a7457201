#ifndef RUQGUI_STUNIT_H
#define RUQGUI_STUNIT_H

#include <qt3/Export.h>
#include <string>

namespace TEVU {

/// A unit of length and the spacings for which it is the natural one.
struct RUQGUI_EXPORT StUnit {
    StUnit(double lower, double upper, std::string name);
    StUnit(const StUnit& other);
    StUnit& operator=(const StUnit& other);
    ~StUnit();

    /// Whether the unit is the natural one for a spacing of \a v metres: lower <= v < upper.
    bool operator()(double v) const;

    double m_dLower;     ///< Smallest natural spacing in metres; also the unit's size in metres.
    double m_dUpper;     ///< First spacing in metres that is too large.
    std::string m_sName; ///< As shown in the unit box.
};

} // namespace TEVU

#endif
