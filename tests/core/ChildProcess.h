#ifndef RUQLIB2CORE_CHILDPROCESS_H
#define RUQLIB2CORE_CHILDPROCESS_H

#include <cstdio>
#include <functional>
#include <string>
#include <sys/types.h>

/// A copy of the test's process that runs a function and ends. The registry is one object a process, so
/// each child that looks at it first sees it as a freshly started program does.
class ChildProcess {
public:
    /// The function gets a descriptor: what it writes there Wait() and ReadLine() return.
    explicit ChildProcess(const std::function<void(int descriptor)>& run);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess(); ///< Kills it when it still runs.

    std::string ReadLine(); ///< Without its end; empty at the end of the output.
    void Kill();

    struct StOutcome {
        std::string output; ///< What ReadLine() did not take.
        std::string errors; ///< Its standard error.
        int status;         ///< As waitpid() tells; 0: it ended by itself and well.
    };
    StOutcome Wait();

private:
    pid_t m_nProcess;
    std::FILE* m_pOutput;
    std::FILE* m_pErrors;
};

/// Runs \a run in a child to its end and returns what it returned and what it wrote on standard error.
ChildProcess::StOutcome inChild(const std::function<std::string()>& run);

/// The same as a user whom file permissions hold back.
ChildProcess::StOutcome asOrdinaryUser(const std::function<std::string()>& run);

#endif
