#include "UnitTable.h"

#include <algorithm>
#include <iterator>

namespace TEVU {

namespace {

// Millimetres end at 1 cm: larger spacings are given in metres.
const std::array<StUnit, 4> c_units = {StUnit(1.0, 100000.0, "m"), StUnit(0.001, 0.01, "mm"),
                                       StUnit(1e-6, 0.001, "um"), StUnit(1e-9, 1e-6, "nm")};

template <class Accepts>
int firstUnit(Accepts accepts, int otherwise) {
    const auto row = std::find_if(c_units.begin(), c_units.end(), accepts);
    return row == c_units.end() ? otherwise : static_cast<int>(std::distance(c_units.begin(), row));
}

} // namespace

const std::array<StUnit, 4>& unitTable() {
    return c_units;
}

int unitIndex(const std::string& name) {
    return firstUnit([&name](const StUnit& unit) { return unit.m_sName == name; }, c_nUnknownUnit);
}

int naturalUnit(double spacing) {
    return firstUnit([spacing](const StUnit& unit) { return unit(spacing); }, c_nMetres);
}

int naturalUnit(double x, double y) {
    return naturalUnit(std::max(x, y));
}

int naturalUnit(double x, double y, double z) {
    return naturalUnit(std::max({x, y, z}));
}

double metresPer(int unit) {
    return c_units[static_cast<std::size_t>(unit == c_nUnknownUnit ? c_nMetres : unit)].m_dLower;
}

double conversionFactor(int from, int to) {
    return from == c_nUnknownUnit ? 1.0 : metresPer(from) / metresPer(to);
}

} // namespace TEVU
