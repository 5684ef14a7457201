#include "ExtensionModel.h"
#include "FileExtension.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <ruqlib2core/CException.h>
#include <string>

namespace {

std::optional<std::string> missing(const std::string& name, const std::string& filter) {
    try {
        return TEVU::missingExtension(name, filter);
    } catch (const TEVU::CException&) {
        return {};
    }
}

std::string shown(const std::optional<std::string>& extension) {
    return extension ? '\'' + *extension + '\'' : "malformed";
}

void demandEqual(const std::optional<std::string>& seen, const std::optional<std::string>& model) {
    if (seen == model)
        return;
    std::fprintf(stderr, "%s, and by the model %s\n", shown(seen).c_str(), shown(model).c_str());
    std::abort();
}

} // namespace

/// The bytes are a file's name, a line break, and a filter.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    const std::size_t lineBreak = input.find('\n');
    const std::string name = input.substr(0, lineBreak);
    const std::string filter =
        lineBreak == std::string::npos ? std::string() : input.substr(lineBreak + 1);

    demandEqual(missing(name, filter), extension_model::missing(name, filter));
    demandEqual(TEVU::fileExtension(name), extension_model::ofFile(name));
    return 0;
}
