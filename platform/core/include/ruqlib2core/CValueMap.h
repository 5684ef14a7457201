#ifndef RUQLIB2CORE_CVALUEMAP_H
#define RUQLIB2CORE_CVALUEMAP_H

#include <ruqlib2core/CValueContainerBase.h>

namespace TEVU {

/// Values under names. Copies are deep.
/// \code
/// TEVU::CValueMap map;
/// map.SetEntry("id", new TEVU::CValueString("profile"));
/// const std::string id = map.EntryString("id");
/// \endcode
class RUQLIB2CORE_EXPORT CValueMap : public CValueContainerBase {
public:
    CValueMap();
    CValueMap(const CValueMap& other);
    CValueMap& operator=(const CValueMap& other);
    ~CValueMap() override;

    EnGenericType GenericType() const override; ///< eMap
    CValueMap* Clone() const override;
};

} // namespace TEVU

#endif
