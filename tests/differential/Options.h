#ifndef RUQGUI_TESTS_DIFFERENTIAL_OPTIONS_H
#define RUQGUI_TESTS_DIFFERENTIAL_OPTIONS_H

#include <cstdint>
#include <string>
#include <vector>

namespace differential {

struct Options {
    enum Mode { Summary, Text, Record, Check, Against, Replay, Serve, Differences, Help };

    Mode mode = Summary;
    std::vector<std::string> classes; ///< Empty for all.
    std::uint64_t seed = 1;
    std::uint64_t operations = 10000;
    std::uint64_t from = 0; ///< In operations; the whole cases that hold them are written.
    std::uint64_t to = 0;
    std::string file;      ///< Of a record or of operations.
    std::string command;   ///< The other program.
    bool rubbish = false;  ///< Extreme values too.
    bool isolated = false; ///< In a second process, which may crash.

    /// Throws std::runtime_error with what is wrong.
    static Options parsed(const std::vector<std::string>& arguments);
    static const char* usage();
};

} // namespace differential

#endif
