#ifndef RUQGUI_TESTS_SUPPORT_SYSTEM_H
#define RUQGUI_TESTS_SUPPORT_SYSTEM_H

#include <string>

namespace support {

/// What tests need of the operating system beside files and processes, once for each system.

/// Environment variables of this process and of those that it starts. On Windows an empty one is none.
void setVariable(const char* name, const std::string& value);
void unsetVariable(const char* name);

/// A new folder with this beginning of its path; empty if none can be made.
std::string makeFreshFolder(const std::string& beginning);

/// Makes a file or folder the property of the user of that number, if this is the superuser. Windows has no
/// such users: nothing happens.
void giveAway(const std::string& path, unsigned user);

/// Gives a file or folder the times of two days ago.
void makeOld(const std::string& path);

/// "Suite.Test"; "." outside of tests.
std::string presentTest();

/// Ends the process, with the name of what hangs, when it still runs after so many seconds. A later call begins to
/// count anew; 0 is for ever.
void giveUpAfter(unsigned seconds, std::string (*nameOfWhatRuns)() = presentTest);

/// From its construction on, temporary files are made in memory, where the system has such a place: tests that make
/// thousands, or wait for the disk thousands of times, are quick there. A base class or a member before the folders.
struct InMemory {
    InMemory();
};

} // namespace support

#endif
