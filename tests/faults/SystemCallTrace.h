#ifndef RUQGUI_FAULTS_SYSTEMCALLTRACE_H
#define RUQGUI_FAULTS_SYSTEMCALLTRACE_H

#include <string>
#include <vector>

/// One system call as strace shows it: "fsync(5</tmp/file>) = 0".
struct StSystemCall {
    std::string name;
    std::string text; ///< The whole line.
    int ordinal;      ///< Among those of the same name in the process, from 1.
};

/// What a program did between its two marks, and what it printed.
struct StTracedRun {
    std::vector<StSystemCall> calls;
    std::string output;
    bool injected = false; ///< One of the calls was made to fail.
    bool survived = false; ///< It came to the second mark.
};

/// Runs SAVE_ONCE with these arguments, as the shell reads them, under strace. \a fault is empty or what strace calls an
/// injection, "fsync:error=EIO:when=1".
StTracedRun runTraced(const std::string& arguments, const std::string& traceFile,
                      const std::string& fault);

#endif
