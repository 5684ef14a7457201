#include <ruqlib2core/CValue.h>

namespace TEVU {

CValue::~CValue() = default;

} // namespace TEVU
