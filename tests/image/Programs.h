#ifndef RUQLIB2IMAGE_TESTS_PROGRAMS_H
#define RUQLIB2IMAGE_TESTS_PROGRAMS_H

#include <string>

namespace programs {

/// Runs a command of the shell in a folder, such as one of ImageMagick or libtiff's tools, and returns
/// what it prints. The test fails, with all that was printed, when the program is not installed, ends with
/// an error, or has anything to say on standard error: warnings are printed there.
std::string run(const std::string& folder, const std::string& command);

struct Result {
    int code; ///< -1: it did not end by itself.
    std::string output;
    std::string errors;
};

/// The same without a judgement, once for each system.
Result runInShell(const std::string& folder, const std::string& command);

} // namespace programs

#endif
