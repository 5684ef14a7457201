#ifndef RUQLIB2IMAGE_CPOS_H
#define RUQLIB2IMAGE_CPOS_H

#include <ruqlib2image/Export.h>

namespace TEVU {

/// A position in an image of one, two or three dimensions, in pixels: x, then y, then z.
class RUQLIB2IMAGE_EXPORT CPos {
public:
    CPos(int x);
    CPos(int x, int y);
    CPos(int x, int y, int z);

    unsigned Dimension() const; ///< 1, 2 or 3.

    /// The coordinate along an axis, 0 for x; along an axis that it does not have, a position is 0.
    int operator[](unsigned axis) const;

    /// Equal are those of the same dimension with the same coordinates.
    bool operator==(const CPos& other) const;
    bool operator!=(const CPos& other) const;

protected:
    /// \a beyond is the coordinate along the axes that it does not have.
    CPos(unsigned dimension, int x, int y, int z, int beyond);

private:
    static constexpr unsigned c_nMaxDimension = 3;

    unsigned m_nDimension;
    int m_nCoordinates[c_nMaxDimension]; ///< m_nBeyond from m_nDimension on.
    int m_nBeyond;
};

} // namespace TEVU

#endif
