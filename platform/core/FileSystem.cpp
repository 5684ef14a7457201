#include "FileSystem.h"

#include <ruqlib2core/CException.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>

namespace TEVU {
namespace FileSystem {

namespace {

const char* const c_sNewFileEnding = ".new";
const std::size_t c_nRandomDigits = 16;

#ifdef _WIN32
const char* const c_sSeparators = "/\\";
#else
const char* const c_sSeparators = "/";
#endif

std::string newFileBeginning(const std::string& target) {
    // File systems end names at 255 bytes; what is added must fit.
    return nameOf(target).substr(0, 200) + ".";
}

} // namespace

std::string folderOf(const std::string& path) {
    const std::size_t separator = path.find_last_of(c_sSeparators);
    if (separator == std::string::npos)
        return ".";
    return separator == 0 ? path.substr(0, 1) : path.substr(0, separator);
}

std::string nameOf(const std::string& path) {
    return path.substr(path.find_last_of(c_sSeparators) + 1);
}

void writeFile(const std::string& path, const std::string& bytes) {
    std::ofstream file(std::filesystem::u8path(path), std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file)
        throw CException("writeFile", path + ": could not be written");
}

std::string newFileName(const std::string& target) {
    std::random_device random;
    char digits[c_nRandomDigits + 1];
    std::snprintf(digits, sizeof digits, "%08x%08x", random(), random());
    return folderOf(target) + "/" + newFileBeginning(target) + digits + c_sNewFileEnding;
}

bool isNewFileName(const std::string& name, const std::string& target) {
    const std::string beginning = newFileBeginning(target);
    if (name.size() != beginning.size() + c_nRandomDigits + std::string(c_sNewFileEnding).size())
        return false;
    const std::string digits = name.substr(beginning.size(), c_nRandomDigits);
    return name.compare(0, beginning.size(), beginning) == 0 &&
           digits.find_first_not_of("0123456789abcdef") == std::string::npos &&
           name.compare(beginning.size() + c_nRandomDigits, std::string::npos, c_sNewFileEnding) ==
               0;
}

} // namespace FileSystem
} // namespace TEVU
