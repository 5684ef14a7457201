#include <ruqlib2image/CPos.h>

#include <algorithm>

namespace TEVU {

CPos::CPos(int x) : CPos(1, x, 0, 0, 0) {}

CPos::CPos(int x, int y) : CPos(2, x, y, 0, 0) {}

CPos::CPos(int x, int y, int z) : CPos(3, x, y, z, 0) {}

CPos::CPos(unsigned dimension, int x, int y, int z, int beyond)
    : m_nDimension(dimension), m_nCoordinates{x, y, z}, m_nBeyond(beyond) {
    std::fill(m_nCoordinates + dimension, m_nCoordinates + c_nMaxDimension, beyond);
}

unsigned CPos::Dimension() const {
    return m_nDimension;
}

int CPos::operator[](unsigned axis) const {
    return axis < m_nDimension ? m_nCoordinates[axis] : m_nBeyond;
}

bool CPos::operator==(const CPos& other) const {
    return m_nDimension == other.m_nDimension &&
           std::equal(m_nCoordinates, m_nCoordinates + m_nDimension, other.m_nCoordinates);
}

bool CPos::operator!=(const CPos& other) const {
    return !(*this == other);
}

} // namespace TEVU
