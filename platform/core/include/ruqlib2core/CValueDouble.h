#ifndef RUQLIB2CORE_CVALUEDOUBLE_H
#define RUQLIB2CORE_CVALUEDOUBLE_H

#include <ruqlib2core/CValue.h>

namespace TEVU {

/// A floating-point number; infinities and NaN included.
class RUQLIB2CORE_EXPORT CValueDouble : public CValue {
public:
    CValueDouble(double value);

    double Double() const;
    EnGenericType GenericType() const override; ///< eDouble
    CValueDouble* Clone() const override;

private:
    double m_dValue;
};

} // namespace TEVU

#endif
