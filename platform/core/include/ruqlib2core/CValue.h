#ifndef RUQLIB2CORE_CVALUE_H
#define RUQLIB2CORE_CVALUE_H

#include <ruqlib2core/Export.h>

namespace TEVU {

/// A value that knows its type: the common base of what a value map holds.
class RUQLIB2CORE_EXPORT CValue {
public:
    /// The kinds of values; the numbers are part of file formats and do not change.
    enum EnGenericType {
        eBool = 0,
        eLong = 1,
        eDouble = 2,
        eString = 3,
        ePointer = 4,
        eVector = 5,
        eMap = 6
    };

    CValue() = default;
    CValue(const CValue&) = default;
    CValue& operator=(const CValue&) = default;
    virtual ~CValue();

    virtual EnGenericType GenericType() const = 0;

    /// A deep copy; the caller owns it. What a pointer value points to is not copied.
    virtual CValue* Clone() const = 0;
};

} // namespace TEVU

#endif
