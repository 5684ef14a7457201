#include <CFileDialog.h>

#include "FileDialogTest.h"

#include <SmallDisk.h>
#include <cstdlib>

using support::SmallDisk;
using TEVU::CFileDialog;

namespace {

/// Saving onto disks that are full or may only be read.
class CFileDialogDiskTest : public FileDialogTest {
protected:
    CFileDialogDiskTest() { dir.makeFolder("disk"); }

    std::string onDisk(const std::string& name) const { return dir.path("disk/" + name); }

    static bool save(CFileDialog& dialog) {
        return dialog.GetSaveFileName("scan", "Images (*.png)", CFileDialog::eOverwrite);
    }
};

TEST_F(CFileDialogDiskTest, FullOneIsWritableBecauseNothingIsWritten) {
    RUN_WITH_OWN_DISKS();
    const SmallDisk disk(dir.path("disk"));
    disk.fill();
    CFileDialog dialog;
    user.expectFileDialog({}).choose(onDisk("a.png"));

    EXPECT_TRUE(save(dialog));

    EXPECT_EQ(dialog.FilePath(), onDisk("a.png"));
    EXPECT_EQ(listOf(dir.path("disk")), Lines{"filler"});
}

TEST_F(CFileDialogDiskTest, FullOneKeepsItsFiles) {
    RUN_WITH_OWN_DISKS();
    const SmallDisk disk(dir.path("disk"));
    makeFile("disk/a.png");
    disk.fill();
    CFileDialog dialog;
    user.expectFileDialog({}).choose(onDisk("a.png"));
    user.expectWarning(existing("Overwrite", onDisk("a.png"))).answer("Yes");

    EXPECT_TRUE(save(dialog));

    EXPECT_EQ(dir.read("disk/a.png"), "pixels");
}

TEST_F(CFileDialogDiskTest, OneWithoutRoomForAnotherFileIsAskedAboutUntilThereIs) {
    RUN_WITH_OWN_DISKS();
    const SmallDisk disk(dir.path("disk"));
    disk.takeAllFiles();
    Lines left = listOf(dir.path("disk"));
    left.erase(left.begin());
    CFileDialog dialog;
    user.expectFileDialog({}).choose(onDisk("a.png"));
    user.expectWarning(unwritable(onDisk("a.png"))).answer("Retry");
    user.expectWarning(unwritable(onDisk("a.png")))
        .before([this] { dir.remove("disk/file1"); })
        .answer("Retry");

    EXPECT_TRUE(save(dialog));

    EXPECT_EQ(listOf(dir.path("disk")), left);
}

TEST_F(CFileDialogDiskTest, ReadOnlyOneIsAskedAboutForANewFile) {
    RUN_WITH_OWN_DISKS();
    const SmallDisk disk(dir.path("disk"));
    disk.setReadOnly(true);
    CFileDialog dialog;
    user.expectFileDialog({}).choose(onDisk("a.png"));
    user.expectWarning(unwritable(onDisk("a.png"))).answer("Cancel");
    user.expectFileDialog({}).choose(dir.path("a.png"));

    EXPECT_TRUE(save(dialog));

    EXPECT_EQ(dialog.FilePath(), dir.path("a.png"));
}

TEST_F(CFileDialogDiskTest, ReadOnlyOneIsAskedAboutForAFileThatIsThere) {
    RUN_WITH_OWN_DISKS();
    const SmallDisk disk(dir.path("disk"));
    makeFile("disk/a.png");
    disk.setReadOnly(true);
    CFileDialog dialog;
    user.expectFileDialog({}).choose(onDisk("a.png"));
    user.expectWarning(existing("Overwrite", onDisk("a.png"))).answer("Yes");
    user.expectWarning(unwritable(onDisk("a.png")))
        .before([&disk] { disk.setReadOnly(false); })
        .answer("Retry");

    EXPECT_TRUE(save(dialog));

    EXPECT_EQ(dir.read("disk/a.png"), "pixels");
}

TEST_F(CFileDialogDiskTest, ReadOnlyOneMayBeOpenedFrom) {
    RUN_WITH_OWN_DISKS();
    const SmallDisk disk(dir.path("disk"));
    makeFile("disk/a.png");
    disk.setReadOnly(true);
    CFileDialog dialog;
    user.expectFileDialog({}).choose(onDisk("a.png"));

    EXPECT_TRUE(dialog.GetOpenFileName(allFiles, CFileDialog::UseWorkingDir));

    EXPECT_EQ(remembered().back(), "loadingdir=" + dir.path("disk"));
}

TEST_F(CFileDialogDiskTest, FullOneWithTheRegistryCostsOnlyThatALaterRunRemembersNothing) {
    RUN_WITH_OWN_DISKS();
    const SmallDisk disk(dir.path("disk"));
    disk.fill();
    setenv("RUQ_REGISTRY", onDisk("registry.json").c_str(), true);
    SecondProcess laterRun(&remembered);
    CFileDialog dialog;
    user.expectFileDialog({}).choose(dir.path("a.png"));

    EXPECT_TRUE(save(dialog));

    EXPECT_EQ(dialog.FilePath(), dir.path("a.png"));
    EXPECT_EQ(remembered()[0], "lastimage0=" + dir.path("a.png"));
    EXPECT_EQ(laterRun.result(), Lines());
}

} // namespace
