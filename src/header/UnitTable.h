#ifndef RUQGUI_HEADER_UNITTABLE_H
#define RUQGUI_HEADER_UNITTABLE_H

#include "StUnit.h"

#include <array>
#include <string>

namespace TEVU {

/// The units of the header editor: "m", "mm", "um", "nm". The index into this table is the unit
/// index used everywhere.
const std::array<StUnit, 4>& unitTable();

const int c_nMetres = 0; ///< The row taken when no other fits.
const int c_nUnknownUnit = -1;

/// The row of that name; c_nUnknownUnit when there is none.
int unitIndex(const std::string& name);

/// The first row for which the spacing, or the largest of several, is natural; c_nMetres when there
/// is none, as for 0, negative spacings, and those from 0.01 m up to 1 m.
int naturalUnit(double spacing);
int naturalUnit(double x, double y);
int naturalUnit(double x, double y, double z);

/// The size of a unit in metres; that of metres for an unknown one.
double metresPer(int unit);

/// What a number in one unit is multiplied by to be in another; 1 from an unknown unit.
double conversionFactor(int from, int to);

} // namespace TEVU

#endif
