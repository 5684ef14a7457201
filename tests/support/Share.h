#ifndef RUQGUI_TESTS_SUPPORT_SHARE_H
#define RUQGUI_TESTS_SUPPORT_SHARE_H

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

/// At the top of a test that goes by a share to what lies at \a path.
#define NEEDS_A_SHARE_OF(path)                                                                     \
    if (!std::filesystem::exists(support::onShare(path)))                                          \
    GTEST_SKIP() << "There is no " << support::onShare(path)                                       \
                 << ": Windows shares its drives with administrators only"

namespace support {

/// The same place by the share that Windows makes of each drive: "//localhost/c$/folder" for "C:/folder".
inline std::string onShare(const std::string& path) {
    const char drive = static_cast<char>(path[0] | 0x20); // as a small letter
    return std::string("//localhost/") + drive + '$' + path.substr(2);
}

inline std::string withBackslashes(std::string path) {
    for (char& sign : path)
        sign = sign == '/' ? '\\' : sign;
    return path;
}

} // namespace support

#endif
