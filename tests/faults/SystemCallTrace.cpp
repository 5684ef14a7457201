#include "SystemCallTrace.h"

#include <cstdio>
#include <fstream>
#include <map>
#include <stdexcept>

namespace {

const char* const c_sMark = "getppid";

std::string outputOf(const std::string& command) {
    std::FILE* const pipe = ::popen(command.c_str(), "r");
    if (!pipe)
        throw std::runtime_error("no pipe for " + command);
    std::string output;
    for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe))
        output += static_cast<char>(c);
    ::pclose(pipe);
    return output;
}

/// Empty for what is no call: the end of the process, signals.
std::string nameIn(const std::string& line) {
    const auto end = line.find('(');
    return end == std::string::npos || line[0] == '-' || line[0] == '+' ? "" : line.substr(0, end);
}

} // namespace

StTracedRun runTraced(const std::string& arguments, const std::string& traceFile,
                      const std::string& fault) {
    // Leaks cannot be looked for in a traced process; they are in the runs without strace.
    // At addresses that are always the same, because a sanitizer reads the list of its process's
    // memory before the save, and its length decides how many reads that takes: a call's ordinal in
    // one process would be another call's in the next. So would it with one variable more or less.
    std::string command = "env -i PATH=\"$PATH\" ASAN_OPTIONS=detect_leaks=0 "
                          "setarch -R strace -qq -y -s 200 -o \"" +
                          traceFile + '"';
    if (!fault.empty())
        command += " -e inject=" + fault;
    StTracedRun run;
    run.output = outputOf(command + " \"" SAVE_ONCE "\" " + arguments + " 2>/dev/null");

    std::ifstream trace(traceFile);
    std::map<std::string, int> ordinals;
    int marks = 0;
    for (std::string line; std::getline(trace, line);) {
        const std::string name = nameIn(line);
        if (name.empty())
            continue;
        const int ordinal = ++ordinals[name];
        if (name == c_sMark)
            ++marks;
        else if (marks == 1) {
            run.calls.push_back({name, line, ordinal});
            run.injected = run.injected || line.find("(INJECTED)") != std::string::npos;
        }
    }
    run.survived = marks == 2;
    if (marks == 0)
        throw std::runtime_error("strace does not trace here: " + command);
    return run;
}
