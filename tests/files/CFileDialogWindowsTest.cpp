#include <CFileDialog.h>

#include "FileDialogTest.h"
#include "FileExtension.h"
#include "Share.h"

#include <algorithm>

// What paths and permissions are on Windows only.

using support::onShare;
using support::withBackslashes;
using TEVU::CFileDialog;

namespace {

const unsigned c_readOnly = 0444;
const unsigned c_writable = 0666;

class CFileDialogWindowsTest : public FileDialogTest {
protected:
    /// "C:/"
    std::string drive() const { return dir.path().substr(0, 3); }

    static bool save(CFileDialog& dialog, const std::string& proposal = "scan") {
        return dialog.GetSaveFileName(proposal, "Images (*.png)", CFileDialog::eOverwrite);
    }
};

TEST_F(CFileDialogWindowsTest, StartsInARememberedFolderWithBackslashes) {
    remember("loadingdir", withBackslashes(dir.makeFolder("images")));

    expectStartIn(dir.path("images"));
}

TEST_F(CFileDialogWindowsTest, StartsInARememberedDrive) {
    remember("loadingdir", drive());

    user.expectFileDialog({"opendialog", {}, {}, ""}).cancel();
    CFileDialog dialog;
    EXPECT_FALSE(dialog.GetOpenFileName(allFiles, CFileDialog::UseWorkingDir));
}

TEST_F(CFileDialogWindowsTest, DriveThatIsNotThereIsPassedOver) {
    remember("loadingdir", "B:/images");

    expectStartIn(home());
}

TEST_F(CFileDialogWindowsTest, ShareThatIsNotThereIsPassedOver) {
    remember("loadingdir", "//no-such-server.invalid/images");

    expectStartIn(home());
}

TEST_F(CFileDialogWindowsTest, StartsInARememberedFolderOnAShare) {
    NEEDS_A_SHARE_OF(dir.path());
    const std::string folder = onShare(dir.makeFolder("images"));
    remember("loadingdir", withBackslashes(folder));

    expectStartIn(folder);
}

TEST_F(CFileDialogWindowsTest, FolderOnAShareIsRememberedWithSlashes) {
    NEEDS_A_SHARE_OF(dir.path());
    const std::string path = onShare(makeFile("images/a.tif"));
    user.expectFileDialog({}).choose(withBackslashes(path));
    CFileDialog dialog;

    EXPECT_TRUE(dialog.GetOpenFileName(allFiles, CFileDialog::UseWorkingDir));

    EXPECT_EQ(dialog.FilePath(), path);
    const Lines lines = remembered();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "loadingdir=" + onShare(dir.path("images"))),
              1);
}

TEST_F(CFileDialogWindowsTest, ProposalOnAShareIsNoRelativeOneAndGetsItsExtension) {
    NEEDS_A_SHARE_OF(dir.path());
    const std::string folder = onShare(dir.makeFolder("results"));
    user.expectFileDialog(saveIn(folder, "scan.png")).accept();
    CFileDialog dialog;

    EXPECT_TRUE(save(dialog, withBackslashes(folder) + "\\scan"));

    EXPECT_EQ(dialog.FilePath(), folder + "/scan.png");
    EXPECT_EQ(listOf(dir.path("results")), Lines()); // the probe has left nothing
}

TEST_F(CFileDialogWindowsTest, ReadOnlyFileOnAShareIsNotWritable) {
    NEEDS_A_SHARE_OF(dir.path());
    const QString name = toText(withBackslashes(onShare(makeFile("a.png"))));
    dir.setPermissions("a.png", c_readOnly);

    EXPECT_TRUE(CFileDialog::IsFileReadable(name, nullptr, true));
    EXPECT_FALSE(CFileDialog::IsFileWritable(name, nullptr, true));

    dir.setPermissions("a.png", c_writable);
    EXPECT_TRUE(CFileDialog::IsFileWritable(name, nullptr, true));
}

