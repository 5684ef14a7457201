#ifndef RUQGUI_FAULTS_HOOKEDCALLS_H
#define RUQGUI_FAULTS_HOOKEDCALLS_H

#include <functional>
#include <string>
#include <vector>

/// The calls of the system's that this process makes for its files, on Windows: whatever library makes them, they
/// go through the functions of ntdll.dll. Other systems have strace for this.
namespace hooked_calls {

/// What is done in the place of a call, and what the call returns.
using Instead = std::function<long(const std::string& call)>;

/// From now on, calls are noted. Instead of the \a number-th, from 1, \a instead runs; 0: none. A write has
/// written half of its bytes then.
void begin(int number, const Instead& instead);

/// The calls since begin(): the function's name, and what it was to set: "NtSetInformationFile 10".
std::vector<std::string> end();

} // namespace hooked_calls

#endif
