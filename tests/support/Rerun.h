#ifndef RUQGUI_TESTS_SUPPORT_RERUN_H
#define RUQGUI_TESTS_SUPPORT_RERUN_H

#include <functional>
#include <string>

namespace support {

/// Whether this is the run of a test that another run has started.
bool isRerun();

struct Outcome {
    bool passed;
    std::string output;
};

/// Runs the current test once more, in a program of its own. \a enter runs in that process, before the
/// program; the run fails if that gives false.
Outcome rerunCurrentTest(const std::function<bool()>& enter);

} // namespace support

#endif
