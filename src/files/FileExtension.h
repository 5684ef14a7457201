#ifndef RUQGUI_FILES_FILEEXTENSION_H
#define RUQGUI_FILES_FILEEXTENSION_H

#include <string>

namespace TEVU {

/// The lower-case extension of a path: what follows its last dot, or its last dot but one if that
/// is "gz" ("stl.gz"). Fewer dots than that make the whole path its extension.
std::string fileExtension(const std::string& path);

/// The first extension of the filter, with its dot, if the name ends in none that the filter lists;
/// else nothing. The name counts in lower case, the filter as it is written.
///
/// In the name an extension begins at the last compound ending (".rek.gz" and its like), wherever
/// that stands, or else at the last dot. In the filter it stands behind "*" and ends at a blank or
/// a closing parenthesis. \throws CException "Malformed type list" if an extension is missing and
/// the first "*" of the filter
///         is not followed by a dot, or there is none.
std::string missingExtension(const std::string& fileName, const std::string& filter);

} // namespace TEVU

#endif
