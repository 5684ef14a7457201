#include <ruqlib2core/CValueMap.h>

namespace TEVU {

CValueMap::CValueMap() = default;
CValueMap::CValueMap(const CValueMap& other) = default;
CValueMap& CValueMap::operator=(const CValueMap& other) = default;
CValueMap::~CValueMap() = default;

CValue::EnGenericType CValueMap::GenericType() const {
    return eMap;
}

CValueMap* CValueMap::Clone() const {
    return new CValueMap(*this);
}

} // namespace TEVU
