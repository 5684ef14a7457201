#ifndef RUQGUI_QT3_DESCENDANTS_H
#define RUQGUI_QT3_DESCENDANTS_H

#include <qobject.h>
#include <qt3/Export.h>
#include <vector>

namespace qt3 {

/// All objects below \a parent with that name; with a null name, all.
RUQGUI_EXPORT std::vector<QObject*> descendants(QObject* parent, const char* name = nullptr);

/// The first object of that type below \a parent with that name, null if there is none.
/// \code
/// auto* field = qt3::child<qt3::LineEdit>(fileLine);
/// \endcode
template <class T>
T* child(QObject* parent, const char* name = nullptr) {
    for (QObject* object : descendants(parent, name)) {
        if (T* const found = dynamic_cast<T*>(object))
            return found;
    }
    return nullptr;
}

} // namespace qt3

#endif
