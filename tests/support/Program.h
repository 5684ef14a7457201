#ifndef RUQGUI_TESTS_SUPPORT_PROGRAM_H
#define RUQGUI_TESTS_SUPPORT_PROGRAM_H

#include <string>
#include <vector>

namespace support {

struct Ended {
    int status;         ///< As the program returned it; -1 when it did not end by itself.
    std::string output; ///< Of both standard streams.
};

/// Runs a program to its end, with the environment of this process. The texts are UTF-8.
Ended runProgram(const std::string& program, const std::vector<std::string>& arguments);

} // namespace support

#endif
