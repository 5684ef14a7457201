#include "FilesPage.h"

#include "Events.h"
#include "LeastWidth.h"
#include "ModalDriver.h"
#include "Options.h"
#include "SignalLog.h"
#include "System.h"
#include "TempDir.h"

#include <CFileLineWidget.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <qt3/Application.h>
#include <qt3/Descendants.h>
#include <qt3/Label.h>
#include <qt3/PushButton.h>
#include <qt3/Text.h>
#include <qt3/TextEdit.h>

namespace {

/// The page in a window, used as a user does.
class FilesPageTest : public testing::Test {
protected:
    FilesPageTest() {
        support::setVariable("RUQ_REGISTRY", m_dir.path("registry.json"));
        qt3::setMainWidget(&m_window);
        m_pPage = createFilesPage(&m_window, m_log, Options());
        m_pPage->resize(900, 600);
        m_window.resize(900, 600);
        support::show(&m_window);
    }

    ~FilesPageTest() override { qt3::setMainWidget(nullptr); }

    /// By its text.
    void click(const std::string& text) {
        for (QObject* object : qt3::descendants(m_pPage)) {
            auto* const button = dynamic_cast<qt3::PushButton*>(object);
            if (button && qt3::ascii(button->text()) == text)
                return support::mouseClick(button);
        }
        ADD_FAILURE() << "no button " << text;
    }

    void browse(const char* line) {
        auto* const widget = support::child<TEVU::CFileLineWidget>(m_pPage, line);
        support::mouseClick(support::child<qt3::PushButton>(widget));
    }

    std::string label(const char* name) {
        return qt3::ascii(support::child<qt3::Label>(m_pPage, name)->text());
    }

    std::string pane(const char* name) {
        return qt3::ascii(support::child<qt3::TextEdit>(m_pPage, name)->text());
    }

    const support::TempDir m_dir;
    QWidget m_window;
    SignalLog m_log{&m_window, "log"};
    QWidget* m_pPage;
    support::ModalDriver m_user;
};

} // namespace

TEST_F(FilesPageTest, ShowsWhatWasChosenAndWhatIsRemembered) {
    const std::string path = m_dir.writeFile("mesh.rek.gz");
    m_user.expectFileDialog({}).choose(path);

    click("Open one file...");

    EXPECT_EQ(label("result"), "Chosen:");
    EXPECT_EQ(pane("chosenPaths"), path);
    EXPECT_EQ(label("extension"), "Extension: rek.gz");
    EXPECT_EQ(pane("rememberedPaths"), "loadingdir:  " + m_dir.path() + "\nsavingdir:  -\n" +
                                           "lastimage0:  " + path +
                                           "\nlastimage1:  -\nlastimage2:  -\nlastimage3:  -\n");
}

TEST_F(FilesPageTest, CancelKeepsTheLastChoiceIfThereIsOne) {
    const std::string path = m_dir.writeFile("a.tif");
    m_user.expectFileDialog({}).cancel();
    click("Open several files...");
    EXPECT_EQ(label("result"), "Cancelled");

    m_user.expectFileDialog({}).choose(path);
    m_user.expectFileDialog({}).cancel();
    click("Open several files...");
    click("Open several files...");

    EXPECT_EQ(label("result"), "Cancelled. Still from the last choice:");
    EXPECT_EQ(pane("chosenPaths"), path);
}

TEST_F(FilesPageTest, ShowsWhatALineOfAFormMadeTheLibraryRemember) {
    const std::string path = m_dir.writeFile("a.tif");
    m_user.expectFileDialog({}).choose(path);

    browse("openLine");

    EXPECT_NE(pane("rememberedPaths").find("lastimage0:  " + path), std::string::npos)
        << pane("rememberedPaths");
}

TEST_F(FilesPageTest, ShowsWhatOtherPagesMadeTheLibraryRememberWhenItIsShownAgain) {
    const std::string path = m_dir.writeFile("a.tif");
    m_user.expectFileDialog({}).choose(path);
    m_pPage->hide();

    EXPECT_TRUE(TEVU::CFileDialog(&m_window).GetOpenFileName("All (*)", m_dir.path()));
    m_pPage->show();

    EXPECT_NE(pane("rememberedPaths").find("lastimage0:  " + path), std::string::npos)
        << pane("rememberedPaths");
}

TEST_F(FilesPageTest, LongPathsDoNotWidenIt) {
    const int width = leastWidth(m_pPage);
    const std::string folder = std::string(100, 'd');
    std::filesystem::create_directory(m_dir.path(folder));
    m_user.expectFileDialog({}).choose(m_dir.writeFile(folder + '/' + std::string(100, 'f')));

    click("Open one file...");

    EXPECT_GT(label("extension").size(), 200u); // the whole path, for want of a dot
    EXPECT_LE(leastWidth(m_pPage), width);
}
