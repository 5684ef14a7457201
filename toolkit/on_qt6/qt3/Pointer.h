#ifndef RUQGUI_QT3_POINTER_H
#define RUQGUI_QT3_POINTER_H

#include <qpointer.h>

namespace qt3 {

/// A pointer to an object that becomes null when the object is destroyed.
template <class T>
using Pointer = QPointer<T>;

} // namespace qt3

#endif
