#include <ruqlib2core/CValueLong.h>

namespace TEVU {

CValueLong::CValueLong(long value) : m_nValue(value) {}

long CValueLong::Long() const {
    return m_nValue;
}

CValue::EnGenericType CValueLong::GenericType() const {
    return eLong;
}

CValueLong* CValueLong::Clone() const {
    return new CValueLong(*this);
}

} // namespace TEVU
