#include "System.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <unistd.h>

namespace support {

void setVariable(const char* name, const std::string& value) {
    setenv(name, value.c_str(), true);
}

void unsetVariable(const char* name) {
    unsetenv(name);
}

std::string makeFreshFolder(const std::string& beginning) {
    std::string pattern = beginning + "XXXXXX";
    return mkdtemp(pattern.data()) ? pattern : std::string();
}

void giveAway(const std::string& path, unsigned user) {
    if (geteuid() != 0)
        return;
    EXPECT_EQ(chown(path.c_str(), user, user), 0) << path;
}

} // namespace support
