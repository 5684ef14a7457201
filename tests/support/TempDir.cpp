#include "TempDir.h"

#include "System.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace support {

namespace fs = std::filesystem;

namespace {

void makeRemovable(const fs::path& folder) {
    std::error_code error;
    fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, error);
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
        if (entry.is_directory(error) && !entry.is_symlink(error))
            makeRemovable(entry.path());
    }
}

void removeAll(const fs::path& path) {
    std::error_code error;
    if (fs::is_directory(path, error) && !fs::is_symlink(path, error))
        makeRemovable(path);
    fs::remove_all(path, error);
    EXPECT_FALSE(error) << path << ": " << error.message();
}

} // namespace

TempDir::TempDir() {
    const fs::path temporary = fs::canonical(fs::temp_directory_path());
    m_sPath = makeFreshFolder((temporary / "ruqgui-test-").generic_string());
    EXPECT_NE(m_sPath, "") << temporary;
}

TempDir::~TempDir() {
    removeAll(m_sPath);
}

std::string TempDir::makeFolder(const std::string& name) const {
    std::error_code error;
    fs::create_directories(fs::u8path(path(name)), error);
    EXPECT_FALSE(error) << path(name) << ": " << error.message();
    return path(name);
}

std::string TempDir::writeFile(const std::string& name, const std::string& content) const {
    std::ofstream file(fs::u8path(path(name)), std::ios::binary);
    file << content;
    file.close();
    EXPECT_TRUE(file) << path(name);
    return path(name);
}

std::string TempDir::makeLink(const std::string& name, const std::string& target) const {
    std::error_code error;
    fs::create_symlink(target, path(name), error);
    EXPECT_FALSE(error) << path(name) << ": " << error.message();
    return path(name);
}

std::string TempDir::read(const std::string& name) const {
    const std::ifstream file(fs::u8path(path(name)), std::ios::binary);
    std::ostringstream content;
    if (file)
        content << file.rdbuf();
    return content.str();
}

bool TempDir::exists(const std::string& name) const {
    std::error_code error;
    return fs::exists(fs::u8path(path(name)), error);
}

void TempDir::remove(const std::string& name) const {
    removeAll(fs::u8path(path(name)));
}

void TempDir::setPermissions(const std::string& name, unsigned mode) const {
    std::error_code error;
    fs::permissions(fs::u8path(path(name)), fs::perms(mode), error);
    EXPECT_FALSE(error) << path(name) << ": " << error.message();
}

} // namespace support
