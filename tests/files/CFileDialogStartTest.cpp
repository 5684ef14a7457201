#include <CFileDialog.h>

#include "FileDialogTest.h"

#include <type_traits>

using TEVU::CFileDialog;

namespace {

class CFileDialogStartTest : public FileDialogTest {
protected:
    // The look-up that comes first in the process.
    void lookUpOnce() {
        CFileDialog dialog;
        user.expectFileDialog({}).cancel();
        EXPECT_FALSE(dialog.GetOpenFileName(allFiles, CFileDialog::UseWorkingDir));
    }
};

TEST_F(CFileDialogStartTest, IsTheHomeDirectoryWhenNothingIsRemembered) {
    expectStartIn(home());
}

TEST_F(CFileDialogStartTest, IsTheLoadingDirectory) {
    remember("loadingdir", dir.makeFolder("images"));

    expectStartIn(dir.path("images"));
}

TEST_F(CFileDialogStartTest, IsTheSavingDirectoryOfThisRunWithoutALoadingDirectory) {
    lookUpOnce();
    remember("savingdir", dir.makeFolder("results"));

    expectStartIn(dir.path("results"));
}

TEST_F(CFileDialogStartTest, IsTheLoadingDirectoryBeforeTheSavingDirectoryOfThisRun) {
    lookUpOnce();
    remember("savingdir", dir.makeFolder("results"));
    remember("loadingdir", dir.makeFolder("images"));

    expectStartIn(dir.path("images"));
}

TEST_F(CFileDialogStartTest, IsTheSavingDirectoryOfThisRunWhenTheLoadingDirectoryHasVanished) {
    lookUpOnce();
    remember("savingdir", dir.makeFolder("results"));
    remember("loadingdir", dir.path("vanished"));

    expectStartIn(dir.path("results"));
}

TEST_F(CFileDialogStartTest, IsTheHomeDirectoryWhenTheLoadingDirectoryHasVanished) {
    remember("loadingdir", dir.path("vanished"));

    expectStartIn(home());
}

TEST_F(CFileDialogStartTest, IsTheHomeDirectoryWhenBothRememberedDirectoriesHaveVanished) {
    lookUpOnce();
    remember("savingdir", dir.path("vanished too"));
    remember("loadingdir", dir.path("vanished"));

    expectStartIn(home());
}

TEST_F(CFileDialogStartTest, IsTheHomeDirectoryWhenTheLoadingDirectoryIsEmpty) {
    remember("loadingdir", "");

    expectStartIn(home());
}

TEST_F(CFileDialogStartTest, LeavesVanishedDirectoriesInTheRegistry) {
    lookUpOnce();
    remember("savingdir", dir.path("vanished too"));
    remember("loadingdir", dir.path("vanished"));

    expectStartIn(home());

    EXPECT_EQ(remembered(), (Lines{"loadingdir=" + dir.path("vanished"),
                                   "savingdir=" + dir.path("vanished too")}));
}

TEST_F(CFileDialogStartTest, TakesALoadingDirectoryThatIsAFileBecauseItExists) {
    remember("loadingdir", makeFile("images/a.tif"));
    user.expectFileDialog({"opendialog", {}, dir.path("images"), "a.tif"}).cancel();
    CFileDialog dialog;

    EXPECT_FALSE(dialog.GetOpenFileName(allFiles, CFileDialog::UseWorkingDir));
}

TEST_F(CFileDialogStartTest, LoadingDirectoryThatIsNoTextIsPassedOver) {
    rememberNumber("loadingdir");

    expectStartIn(home());
}

TEST_F(CFileDialogStartTest, SavingDirectoryThatIsNoTextIsPassedOver) {
    lookUpOnce();
    rememberNumber("savingdir");

    expectStartIn(home());
}

TEST_F(CFileDialogStartTest, FirstLookUpDeletesTheSavingDirectoryOfAnEarlierRun) {
    SecondProcess laterRun(&remembered);
    const auto rememberIt = [](const SecondProcess::Arguments& results) {
        remember("savingdir", results[0]);
        return Lines{"done"};
    };
    SecondProcess earlierRun(rememberIt, {dir.makeFolder("results")});
    ASSERT_EQ(earlierRun.result(), Lines{"done"});

    expectStartIn(home());

    EXPECT_EQ(remembered(), Lines());
    EXPECT_EQ(laterRun.result(), Lines());
}

TEST_F(CFileDialogStartTest, FirstLookUpDeletesASavingDirectoryThatIsNoTextToo) {
    rememberNumber("savingdir");

    expectStartIn(home());

    EXPECT_EQ(remembered(), Lines());
}

TEST_F(CFileDialogStartTest, FirstLookUpDeletesASavingDirectoryOfThisRunToo) {
    remember("savingdir", dir.makeFolder("results"));

    expectStartIn(home());

    EXPECT_EQ(remembered(), Lines());
}

TEST_F(CFileDialogStartTest, FirstLookUpDeletesTheSavingDirectoryThoughALoadingDirectoryIsUsed) {
    remember("savingdir", dir.makeFolder("results"));
    remember("loadingdir", dir.makeFolder("images"));

    expectStartIn(dir.path("images"));

    EXPECT_EQ(remembered(), Lines{"loadingdir=" + dir.path("images")});
}

TEST_F(CFileDialogStartTest, LaterLookUpsLeaveTheSavingDirectory) {
    lookUpOnce();
    remember("savingdir", dir.makeFolder("results"));
    lookUpOnce();

    EXPECT_EQ(remembered(), Lines{"savingdir=" + dir.path("results")});
}

TEST_F(CFileDialogStartTest, GivenDirectoryIsUsedInsteadOfTheRememberedOne) {
    remember("loadingdir", dir.makeFolder("images"));
    user.expectFileDialog(openIn(dir.makeFolder("given"))).cancel();
    CFileDialog dialog;

    EXPECT_FALSE(dialog.GetOpenFileName(allFiles, dir.path("given")));
}

TEST_F(CFileDialogStartTest, GivenDirectoryIsNoLookUpAndLeavesTheEarlierSavingDirectory) {
    remember("savingdir", dir.makeFolder("results"));
    user.expectFileDialog({}).cancel();
    CFileDialog dialog;

    EXPECT_FALSE(dialog.GetOpenFileName(allFiles, dir.path()));

    EXPECT_EQ(remembered(), Lines{"savingdir=" + dir.path("results")});
}

TEST_F(CFileDialogStartTest, FirstLookUpIsTheFirstOneEvenAfterAGivenDirectory) {
    remember("savingdir", dir.makeFolder("results"));
    user.expectFileDialog({}).cancel();
    CFileDialog dialog;
    EXPECT_FALSE(dialog.GetOpenFileName(allFiles, dir.path()));

    expectStartIn(home());

    EXPECT_EQ(remembered(), Lines());
}

TEST_F(CFileDialogStartTest, MarkerIsAnEmptyText) {
    EXPECT_EQ(CFileDialog::UseWorkingDir, "");
    EXPECT_TRUE(std::is_const<decltype(CFileDialog::UseWorkingDir)>::value);
}

TEST_F(CFileDialogStartTest, EmptyTextThatIsNotTheMarkerItselfGoesToTheToolkitAsItIs) {
    remember("loadingdir", dir.makeFolder("images"));
    remember("savingdir", dir.makeFolder("results"));
    const std::string copy = CFileDialog::UseWorkingDir;
    user.expectFileDialog(openIn(workingFolder())).cancel(); // the toolkit's choice for no folder
    CFileDialog dialog;

    EXPECT_FALSE(dialog.GetOpenFileName(allFiles, copy));

    EXPECT_EQ(remembered(), (Lines{"loadingdir=" + dir.path("images"),
                                   "savingdir=" + dir.path("results")})); // no look-up
}

TEST_F(CFileDialogStartTest, SeveralFilesStartInTheLoadingDirectory) {
    remember("savingdir", dir.makeFolder("results"));
    remember("loadingdir", dir.makeFolder("images"));
    user.expectFileDialog(openSeveralIn(dir.path("images"))).cancel();
    CFileDialog dialog;

    EXPECT_EQ(dialog.GetOpenFileNames(allFiles, CFileDialog::UseWorkingDir), 0);

    EXPECT_EQ(remembered(), Lines{"loadingdir=" + dir.path("images")});
}

TEST_F(CFileDialogStartTest, SeveralFilesStartInTheHomeDirectoryWhenNothingIsRemembered) {
    user.expectFileDialog(openSeveralIn(home())).cancel();
    CFileDialog dialog;

    EXPECT_EQ(dialog.GetOpenFileNames(allFiles, CFileDialog::UseWorkingDir), 0);
}

TEST_F(CFileDialogStartTest, SeveralFilesWithAnEmptyTextThatIsNotTheMarkerStartAsTheToolkitLikes) {
    remember("loadingdir", dir.makeFolder("images"));
    user.expectFileDialog(openSeveralIn(workingFolder())).cancel();
    CFileDialog dialog;

    EXPECT_EQ(dialog.GetOpenFileNames(allFiles, std::string()), 0);
}

TEST_F(CFileDialogStartTest, SeveralFilesStartInAGivenDirectory) {
    remember("loadingdir", dir.makeFolder("images"));
    user.expectFileDialog(openSeveralIn(dir.makeFolder("given"))).cancel();
    CFileDialog dialog;

    EXPECT_EQ(dialog.GetOpenFileNames(allFiles, dir.path("given")), 0);
}

} // namespace
