#include "FileDialogTest.h"

#include <CFileDialog.h>
#include <CFileLineWidget.h>
#include <Events.h>
#include <OrdinaryUser.h>
#include <memory>
#include <ostream>
#include <qpushbutton.h>
#include <qwidget.h>

using TEVU::CFileDialog;
using TEVU::CFileLineWidget;

/// An application closes a window while a dialog under it is open. No further dialog may come: the driver
/// tells of each that does.
namespace {

const char* const c_images = "Images (*.png *.tif)";

/// A part of a window that owns the object which asks for files.
class Page : public QWidget {
public:
    explicit Page(QWidget* window) : QWidget(window), dialog(this) {}

    CFileDialog dialog;
};

class DestroyedParentTest : public FileDialogTest {
protected:
    DestroyedParentTest()
        : m_window(std::make_unique<QWidget>(nullptr)), m_page(new Page(m_window.get())) {}

    Page* page() { return m_page; }
    CFileDialog& dialog() { return m_page->dialog; }

    support::FileStep& expectDialog() { return user.expectFileDialog({}).under(m_page); }

    void closeUnder(support::FileStep& step) {
        step.before([this] { m_window.reset(); });
    }
    void closeUnder(support::MessageStep& box) {
        box.under(m_page).before([this] { m_window.reset(); });
    }

    bool save() { return dialog().GetSaveFileName("scan", c_images, CFileDialog::eOverwrite); }
    bool open() { return dialog().GetOpenFileName(allFiles, CFileDialog::UseWorkingDir); }
    int openSeveral() { return dialog().GetOpenFileNames(allFiles, CFileDialog::UseWorkingDir); }

    void expectEnded() {
        EXPECT_FALSE(m_window);
        EXPECT_EQ(remembered(), Lines());
    }

private:
    std::unique_ptr<QWidget> m_window;
    Page* const m_page;
};

TEST_F(DestroyedParentTest, EndsTheDialogForOneFile) {
    closeUnder(expectDialog());

    EXPECT_FALSE(open());
    expectEnded();
}

TEST_F(DestroyedParentTest, EndsTheDialogForSeveralFiles) {
    closeUnder(expectDialog());

    EXPECT_EQ(openSeveral(), 0);
    expectEnded();
}

TEST_F(DestroyedParentTest, EndsTheDialogForSaving) {
    closeUnder(expectDialog());

    EXPECT_FALSE(save());
    expectEnded();
}

TEST_F(DestroyedParentTest, EndsASecondPassToo) {
    expectDialog().choose(dir.path("a.jpg"));
    user.expectWarning(wrongType(".png")).answer("No");
    closeUnder(expectDialog());

    EXPECT_FALSE(save());
    expectEnded();
}

TEST_F(DestroyedParentTest, UnderTheBoxAboutAnUnreadableFileEndsTheOpening) {
    RUN_AS_ORDINARY_USER();
    const std::string path = makeFile("a.tif");
    dir.setPermissions("a.tif", 0000);
    expectDialog().choose(path);
    closeUnder(user.expectWarning(unreadable(path)));

    EXPECT_FALSE(open());
    expectEnded();
}

TEST_F(DestroyedParentTest, UnderTheBoxAboutANameThatIsNotAsciiEndsTheOpening) {
    const std::string path = support::text(makeFileNamed(toText("caf\xc3\xa9.tif")));
    expectDialog().choose(path);
    closeUnder(user.expectWarning(notAscii(path)));

    EXPECT_FALSE(open());
    expectEnded();
}

TEST_F(DestroyedParentTest, UnderTheBoxAboutASecondFileEndsTheOpening) {
    const std::string path = support::text(makeFileNamed(toText("caf\xc3\xa9.tif")));
    expectDialog().chooseSeveral({makeFile("a.tif"), path});
    closeUnder(user.expectWarning(notAscii(path)));

    EXPECT_EQ(openSeveral(), 0);
    expectEnded();
}

TEST_F(DestroyedParentTest, UnderTheQuestionAboutTheExtensionEndsTheSaving) {
    expectDialog().choose(dir.path("a.jpg"));
    closeUnder(user.expectWarning(wrongType(".png")));

    EXPECT_FALSE(save());
    expectEnded();
}

TEST_F(DestroyedParentTest, UnderTheQuestionAboutAnExistingFileEndsTheSaving) {
    expectDialog().choose(makeFile("a.png"));
    closeUnder(user.expectWarning(existing("Overwrite", dir.path("a.png"))));

    EXPECT_FALSE(save());
    expectEnded();
}

TEST_F(DestroyedParentTest, UnderTheBoxAboutALockedPlaceEndsTheSaving) {
    const std::string path = dir.path("none/a.png");
    expectDialog().choose(path);
    user.expectWarning(unwritable(path)).answer("Retry");
    closeUnder(user.expectWarning(unwritable(path)));

    EXPECT_FALSE(save());
    expectEnded();
}

TEST_F(DestroyedParentTest, UnderTheBoxAboutANameThatIsNotAsciiEndsTheSaving) {
    const std::string path = dir.path("caf\xc3\xa9.png");
    expectDialog().choose(path);
    closeUnder(user.expectWarning(notAscii(path)));

    EXPECT_FALSE(save());
    expectEnded();
}

TEST_F(DestroyedParentTest, UnderTheBoxOfACheckFailsIt) {
    const std::string path = dir.path("none/a.png");
    closeUnder(user.expectWarning(unwritable(path)));

    EXPECT_FALSE(CFileDialog::IsFileWritable(toText(path), page(), false));
    expectEnded();
}

struct LineMode {
    const char* name;
    CFileLineWidget::EnDialogMode mode;
};

void PrintTo(const LineMode& row, std::ostream* out) {
    *out << row.name;
}

class DestroyedLineTest : public FileDialogTest, public testing::WithParamInterface<LineMode> {};

TEST_P(DestroyedLineTest, EndsItsDialog) {
    auto window = std::make_unique<QWidget>(nullptr);
    auto* line = new CFileLineWidget("typed", c_images, GetParam().mode, window.get(), "line");
    user.expectFileDialog({}).under(line).before([&] { window.reset(); });

    support::mouseClick(support::child<QPushButton>(line));

    EXPECT_FALSE(window);
    EXPECT_EQ(remembered(), Lines());
}

INSTANTIATE_TEST_SUITE_P(In, DestroyedLineTest,
                         testing::Values(LineMode{"OpenFile", CFileLineWidget::eOpenFile},
                                         LineMode{"SaveFile", CFileLineWidget::eSaveFile},
                                         LineMode{"OpenFiles", CFileLineWidget::eOpenFiles}),
                         [](const testing::TestParamInfo<LineMode>& row) {
                             return std::string(row.param.name);
                         });

} // namespace
