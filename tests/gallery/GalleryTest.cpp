#include "Program.h"
#include "System.h"
#include "TempDir.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

// The program itself, run as a user runs it.

namespace {

class GalleryTest : public testing::Test {
protected:
    GalleryTest() { support::setVariable("RUQ_REGISTRY", m_dir.path("registry.json")); }

    /// Runs the gallery; its exit status, with what it wrote in Output().
    int Run(const std::vector<std::string>& arguments) {
        m_ended = support::runProgram(GALLERY_PROGRAM, arguments);
        return m_ended.status;
    }

    const std::string& Output() const { return m_ended.output; }

    bool IsPicture(const std::string& name) const {
        return m_dir.read(name).compare(0, 8, "\x89PNG\r\n\x1a\n") == 0;
    }

    support::TempDir m_dir;

private:
    support::Ended m_ended = {};
};

/// A variable that is another one, or gone if \a value is empty, as long as this object lives.
class Variable {
public:
    Variable(const char* name, const std::string& value) : m_name(name) {
        const char* before = std::getenv(name);
        m_sBefore = before ? before : "";
        set(value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { set(m_sBefore); }

private:
    void set(const std::string& value) const {
        if (value.empty())
            support::unsetVariable(m_name);
        else
            support::setVariable(m_name, value);
    }

    const char* m_name;
    std::string m_sBefore;
};

} // namespace

TEST_F(GalleryTest, HelpIsAnsweredWithoutAScreen) {
    const Variable display("DISPLAY", "");
    const Variable waylandDisplay("WAYLAND_DISPLAY", "");
    const Variable platform("QT_QPA_PLATFORM", "xcb");

    EXPECT_EQ(Run({"--help"}), 0);
    EXPECT_EQ(Output().compare(0, 14, "Usage: gallery"), 0) << Output();
}

TEST_F(GalleryTest, AnUnknownPageIsAnErrorThatNamesIt) {
    EXPECT_EQ(Run({"--page", "Nowhere"}), 1);
    EXPECT_NE(Output().find("There is no page \"Nowhere\""), std::string::npos) << Output();
}

TEST_F(GalleryTest, AScreenshotOfEachPageIsWritten) {
    EXPECT_EQ(Run({"--screenshots", m_dir.path("new folder/shots")}), 0) << Output();

    for (const char* page :
         {"image-header", "files", "numbers", "sliders", "data", "small-widgets"})
        EXPECT_TRUE(IsPicture(std::string("new folder/shots/") + page + ".png")) << page;
    EXPECT_EQ(Output().find("Invalid parameters"), std::string::npos) << Output(); // of painting
}

TEST_F(GalleryTest, AFileThatIsNoImageDoesNotKeepItFromOpening) {
    m_dir.writeFile("broken.tif", "II*, and then nothing");

    EXPECT_EQ(Run({"--image", m_dir.path("broken.tif"), "--screenshots", m_dir.path("shots")}), 0)
        << Output();
    EXPECT_TRUE(IsPicture("shots/image-header.png"));
}

TEST_F(GalleryTest, AFolderThatCannotBeMadeIsAnError) {
    m_dir.writeFile("file");

    EXPECT_EQ(Run({"--screenshots", m_dir.path("file/shots")}), 1);
    EXPECT_NE(Output().find("gallery: "), std::string::npos) << Output();
}

TEST_F(GalleryTest, NamesOutsideAsciiAreTakenAsTheyStand) {
    EXPECT_EQ(Run({"--screenshots", m_dir.path("Bilder-\xc3\xa4\xc5\x82")}), 0) << Output();

    EXPECT_TRUE(std::filesystem::exists(
        std::filesystem::u8path(m_dir.path("Bilder-\xc3\xa4\xc5\x82/sliders.png"))));
}
