#include <ruqlib2core/CValuePointerBase.h>

namespace TEVU {

CValuePointerBase::~CValuePointerBase() = default;

CValue::EnGenericType CValuePointerBase::GenericType() const {
    return ePointer;
}

} // namespace TEVU
