#include "Programs.h"

#include <TempDir.h>

#include <cstdlib>
#include <sys/wait.h>

namespace programs {

Result runInShell(const std::string& folder, const std::string& command) {
    const support::TempDir dir;
    const std::string redirected = "( export LC_ALL=C; cd " + folder + " && " + command + " ) >" +
                                   dir.path("out") + " 2>" + dir.path("err");
    const int status = std::system(redirected.c_str());
    const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return {code, dir.read("out"), dir.read("err")};
}

} // namespace programs
