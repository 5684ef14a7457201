#include <ruqlib2image/CSize.h>

namespace TEVU {

CSize::CSize(int x) : CPos(1, x, 1, 1, 1) {}

CSize::CSize(int x, int y) : CPos(2, x, y, 1, 1) {}

CSize::CSize(int x, int y, int z) : CPos(3, x, y, z, 1) {}

} // namespace TEVU
