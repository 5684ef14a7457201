#ifndef RUQGUI_QT3_POINTER_H
#define RUQGUI_QT3_POINTER_H

#include <qguardedptr.h>

namespace qt3 {

/// A pointer to an object that becomes null when the object is destroyed.
template <class T>
using Pointer = QGuardedPtr<T>;

} // namespace qt3

#endif