TEST_F(CFileDialogWindowsTest, ProposalWithADriveIsNoRelativeOne) {
    const std::string proposal = withBackslashes(dir.makeFolder("results")) + "\\scan.png";
    user.expectFileDialog(saveIn(dir.path("results"), "scan.png")).accept();
    CFileDialog dialog;

    EXPECT_TRUE(save(dialog, proposal));

    EXPECT_EQ(dialog.FilePath(), dir.path("results/scan.png"));
}

TEST_F(CFileDialogWindowsTest, ChosenPathWithBackslashesIsKeptWithSlashes) {
    const std::string path = makeFile("images/a.tif");
    user.expectFileDialog({}).choose(withBackslashes(path));
    CFileDialog dialog;

    EXPECT_TRUE(dialog.GetOpenFileName(allFiles, CFileDialog::UseWorkingDir));

    EXPECT_EQ(dialog.FilePath(), path);
    const Lines lines = remembered();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "loadingdir=" + dir.path("images")), 1);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "lastimage0=" + path), 1);
}

TEST_F(CFileDialogWindowsTest, ExtensionIsFoundBehindDrivesAndShares) {
    EXPECT_EQ(TEVU::missingExtension("C:\\images\\scan.png", "Images (*.png)"), "");
    EXPECT_EQ(TEVU::missingExtension("C:\\images\\scan", "Images (*.png)"), ".png");
    EXPECT_EQ(TEVU::missingExtension("\\\\server\\images\\scan.PNG", "Images (*.png)"), "");
    EXPECT_EQ(TEVU::missingExtension("\\\\server\\images.v2\\scan", "Images (*.png)"), ".png");
    EXPECT_EQ(TEVU::missingExtension("//server/images.v2/scan.png", "Images (*.png)"), "");
    EXPECT_EQ(TEVU::fileExtension("C:\\images\\scan.stl.gz"), "stl.gz");
}

TEST_F(CFileDialogWindowsTest, ReadOnlyFileIsReadableAndNotWritable) {
    const QString name = toText(makeFile("a.png"));
    dir.setPermissions("a.png", c_readOnly);

    EXPECT_TRUE(CFileDialog::IsFileReadable(name, nullptr, true));
    EXPECT_FALSE(CFileDialog::IsFileWritable(name, nullptr, true));

    dir.setPermissions("a.png", c_writable);
    EXPECT_TRUE(CFileDialog::IsFileWritable(name, nullptr, true));
}

TEST_F(CFileDialogWindowsTest, ReadOnlyFileIsAskedAboutUntilItIsWritable) {
    const std::string path = makeFile("a.png");
    dir.setPermissions("a.png", c_readOnly);
    user.expectFileDialog({}).choose(path);
    user.expectWarning(existing("Overwrite", path)).answer("Yes");
    user.expectWarning(unwritable(path)).answer("Retry");
    user.expectWarning(unwritable(path))
        .before([this] { dir.setPermissions("a.png", c_writable); })
        .answer("Retry");
    CFileDialog dialog;

    EXPECT_TRUE(save(dialog));

    EXPECT_EQ(dialog.FilePath(), path);
    EXPECT_EQ(dir.read("a.png"), "pixels");
}

TEST_F(CFileDialogWindowsTest, NameThatWindowsReservesIsNotWritable) {
    for (const char* name : {"a?.png", "a*.png", "a<b.png", "a|b.png"})
        EXPECT_FALSE(CFileDialog::IsFileWritable(toText(dir.path(name)), nullptr, true)) << name;
    EXPECT_EQ(listOf(dir.path()), (Lines{"home", "working folder"}));
}

TEST_F(CFileDialogWindowsTest, NameThatNoFileCanHaveOpensTheDialogAgain) {
    const std::string path = dir.path("a<b.png");
    user.expectFileDialog({}).choose(path);
    user.expectWarning(unwritable(path)).answer("Cancel");
    user.expectFileDialog(saveIn(home(), "scan.png")).choose(dir.path("a.png"));
    CFileDialog dialog;

    EXPECT_TRUE(save(dialog));

    EXPECT_EQ(dialog.FilePath(), dir.path("a.png"));
}

} // namespace
