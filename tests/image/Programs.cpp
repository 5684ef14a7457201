#include "Programs.h"

#include <gtest/gtest.h>

namespace programs {

namespace {

const int c_nNotFound = 127; ///< What the shell returns for a program that there is not.

} // namespace

std::string run(const std::string& folder, const std::string& command) {
    const Result result = runInShell(folder, command);
    if (result.code == c_nNotFound)
        ADD_FAILURE() << "A program that the tests need is not installed (Debian: imagemagick, "
                         "libtiff-tools): "
                      << result.errors;
    else
        EXPECT_TRUE(result.code == 0 && result.errors.empty())
            << command << "\nended with " << result.code << " and printed\n"
            << result.output << result.errors;
    return result.output;
}

} // namespace programs
