#ifndef RUQGUI_GALLERY_SETTINGSFILE_H
#define RUQGUI_GALLERY_SETTINGSFILE_H

#include <ruqlib2core/CValueMap.h>
#include <string>

/// Value maps of truth values, whole numbers and strings as text files, an entry a line:
/// \code
/// # What stands behind such a sign is skipped, and so are empty lines.
/// id = "ruqgui gallery:settings:1"
/// check types = true
/// \endcode
/// In strings a quotation mark, a backslash and a line break are written \", \\ and \n.
namespace SettingsFile {

/// \throws TEVU::CException with the path and the cause
TEVU::CValueMap read(const std::string& path);
void write(const TEVU::CValueMap& map, const std::string& path);

/// \throws TEVU::CException that names the line
TEVU::CValueMap fromText(const std::string& text);

/// \throws TEVU::CException for a value of another kind, or a key that is no line's beginning
std::string toText(const TEVU::CValueMap& map);

} // namespace SettingsFile

#endif
