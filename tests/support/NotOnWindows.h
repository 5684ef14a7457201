#ifndef RUQGUI_TESTS_SUPPORT_NOTONWINDOWS_H
#define RUQGUI_TESTS_SUPPORT_NOTONWINDOWS_H

#include <gtest/gtest.h>
#include <string>

/// At the top of a test that has nothing to test on Windows. All reasons stand here; "./test --windows"
/// ends with the list of the tests that they hold back. What whole files of tests leave out there is in
/// those named PosixTest; WindowsTest is their counterpart.
#ifdef _WIN32
#define NOT_ON_WINDOWS(reason) GTEST_SKIP() << support::reason
#else
#define NOT_ON_WINDOWS(reason) static_assert(true, "")
#endif

namespace support {

constexpr const char* noPermissions =
    "Not on Windows: a program cannot take its own user's permissions away there; the tests named "
    "WindowsTest do the same with the read-only attribute";
constexpr const char* noLinks =
    "Not on Windows: symbolic links need a privilege there, and the compiler's library makes none";
constexpr const char* noSuchNames = "Not on Windows: such a name cannot be given to a file there";
constexpr const char* noClosedPlace =
    "Not on Windows: the place that nobody may write to is one of other systems; the tests named "
    "WindowsTest have names that no file can have";
constexpr const char* noPipes = "Not on Windows: no pipe can stand in the place of a file there";
constexpr const char* noJpeg = "Not on Windows: libtiff is built without JPEG there, because "
                               "Debian has no libjpeg for Windows";

/// Whether a file can have this name: on Windows some signs cannot be in it, others not at its end.
inline bool isPossibleName(const std::string& name) {
#ifdef _WIN32
    return name.find_first_of("<>:\"|?*\\") == std::string::npos &&
           name.find_last_not_of(". ") + 1 == name.size();
#else
    return !name.empty();
#endif
}

} // namespace support

#endif
