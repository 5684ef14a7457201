#ifndef RUQGUI_TOOLKIT_FILENAMES_H
#define RUQGUI_TOOLKIT_FILENAMES_H

#include <qstring.h>

namespace qt3 {

/// The name as that of a file: the toolkit takes one that begins with a colon for a resource of the program.
inline QString onDisk(const QString& name) {
    return name.startsWith(':') ? "./" + name : name;
}

} // namespace qt3

#endif
