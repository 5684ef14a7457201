#include "FormatModel.h"
#include "FormatRules.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>

namespace {

std::string takeLine(std::istringstream& lines) {
    std::string line;
    std::getline(lines, line);
    return line;
}

void demand(bool same, const char* rule, const std::string& seen) {
    if (same)
        return;
    std::fprintf(stderr, "%s: %s, and not so by the model\n", rule, seen.c_str());
    std::abort();
}

void compareSplit(const std::string& identifier) {
    const TEVU::StIdentifier seen = TEVU::splitIdentifier(identifier);
    const auto [family, remainder] = format_model::split(identifier);
    demand(seen.sFamily == family && seen.sRemainder == remainder, "split",
           '\'' + seen.sFamily + "' and '" + seen.sRemainder + '\'');
}

void compareVersions(const std::string& ofFile, const std::string& own) {
    const bool newer = TEVU::isFutureVersion(ofFile, own);
    demand(newer == format_model::isNewer(ofFile, own), "version", newer ? "newer" : "not newer");
}

} // namespace

/// The bytes are an identifier, the version of a file and the program's own version, a line each.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream lines(std::string(reinterpret_cast<const char*>(data), size));
    const std::string identifier = takeLine(lines);
    const std::string ofFile = takeLine(lines);
    const std::string own = takeLine(lines);

    compareSplit(identifier);
    compareVersions(ofFile, own);
    compareVersions(own, ofFile);
    return 0;
}
