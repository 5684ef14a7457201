#include "System.h"

#include <cstdlib>
#include <windows.h>

namespace support {

namespace {

const int c_attempts = 1000;

} // namespace

void setVariable(const char* name, const std::string& value) {
    ::_putenv_s(name, value.c_str());
}

void unsetVariable(const char* name) {
    ::_putenv_s(name, "");
}

std::string makeFreshFolder(const std::string& beginning) {
    for (int attempt = 0; attempt < c_attempts; ++attempt) {
        const std::string folder =
            beginning + std::to_string(::GetCurrentProcessId()) + '-' + std::to_string(attempt);
        if (::CreateDirectoryA(folder.c_str(), nullptr))
            return folder;
    }
    return std::string();
}

void giveAway(const std::string&, unsigned) {}

} // namespace support
