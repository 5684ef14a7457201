#include <qt3/Picture.h>

#include <qt3/Widget.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <unistd.h>

namespace {

/// A file name of this process, removed in the end.
class CTemporaryPath {
public:
    CTemporaryPath()
        : m_sPath(testing::TempDir() + "ruqgui-picture-" + std::to_string(getpid()) + ".png") {}
    ~CTemporaryPath() { std::filesystem::remove(m_sPath); }

    const std::string& text() const { return m_sPath; }

private:
    std::string m_sPath;
};

std::string contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

unsigned bigEndian(const std::string& bytes, std::size_t at) {
    unsigned value = 0;
    for (std::size_t i = at; i < at + 4; ++i)
        value = value * 256 + static_cast<unsigned char>(bytes.at(i));
    return value;
}

} // namespace

TEST(PictureTest, PngFileHasTheSizeOfTheWidget) {
    const CTemporaryPath path;
    qt3::Widget widget;
    widget.resize(33, 22);
    ASSERT_TRUE(qt3::savePicture(&widget, path.text()));
    const std::string bytes = contents(path.text());
    EXPECT_EQ(bytes.substr(0, 4), "\x89PNG");
    EXPECT_EQ(bigEndian(bytes, 16), 33u);
    EXPECT_EQ(bigEndian(bytes, 20), 22u);
}

TEST(PictureTest, MissingFolderIsAFailure) {
    qt3::Widget widget;
    EXPECT_FALSE(qt3::savePicture(&widget, "/missing-folder/picture.png"));
}
