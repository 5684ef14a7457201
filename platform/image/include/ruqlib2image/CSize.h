#ifndef RUQLIB2IMAGE_CSIZE_H
#define RUQLIB2IMAGE_CSIZE_H

#include <ruqlib2image/CPos.h>

namespace TEVU {

/// The extents of an image of one, two or three dimensions, in pixels.
///
/// Along an axis that it does not have, a size is 1: a two-dimensional image is one slice deep. So
/// the product over three axes is the number of pixels of every image.
class RUQLIB2IMAGE_EXPORT CSize : public CPos {
public:
    CSize(int x);
    CSize(int x, int y);
    CSize(int x, int y, int z);
};

} // namespace TEVU

#endif
