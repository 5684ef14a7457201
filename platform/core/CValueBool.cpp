#include <ruqlib2core/CValueBool.h>

namespace TEVU {

CValueBool::CValueBool(bool value) : m_bValue(value) {}

bool CValueBool::Bool() const {
    return m_bValue;
}

CValue::EnGenericType CValueBool::GenericType() const {
    return eBool;
}

CValueBool* CValueBool::Clone() const {
    return new CValueBool(*this);
}

} // namespace TEVU
