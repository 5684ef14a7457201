#include "StUnit.h"

#include <utility>

namespace TEVU {

StUnit::StUnit(double lower, double upper, std::string name)
    : m_dLower(lower), m_dUpper(upper), m_sName(std::move(name)) {}

StUnit::StUnit(const StUnit& other) = default;
StUnit& StUnit::operator=(const StUnit& other) = default;
StUnit::~StUnit() = default;

bool StUnit::operator()(double v) const {
    return m_dLower <= v && v < m_dUpper;
}

} // namespace TEVU
