#ifndef RUQGUI_TESTS_FILES_EXTENSIONMODEL_H
#define RUQGUI_TESTS_FILES_EXTENSIONMODEL_H

#include <optional>
#include <string>

/// The two extension rules a second time, to be compared with the library's own: the names are cut into
/// sections and the filters are read one character after the other, without any search text.
namespace extension_model {

/// No value where the list of types is malformed.
std::optional<std::string> missing(const std::string& fileName, const std::string& filter);

std::string ofFile(const std::string& path);

} // namespace extension_model

#endif
