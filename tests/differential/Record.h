#ifndef RUQGUI_TESTS_DIFFERENTIAL_RECORD_H
#define RUQGUI_TESTS_DIFFERENTIAL_RECORD_H

#include <Recorder.h>
#include <cstdint>
#include <string>
#include <vector>

namespace differential {

/// What is kept of a run on Qt 3.3: two files in a folder, CLASS.digests with one digest for each
/// c_nBlockLength operations, and CLASS.log with the log of the first case.
struct Record {
    std::uint64_t seed = 0;
    std::vector<std::string> digests;
    support::Lines log;

    /// Throws std::runtime_error if there is none.
    static Record read(const std::string& folder, const std::string& className);
    void write(const std::string& folder, const std::string& className) const;
};

} // namespace differential

#endif
