#include <ruqlib2core/CValueDouble.h>

namespace TEVU {

CValueDouble::CValueDouble(double value) : m_dValue(value) {}

double CValueDouble::Double() const {
    return m_dValue;
}

CValue::EnGenericType CValueDouble::GenericType() const {
    return eDouble;
}

CValueDouble* CValueDouble::Clone() const {
    return new CValueDouble(*this);
}

} // namespace TEVU
