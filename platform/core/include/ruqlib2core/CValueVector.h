#ifndef RUQLIB2CORE_CVALUEVECTOR_H
#define RUQLIB2CORE_CVALUEVECTOR_H

#include <ruqlib2core/CValueContainerBase.h>

namespace TEVU {

/// Values under indices from 0 on, in the order of the indices. Copies are deep.
///
/// Indices may have gaps: RemoveEntry() moves no other entry, and Size() counts the entries.
/// SetEntry() under a key that is no index, or a negative one, is a CException.
class RUQLIB2CORE_EXPORT CValueVector : public CValueContainerBase {
public:
    CValueVector();
    CValueVector(const CValueVector& other);
    CValueVector& operator=(const CValueVector& other);
    ~CValueVector() override;

    EnGenericType GenericType() const override; ///< eVector
    CValueVector* Clone() const override;

protected:
    void StoreEntry(const CValue_Key& key, std::unique_ptr<CValue> value) override;
};

} // namespace TEVU

#endif
