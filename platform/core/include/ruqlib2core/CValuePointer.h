#ifndef RUQLIB2CORE_CVALUEPOINTER_H
#define RUQLIB2CORE_CVALUEPOINTER_H

#include <ruqlib2core/CValuePointerBase.h>

namespace TEVU {

/// A pointer as a value. It does not own what it points to: copies point to the same object, and
/// nothing is deleted.
///
/// The type is the same one in every library of the process, so that an entry set by a plug-in is
/// found by HasEntry(key, typeid(CValuePointer<T>)) in the application.
template <class T>
class RUQLIB2CORE_EXPORT_TEMPLATE CValuePointer : public CValuePointerBase {
public:
    CValuePointer(T* pointer) : m_pPointer(pointer) {}

    T* Pointer() const { return m_pPointer; }
    const std::type_info& PointedType() const override { return typeid(T); }
    void* Address() const override {
        return const_cast<void*>(static_cast<const void*>(m_pPointer));
    }
    CValuePointer* Clone() const override { return new CValuePointer(*this); }

private:
    T* m_pPointer;
};

} // namespace TEVU

#endif
