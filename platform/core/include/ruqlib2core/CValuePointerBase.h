#ifndef RUQLIB2CORE_CVALUEPOINTERBASE_H
#define RUQLIB2CORE_CVALUEPOINTERBASE_H

#include <ruqlib2core/CValue.h>

#include <typeinfo>

namespace TEVU {

/// What all pointer values share: the pointer without its type, and the type beside it.
class RUQLIB2CORE_EXPORT CValuePointerBase : public CValue {
public:
    ~CValuePointerBase() override;

    EnGenericType GenericType() const override; ///< ePointer

    /// The type that the pointer was stored with, not that of the object it points to; const is
    /// no part of it.
    virtual const std::type_info& PointedType() const = 0;

    /// To be cast back to a pointer to PointedType() only. May be null.
    virtual void* Address() const = 0;
};

} // namespace TEVU

#endif
