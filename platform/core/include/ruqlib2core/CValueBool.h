#ifndef RUQLIB2CORE_CVALUEBOOL_H
#define RUQLIB2CORE_CVALUEBOOL_H

#include <ruqlib2core/CValue.h>

namespace TEVU {

/// A truth value.
class RUQLIB2CORE_EXPORT CValueBool : public CValue {
public:
    CValueBool(bool value);

    bool Bool() const;
    EnGenericType GenericType() const override; ///< eBool
    CValueBool* Clone() const override;

private:
    bool m_bValue;
};

} // namespace TEVU

#endif
