#ifndef RUQGUI_TESTS_DIFFERENTIAL_RUNS_H
#define RUQGUI_TESTS_DIFFERENTIAL_RUNS_H

#include "Cases.h"
#include "Options.h"

#include <string>

namespace differential {

/// What the program can do with one class. Each writes what it counted, or what it found, to
/// standard output, and gives false for a fault.

bool runSummary(Cases& cases, const Options& options);
bool runText(Cases& cases, const Options& options);
bool runRecord(Cases& cases, const Options& options);
bool runAgainst(Cases& cases, const Options& options);
bool runReplay(Cases& cases, const Options& options);

/// A broken promise is reduced in a second process, which \a program starts.
bool runCheck(Cases& cases, const Options& options, const std::string& program);
/// Every case in such a process.
bool runIsolated(Cases& cases, const Options& options, const std::string& program);

} // namespace differential

#endif
