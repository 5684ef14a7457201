#ifndef RUQGUI_QT3_FILE_H
#define RUQGUI_QT3_FILE_H

#include <qstring.h>
#include <qt3/Export.h>

namespace qt3 {

/// What the file system says of a name at this moment; nothing is cached, so that a second try sees
/// what has changed.
RUQGUI_EXPORT bool exists(const QString& name); ///< Also for folders; false for a dangling link.
RUQGUI_EXPORT bool isReadable(const QString& name);
RUQGUI_EXPORT bool isWritable(const QString& name);

/// Whether a file that does not exist could be made under this name: it is made and removed again.
/// A file that appears meanwhile is neither opened nor removed (then the answer is false). For a
/// dangling link its target is tried, and the link stays.
RUQGUI_EXPORT bool canCreate(const QString& name);

/// The folder as it is written in the name: "d/x" has "d", "/x" has "/", "x" has ".".
RUQGUI_EXPORT QString dirPath(const QString& name);

/// Whether the name does not begin at the root of the file system.
RUQGUI_EXPORT bool isRelative(const QString& name);

/// Whether the folder written in the name exists.
RUQGUI_EXPORT bool isInExistingDir(const QString& name);

/// $HOME as it stands, also when it is empty; where it is not set, what the toolkit takes for it.
RUQGUI_EXPORT QString homeDirPath();

} // namespace qt3

#endif
