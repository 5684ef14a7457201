#ifndef RUQLIB2CORE_REPLACEFILE_H
#define RUQLIB2CORE_REPLACEFILE_H

#include <ruqlib2core/Export.h>

#include <functional>
#include <string>

// Windows' own header makes a macro of the name. Include it before this one, if at all.
#undef ReplaceFile

namespace TEVU {

/// Replaces the file \a path, or makes it, in one step: whatever happens on the way, a kill or a
/// power cut included, \a path is afterwards the old file whole or the new file whole.
///
/// \a write is called once with the path of an empty new file in the same folder. It opens that
/// file by its path, writes and closes it, and reports failure by an exception, which passes
/// through: \code ReplaceFile("settings.txt", [&](const std::string& newFile) { save(newFile); });
/// \endcode
/// Then the new file is brought to the disk and renamed. It keeps the permissions of the old file,
/// and a link at \a path goes on pointing to the file behind it. New files that a killed process
/// has left behind for the same \a path are removed.
///
/// A CException with the path and the cause when \a path is something other than an ordinary file,
/// or its folder is missing or cannot be written. After any exception the old file is as it was.
RUQLIB2CORE_EXPORT void ReplaceFile(const std::string& path,
                                    const std::function<void(const std::string& newFile)>& write);

} // namespace TEVU

#endif
