#include <ruqlib2core/CValueVector.h>

#include <ruqlib2core/CException.h>

namespace TEVU {

CValueVector::CValueVector() = default;
CValueVector::CValueVector(const CValueVector& other) = default;
CValueVector& CValueVector::operator=(const CValueVector& other) = default;
CValueVector::~CValueVector() = default;

CValue::EnGenericType CValueVector::GenericType() const {
    return eVector;
}

CValueVector* CValueVector::Clone() const {
    return new CValueVector(*this);
}

void CValueVector::StoreEntry(const CValue_Key& key, std::unique_ptr<CValue> value) {
    if (!key.IsIndex() || key.Index() < 0)
        throw CException("CValueVector::SetEntry", "\"" + key.String() + "\" is no index");
    CValueContainerBase::StoreEntry(key, std::move(value));
}

} // namespace TEVU
