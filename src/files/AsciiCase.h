#ifndef RUQGUI_FILES_ASCIICASE_H
#define RUQGUI_FILES_ASCIICASE_H

#include <string>

namespace TEVU {

char lowerCase(char c); ///< By tolower.

/// The text with each character changed by tolower or toupper: one to one, so that its length
/// stays.
std::string lowerCase(std::string text);
std::string upperCase(std::string text);

} // namespace TEVU

#endif
