#include "RegistryText.h"

#include <ruqlib2core/CException.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

namespace {

namespace text = TEVU::RegistryText;
using text::Settings;

void demand(bool holds, const char* law, const std::string& seen) {
    if (holds)
        return;
    std::fprintf(stderr, "%s: %s\n", law, seen.c_str());
    std::abort();
}

/// None for what is refused, which has to have a reason that fits on a line.
std::optional<Settings> readOrRefused(const std::string& bytes) {
    try {
        return text::read(bytes);
    } catch (const TEVU::CException& refusal) {
        const std::string reason = refusal.Message();
        demand(!reason.empty() && reason.size() <= 200, "a refusal has a short reason", reason);
        return {};
    }
}

bool areSame(const Settings& a, const Settings& b) {
    if (a.size() != b.size())
        return false;
    for (const auto& [key, scalar] : a) {
        const auto found = b.find(key);
        if (found == b.end() || !text::areSame(scalar, found->second))
            return false;
    }
    return true;
}

/// What is written reads as what it was, and is written in the same way again.
void demandRoundTrip(const Settings& settings) {
    const std::string written = text::write(settings);
    const std::optional<Settings> read = readOrRefused(written);
    demand(read && areSame(*read, settings), "what is written is read", written);
    demand(text::write(*read) == written, "what is read is written alike", written);
}

/// A file that is cut off anywhere is never taken for a whole one. Behind the brace is a line break.
void demandCutIsRefused(const Settings& settings, std::size_t where) {
    const std::string written = text::write(settings);
    const std::string cut = written.substr(0, where % (written.size() - 1));
    demand(!readOrRefused(cut), "what is cut off is refused", cut);
}

/// Settings of each kind, out of any bytes.
Settings settingsOf(const std::string& bytes) {
    Settings settings = {{"key", bytes}, {bytes, true}};
    long whole = 0;
    double number = 0.0;
    std::memcpy(&whole, bytes.data(), std::min(sizeof whole, bytes.size()));
    std::memcpy(&number, bytes.data(), std::min(sizeof number, bytes.size()));
    settings["whole " + bytes] = whole;
    settings["number " + bytes] = number;
    return settings;
}

} // namespace

/// The bytes are the file; and they are a text, a key and the bits of numbers.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    if (const std::optional<Settings> read = readOrRefused(bytes))
        demandRoundTrip(*read);
    const Settings made = settingsOf(bytes);
    demandRoundTrip(made);
    demandCutIsRefused(made, size == 0 ? 0 : data[0] * std::size_t(256) + data[size - 1]);
    return 0;
}
