#ifndef RUQGUI_TESTS_DATA_FORMATMODEL_H
#define RUQGUI_TESTS_DATA_FORMATMODEL_H

#include <string>
#include <utility>

/// The rules about format stamps a second time, to be compared with the library's own: identifiers are
/// cut into sections, versions are read letter by letter, and a newer one is simply a greater number.
namespace format_model {

/// Family and remainder.
std::pair<std::string, std::string> split(const std::string& identifier);

bool isNewer(const std::string& ofFile, const std::string& own);

} // namespace format_model

#endif
