#ifndef RUQLIB2CORE_CVALUELONG_H
#define RUQLIB2CORE_CVALUELONG_H

#include <ruqlib2core/CValue.h>

namespace TEVU {

/// A whole number, as wide as the platform's long.
class RUQLIB2CORE_EXPORT CValueLong : public CValue {
public:
    CValueLong(long value);

    long Long() const;
    EnGenericType GenericType() const override; ///< eLong
    CValueLong* Clone() const override;

private:
    long m_nValue;
};

} // namespace TEVU

#endif
