#ifndef RUQGUI_DATA_FORMATRULES_H
#define RUQGUI_DATA_FORMATRULES_H

#include <string>

namespace TEVU {

struct StIdentifier {
    std::string sFamily;
    std::string sRemainder;
};

/// With two or more colons: the family is what stands before the character in front of the first
/// colon, the remainder what stands behind it. Else the whole identifier is the family.
StIdentifier splitIdentifier(const std::string& identifier);

/// Whether a file's version is newer than the program's own. They are compared as decimal numbers, and
/// what is no number counts as 0.
bool isFutureVersion(const std::string& ofFile, const std::string& own);

} // namespace TEVU

#endif
