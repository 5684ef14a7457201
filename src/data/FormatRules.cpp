#include "FormatRules.h"

#include <algorithm>
#include <locale>
#include <sstream>

namespace TEVU {

namespace {

double numberOf(const std::string& version) {
    std::istringstream stream(version);
    stream.imbue(std::locale::classic()); // whatever the application has made the global one
    stream.exceptions(std::ios::badbit);  // else no memory reads as 0
    double number = 0.0;
    stream >> number;
    return number;
}

} // namespace

StIdentifier splitIdentifier(const std::string& identifier) {
    if (std::count(identifier.begin(), identifier.end(), ':') < 2)
        return {identifier, ""};
    const auto colon = identifier.find(':');
    const std::string remainder = identifier.substr(colon + 1);
    // Kept: two characters before the colon are no family, and of more the last one is dropped.
    if (colon == 0 || colon == 2)
        return {"", remainder};
    return {identifier.substr(0, colon - 1), remainder};
}

bool isFutureVersion(const std::string& ofFile, const std::string& own) {
    return numberOf(ofFile) > numberOf(own);
}

} // namespace TEVU
