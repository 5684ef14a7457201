#include "Programs.h"

#include <TempDir.h>

#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace programs {

namespace {

const int c_nNotFound = 127; ///< What the shell returns for a program that there is not.

} // namespace

std::string run(const std::string& command) {
    const support::TempDir dir;
    const std::string redirected =
        "( " + command + " ) >" + dir.path("out") + " 2>" + dir.path("err");
    const int status = std::system(redirected.c_str());
    const std::string output = dir.read("out");
    const std::string errors = dir.read("err");
    const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    if (code == c_nNotFound)
        ADD_FAILURE() << "A program that the tests need is not installed (Debian: imagemagick, "
                         "libtiff-tools): "
                      << errors;
    else
        EXPECT_TRUE(code == 0 && errors.empty())
            << command << "\nended with " << code << " and printed\n"
            << output << errors;
    return output;
}

} // namespace programs
