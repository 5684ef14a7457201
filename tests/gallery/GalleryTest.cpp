#include "TempDir.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/wait.h>

// The program itself, run as a user runs it.

namespace {

class GalleryTest : public testing::Test {
protected:
    /// Runs the gallery; its exit status, with what it wrote in Output().
    int Run(const std::string& arguments, const std::string& environment = "") {
        const std::string command = "env " + environment + " RUQ_REGISTRY='" +
                                    m_dir.path("registry.json") + "' '" + GALLERY_PROGRAM + "' " +
                                    arguments + " >'" + m_dir.path("output") + "' 2>&1";
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    std::string Output() const { return m_dir.read("output"); }

    bool IsPicture(const std::string& name) const {
        return m_dir.read(name).compare(0, 8, "\x89PNG\r\n\x1a\n") == 0;
    }

    support::TempDir m_dir;
};

} // namespace

TEST_F(GalleryTest, HelpIsAnsweredWithoutAScreen) {
    EXPECT_EQ(Run("--help", "-u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb"), 0);
    EXPECT_EQ(Output().compare(0, 14, "Usage: gallery"), 0) << Output();
}

TEST_F(GalleryTest, AnUnknownPageIsAnErrorThatNamesIt) {
    EXPECT_EQ(Run("--page Nowhere"), 1);
    EXPECT_NE(Output().find("There is no page \"Nowhere\""), std::string::npos) << Output();
}

TEST_F(GalleryTest, AScreenshotOfEachPageIsWritten) {
    EXPECT_EQ(Run("--screenshots '" + m_dir.path("new folder/shots") + "'"), 0) << Output();

    for (const char* page :
         {"image-header", "files", "numbers", "sliders", "data", "small-widgets"})
        EXPECT_TRUE(IsPicture(std::string("new folder/shots/") + page + ".png")) << page;
    EXPECT_EQ(Output().find("Invalid parameters"), std::string::npos) << Output(); // of painting
}

TEST_F(GalleryTest, AFileThatIsNoImageDoesNotKeepItFromOpening) {
    m_dir.writeFile("broken.tif", "II*, and then nothing");

    EXPECT_EQ(Run("--image '" + m_dir.path("broken.tif") + "' --screenshots '" +
                  m_dir.path("shots") + "'"),
              0)
        << Output();
    EXPECT_TRUE(IsPicture("shots/image-header.png"));
}

TEST_F(GalleryTest, AFolderThatCannotBeMadeIsAnError) {
    m_dir.writeFile("file");

    EXPECT_EQ(Run("--screenshots '" + m_dir.path("file/shots") + "'"), 1);
    EXPECT_NE(Output().find("gallery: "), std::string::npos) << Output();
}
