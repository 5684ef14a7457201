#ifndef RUQLIB2CORE_TESTFOLDER_H
#define RUQLIB2CORE_TESTFOLDER_H

#include <System.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

/// A folder of a test's own, gone with it. It belongs to the ordinary user of asOrdinaryUser().
class TestFolder {
public:
    TestFolder() {
        // Without links in it, as the system names the files that are open there.
        const std::filesystem::path temporary =
            std::filesystem::canonical(std::filesystem::temp_directory_path());
        m_sPath = support::makeFreshFolder((temporary / "core-").generic_string());
        EXPECT_NE(m_sPath, "");
        support::giveAway(m_sPath, c_nOrdinaryUser);
    }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_sPath, ignored);
    }

    std::string Path(const std::string& name) const { return m_sPath + "/" + name; }

    void Write(const std::string& name, const std::string& bytes) const {
        std::ofstream(Path(name), std::ios::binary) << bytes;
    }

    std::string Read(const std::string& name) const {
        std::ifstream file(Path(name), std::ios::binary);
        EXPECT_TRUE(file) << Path(name);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }

    /// In order; those with this at their end.
    std::vector<std::string> Names(const std::string& end = "") const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_sPath)) {
            const std::string name = entry.path().filename().string();
            if (name.size() >= end.size() &&
                name.compare(name.size() - end.size(), std::string::npos, end) == 0)
                names.push_back(name);
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    static constexpr unsigned c_nOrdinaryUser = 65534; ///< nobody

private:
    std::string m_sPath;
};

#endif
