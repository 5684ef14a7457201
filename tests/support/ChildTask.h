#ifndef RUQGUI_TESTS_SUPPORT_CHILDTASK_H
#define RUQGUI_TESTS_SUPPORT_CHILDTASK_H

#include "ChildProcess.h"

namespace support {

/// What the ChildProcess of each system is made with.

using AnyFunction = void (*)();

/// A function as a text that means the same function in every process of this program.
std::string textOf(AnyFunction function);
AnyFunction functionOf(const std::string& text);

/// Runs the task; an exception becomes a line on standard error. The exit status of the process.
int runTask(ChildProcess::Task task, int descriptor, const ChildProcess::Arguments& arguments);

} // namespace support

#endif
