#ifndef RUQGUI_FILES_ASCIICASE_H
#define RUQGUI_FILES_ASCIICASE_H

#include <string>

namespace TEVU {

/// As tolower changes it in the C locale, whatever the locale is: a Turkish one would leave 'I'.
char lowerCase(char c);

/// The text with each character changed as tolower or toupper does in the C locale: one to one, so
/// that its length stays.
std::string lowerCase(std::string text);
std::string upperCase(std::string text);

} // namespace TEVU

#endif
