#ifndef RUQGUI_UNWRAPPOINTER_H
#define RUQGUI_UNWRAPPOINTER_H

#include <qt3/Export.h>
#include <ruqlib2core/CValuePointer.h>
#include <typeinfo>

namespace TEVU {

/// Reports that a value does not hold a pointer of the requested type.
/// \throws CExBadParam always, with both type names as std::type_info::name() gives them, and the place.
[[noreturn]] RUQGUI_EXPORT void throwPointerTypeMismatch(const std::type_info& requested,
                                                         const std::type_info& actual);

/// The pointer that a value holds, if it was stored as a pointer to exactly \a T.
/// \code
/// if (const CImage* image = TEVU::UnwrapPointer<TEVU::CImage>(record.Entry("content", false)))
///     show(*image);
/// \endcode
/// What it points to stays whose it was. A null value yields null, and a held null pointer too.
/// \throws CExBadParam when the value holds a pointer to another type, or no pointer at all.
template <class T>
T* UnwrapPointer(const CValue* value) {
    if (!value)
        return nullptr;
    if (typeid(*value) == typeid(CValuePointer<T>)) // nearly always, and found out quickly
        return static_cast<const CValuePointer<T>*>(value)->Pointer();
    const auto* const pointer = value->GenericType() == CValue::ePointer
                                    ? dynamic_cast<const CValuePointerBase*>(value)
                                    : nullptr;
    if (!pointer)
        throwPointerTypeMismatch(typeid(T), typeid(*value));
    if (pointer->PointedType() != typeid(T))
        throwPointerTypeMismatch(typeid(T), pointer->PointedType());
    return static_cast<T*>(pointer->Address());
}

} // namespace TEVU

#endif
