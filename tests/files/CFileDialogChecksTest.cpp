#include <CFileDialog.h>

#include "FileDialogTest.h"
#include "ScriptedUser.h"

#include <Events.h>
#include <OrdinaryUser.h>
#include <System.h>
#include <filesystem>
#include <ostream>
#include <qwidget.h>

namespace fs = std::filesystem;
using TEVU::CFileDialog;

namespace {

using CFileDialogReadableTest = FileDialogTest;

TEST_F(CFileDialogReadableTest, ReadableFilePassesWithoutABox) {
    const QString name = toText(makeFile("a.tif"));

    EXPECT_TRUE(CFileDialog::IsFileReadable(name, nullptr, true));
    EXPECT_TRUE(CFileDialog::IsFileReadable(name, nullptr, false));
    EXPECT_EQ(user.log(), Lines());
}

TEST_F(CFileDialogReadableTest, MissingFileFailsSilently) {
    EXPECT_FALSE(CFileDialog::IsFileReadable(toText(dir.path("none")), nullptr, true));
    EXPECT_EQ(user.log(), Lines());
}

TEST_F(CFileDialogReadableTest, LockedFileFailsSilently) {
    RUN_AS_ORDINARY_USER();
    makeFile("a.tif");
    dir.setPermissions("a.tif", 0200);

    EXPECT_FALSE(CFileDialog::IsFileReadable(toText(dir.path("a.tif")), nullptr, true));
    EXPECT_EQ(user.log(), Lines());
}

TEST_F(CFileDialogReadableTest, FileInALockedFolderFailsSilently) {
    RUN_AS_ORDINARY_USER();
    const std::string path = makeFile("locked/a.tif");
    dir.setPermissions("locked", 0000);

    EXPECT_FALSE(CFileDialog::IsFileReadable(toText(path), nullptr, true));
}

TEST_F(CFileDialogReadableTest, LinkIsWhatItLeadsTo) {
    RUN_AS_ORDINARY_USER();
    const std::string readable = dir.makeLink("readable.tif", makeFile("a.tif"));
    const std::string locked = dir.makeLink("locked.tif", makeFile("b.tif"));
    const std::string toNothing = dir.makeLink("none.tif", dir.path("c.tif"));
    dir.setPermissions("b.tif", 0000);

    EXPECT_TRUE(CFileDialog::IsFileReadable(toText(readable), nullptr, true));
    EXPECT_FALSE(CFileDialog::IsFileReadable(toText(locked), nullptr, true));
    EXPECT_FALSE(CFileDialog::IsFileReadable(toText(toNothing), nullptr, true));
}

TEST_F(CFileDialogReadableTest, MissingFileIsAskedAboutUntilItIsThere) {
    QWidget window(nullptr);
    const std::string path = dir.path("a.tif");
    user.expectWarning(unreadable(path)).under(&window).answer("Retry");
    user.expectWarning(unreadable(path)).under(&window).enter();
    user.expectWarning(unreadable(path))
        .under(&window)
        .before([&] { makeFile("a.tif"); })
        .answer("Retry");

    EXPECT_TRUE(CFileDialog::IsFileReadable(toText(path), &window, false));
}

TEST_F(CFileDialogReadableTest, CancelFails) {
    const std::string path = dir.path("a.tif");
    user.expectWarning(unreadable(path)).answer("Cancel");
    user.expectWarning(unreadable(path)).escape();
    user.expectWarning(unreadable(path)).close();

    EXPECT_FALSE(CFileDialog::IsFileReadable(toText(path), nullptr, false));
    EXPECT_FALSE(CFileDialog::IsFileReadable(toText(path), nullptr, false));
    EXPECT_FALSE(CFileDialog::IsFileReadable(toText(path), nullptr, false));
}

TEST_F(CFileDialogReadableTest, CancelFailsEvenIfTheFileHasBecomeReadable) {
    const std::string path = dir.path("a.tif");
    user.expectWarning(unreadable(path)).before([&] { makeFile("a.tif"); }).answer("Cancel");

    EXPECT_FALSE(CFileDialog::IsFileReadable(toText(path), nullptr, false));
}

TEST_F(CFileDialogReadableTest, CancelAfterRetryFails) {
    const std::string path = dir.path("a.tif");
    user.expectWarning(unreadable(path)).answer("Retry");
    user.expectWarning(unreadable(path)).answer("Cancel");

    EXPECT_FALSE(CFileDialog::IsFileReadable(toText(path), nullptr, false));
}

TEST_F(CFileDialogReadableTest, NameIsShownAsItStands) {
    const std::string path = "/no/%1 %2 &file <b>bold</b>\t.tif";
    user.expectWarning(unreadable(path)).answer("Cancel");

    EXPECT_FALSE(CFileDialog::IsFileReadable(toText(path), nullptr, false));
}

TEST_F(CFileDialogReadableTest, NameThatBeginsWithAColonIsThatOfAFile) {
    NOT_ON_WINDOWS(noSuchNames);
    dir.writeFile("working folder/:a.tif");

    EXPECT_TRUE(CFileDialog::IsFileReadable(":a.tif", nullptr, true));
    EXPECT_FALSE(CFileDialog::IsFileReadable(":b.tif", nullptr, true));
    EXPECT_FALSE(CFileDialog::IsFileReadable(":/", nullptr, true));
}

using CFileDialogWritableTest = FileDialogTest;

TEST_F(CFileDialogWritableTest, NewNameIsTriedAndLeavesNothingBehind) {
    dir.makeFolder("results");

    EXPECT_TRUE(CFileDialog::IsFileWritable(toText(dir.path("results/new.tif")), nullptr, true));
    EXPECT_TRUE(CFileDialog::IsFileWritable(toText(dir.path("results/new.tif")), nullptr, false));

    EXPECT_EQ(listOf(dir.path("results")), Lines());
    EXPECT_EQ(user.log(), Lines());
}

TEST_F(CFileDialogWritableTest, NewNameIsReallyTriedInItsFolder) {
    dir.makeFolder("results");
    support::makeOld(dir.path("results"));
    const fs::file_time_type longAgo = fs::last_write_time(dir.path("results"));

    EXPECT_TRUE(CFileDialog::IsFileWritable(toText(dir.path("results/new.tif")), nullptr, true));

    EXPECT_GT(fs::last_write_time(dir.path("results")), longAgo);
}

TEST_F(CFileDialogWritableTest, ExistingFileIsNotTouched) {
    makeFile("results/old.tif");
    support::makeOld(dir.path("results/old.tif"));
    support::makeOld(dir.path("results"));
    const fs::file_time_type ofFile = fs::last_write_time(dir.path("results/old.tif"));
    const fs::file_time_type ofFolder = fs::last_write_time(dir.path("results"));

    EXPECT_TRUE(CFileDialog::IsFileWritable(toText(dir.path("results/old.tif")), nullptr, false));

    EXPECT_EQ(dir.read("results/old.tif"), "pixels");
    EXPECT_EQ(fs::last_write_time(dir.path("results/old.tif")), ofFile);
    EXPECT_EQ(fs::last_write_time(dir.path("results")), ofFolder);
}

TEST_F(CFileDialogWritableTest, FileThatAppearsJustBeforeTheTrialIsNotTouched) {
    struct LateFile : ScriptedUser {
        bool exists(const QString&) override { return false; }
    } script;
    const std::string path = makeFile("late.tif");

    EXPECT_FALSE(CFileDialog::IsFileWritable(toText(path), nullptr, true));

    EXPECT_EQ(dir.read("late.tif"), "pixels");
}

TEST_F(CFileDialogWritableTest, EmptyExistingFileStays) {
    dir.writeFile("empty.tif");

    EXPECT_TRUE(CFileDialog::IsFileWritable(toText(dir.path("empty.tif")), nullptr, false));

    EXPECT_TRUE(dir.exists("empty.tif"));
}

TEST_F(CFileDialogWritableTest, FolderCountsAsTheExistingFileThatItIsForTheToolkit) {
    dir.makeFolder("results");

    EXPECT_TRUE(CFileDialog::IsFileWritable(toText(dir.path("results")), nullptr, true));

    EXPECT_TRUE(dir.exists("results"));
}

TEST_F(CFileDialogWritableTest, MissingFolderFailsSilently) {
    EXPECT_FALSE(CFileDialog::IsFileWritable(toText(dir.path("none/a.tif")), nullptr, true));

    EXPECT_FALSE(dir.exists("none"));
    EXPECT_EQ(user.log(), Lines());
}

TEST_F(CFileDialogWritableTest, NameThatBeginsWithAColonIsThatOfAFile) {
    NOT_ON_WINDOWS(noSuchNames);
    dir.writeFile("working folder/:a.tif", "pixels");

    EXPECT_TRUE(CFileDialog::IsFileWritable(":a.tif", nullptr, true));
    EXPECT_TRUE(CFileDialog::IsFileWritable(":b.tif", nullptr, true));
    EXPECT_FALSE(CFileDialog::IsFileWritable(":/c.tif", nullptr, true));

    EXPECT_EQ(listOf(workingFolder()), Lines{":a.tif"});
    EXPECT_EQ(dir.read("working folder/:a.tif"), "pixels");
}

TEST_F(CFileDialogWritableTest, EmptyNameFailsSilently) {
    EXPECT_FALSE(CFileDialog::IsFileWritable(QString(), nullptr, true));

    EXPECT_EQ(listOf(workingFolder()), Lines());
}

TEST_F(CFileDialogWritableTest, MissingFolderIsAskedAboutUntilItIsThere) {
    QWidget window(nullptr);
    const std::string path = dir.path("results/a.tif");
    user.expectWarning(unwritable(path)).under(&window).answer("Retry");
    user.expectWarning(unwritable(path)).under(&window).enter();
    user.expectWarning(unwritable(path))
        .under(&window)
        .before([&] { dir.makeFolder("results"); })
        .answer("Retry");

    EXPECT_TRUE(CFileDialog::IsFileWritable(toText(path), &window, false));

    EXPECT_EQ(listOf(dir.path("results")), Lines());
}

TEST_F(CFileDialogWritableTest, RetryLooksAgainWhetherTheFileExists) {
    const std::string path = dir.path("results/a.tif");
    user.expectWarning(unwritable(path)).before([&] { makeFile("results/a.tif"); }).answer("Retry");

    EXPECT_TRUE(CFileDialog::IsFileWritable(toText(path), nullptr, false));

    EXPECT_EQ(dir.read("results/a.tif"), "pixels");
}

TEST_F(CFileDialogWritableTest, CancelFails) {
    const std::string path = dir.path("none/a.tif");
    user.expectWarning(unwritable(path)).answer("Cancel");
    user.expectWarning(unwritable(path)).escape();
    user.expectWarning(unwritable(path)).close();

    EXPECT_FALSE(CFileDialog::IsFileWritable(toText(path), nullptr, false));
    EXPECT_FALSE(CFileDialog::IsFileWritable(toText(path), nullptr, false));
    EXPECT_FALSE(CFileDialog::IsFileWritable(toText(path), nullptr, false));
}

TEST_F(CFileDialogWritableTest, CancelAfterRetryFails) {
    const std::string path = dir.path("none/a.tif");
    user.expectWarning(unwritable(path)).answer("Retry");
    user.expectWarning(unwritable(path)).answer("Cancel");

    EXPECT_FALSE(CFileDialog::IsFileWritable(toText(path), nullptr, false));
}

TEST_F(CFileDialogWritableTest, NameIsShownAsItStands) {
    const std::string path = "/no/%1 %2 &file <b>bold</b>\t.tif";
    user.expectWarning(unwritable(path)).answer("Cancel");

    EXPECT_FALSE(CFileDialog::IsFileWritable(toText(path), nullptr, false));
}

TEST_F(CFileDialogWritableTest, LockedFileIsAskedAboutUntilItIsWritable) {
    RUN_AS_ORDINARY_USER();
    const std::string path = makeFile("a.tif");
    dir.setPermissions("a.tif", 0400);
    user.expectWarning(unwritable(path)).answer("Retry");
    user.expectWarning(unwritable(path))
        .before([&] { dir.setPermissions("a.tif", 0600); })
        .answer("Retry");

    EXPECT_FALSE(CFileDialog::IsFileWritable(toText(path), nullptr, true));
    EXPECT_TRUE(CFileDialog::IsFileWritable(toText(path), nullptr, false));

    EXPECT_EQ(dir.read("a.tif"), "pixels");
}

TEST_F(CFileDialogWritableTest, LockedFolderIsAskedAboutUntilItIsWritable) {
    RUN_AS_ORDINARY_USER();
    dir.makeFolder("results");
    dir.setPermissions("results", 0500);
    const std::string path = dir.path("results/a.tif");
    user.expectWarning(unwritable(path)).answer("Retry");
    user.expectWarning(unwritable(path))
        .before([&] { dir.setPermissions("results", 0700); })
        .answer("Retry");

    EXPECT_FALSE(CFileDialog::IsFileWritable(toText(path), nullptr, true));
    EXPECT_TRUE(CFileDialog::IsFileWritable(toText(path), nullptr, false));

    EXPECT_EQ(listOf(dir.path("results")), Lines());
}

TEST_F(CFileDialogWritableTest, ExistingFileInALockedFolderIsWritable) {
    RUN_AS_ORDINARY_USER();
    makeFile("results/a.tif");
    dir.setPermissions("results", 0500);

    EXPECT_TRUE(CFileDialog::IsFileWritable(toText(dir.path("results/a.tif")), nullptr, true));
}

TEST_F(CFileDialogWritableTest, LinkToNothingYetIsWritableAndStaysALinkToNothing) {
    NOT_ON_WINDOWS(noLinks);
    dir.makeFolder("results");
    dir.makeLink("link.tif", dir.path("results/target.tif"));

    EXPECT_TRUE(CFileDialog::IsFileWritable(toText(dir.path("link.tif")), nullptr, true));

    EXPECT_TRUE(fs::is_symlink(dir.path("link.tif")));
    EXPECT_EQ(listOf(dir.path("results")), Lines());
}

TEST_F(CFileDialogWritableTest, LinksInARowToNothingYetAreFollowedFromTheirOwnFolders) {
    NOT_ON_WINDOWS(noLinks);
    dir.makeFolder("links");
    dir.makeFolder("results");
    dir.makeLink("links/second.tif", "../results/target.tif");
    dir.makeLink("first.tif", "links/second.tif");

    EXPECT_TRUE(CFileDialog::IsFileWritable(toText(dir.path("first.tif")), nullptr, true));

    EXPECT_TRUE(fs::is_symlink(dir.path("first.tif")));
    EXPECT_EQ(listOf(dir.path("links")), Lines{"second.tif"});
    EXPECT_EQ(listOf(dir.path("results")), Lines());
}

TEST_F(CFileDialogWritableTest, LinkToItselfIsNotWritableAndStays) {
    NOT_ON_WINDOWS(noLinks);
    dir.makeLink("link.tif", dir.path("link.tif"));

    EXPECT_FALSE(CFileDialog::IsFileWritable(toText(dir.path("link.tif")), nullptr, true));

    EXPECT_TRUE(fs::is_symlink(dir.path("link.tif")));
}

TEST_F(CFileDialogWritableTest, LinkIntoAMissingFolderIsNotWritableAndStays) {
    NOT_ON_WINDOWS(noLinks);
    dir.makeLink("link.tif", dir.path("none/target.tif"));

    EXPECT_FALSE(CFileDialog::IsFileWritable(toText(dir.path("link.tif")), nullptr, true));

    EXPECT_TRUE(fs::is_symlink(dir.path("link.tif")));
    EXPECT_FALSE(dir.exists("none"));
}

TEST_F(CFileDialogWritableTest, LinkToAnExistingFileLeavesBothAsTheyAre) {
    NOT_ON_WINDOWS(noLinks);
    dir.makeLink("link.tif", makeFile("target.tif"));

    EXPECT_TRUE(CFileDialog::IsFileWritable(toText(dir.path("link.tif")), nullptr, true));

    EXPECT_TRUE(fs::is_symlink(dir.path("link.tif")));
    EXPECT_EQ(dir.read("target.tif"), "pixels");
}

struct AsciiRow {
    const char* name;
    unsigned short code; // of the one character beside letters
    bool isAscii;
};

void PrintTo(const AsciiRow& row, std::ostream* out) {
    *out << row.name;
}

class CFileDialogAsciiTest : public FileDialogTest, public testing::WithParamInterface<AsciiRow> {
protected:
    QString name() const { return toText("a") + QChar(GetParam().code) + toText("b"); }
};

TEST_P(CFileDialogAsciiTest, IsAnsweredSilently) {
    EXPECT_EQ(CFileDialog::IsFilenameAscii(name(), nullptr, true), GetParam().isAscii);
    EXPECT_EQ(user.log(), Lines());
}

TEST_P(CFileDialogAsciiTest, IsAnsweredTheSameWithABoxForTheOthers) {
    QWidget window(nullptr);
    if (!GetParam().isAscii)
        user.expectWarning(notAscii(support::text(name()))).under(&window).answer("OK");

    EXPECT_EQ(CFileDialog::IsFilenameAscii(name(), &window, false), GetParam().isAscii);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CFileDialogAsciiTest,
    testing::Values(AsciiRow{"Letter", 'x', true}, AsciiRow{"Control", 0x01, true},
                    AsciiRow{"LastOfAscii", 0x7f, true}, AsciiRow{"FirstBeyondAscii", 0x80, false},
                    AsciiRow{"LastOfLatin1", 0xff, false},
                    AsciiRow{"FirstBeyondLatin1", 0x100, false},
                    AsciiRow{"LowByteIsALetter", 0x141, false}, AsciiRow{"Chinese", 0x4e2d, false}),
    [](const testing::TestParamInfo<AsciiRow>& row) { return std::string(row.param.name); });

using CFileDialogAsciiNameTest = FileDialogTest;

TEST_F(CFileDialogAsciiNameTest, EmptyNameIsAscii) {
    EXPECT_TRUE(CFileDialog::IsFilenameAscii(QString(), nullptr, true));
    EXPECT_TRUE(CFileDialog::IsFilenameAscii(QString(""), nullptr, false));
}

TEST_F(CFileDialogAsciiNameTest, BoxAboutANameThatIsNotAsciiIsLeftInAnyWay) {
    const QString name = toText("/\xc3\xa9.tif");
    user.expectWarning(notAscii(support::text(name))).enter();
    user.expectWarning(notAscii(support::text(name))).escape();
    user.expectWarning(notAscii(support::text(name))).close();

    EXPECT_FALSE(CFileDialog::IsFilenameAscii(name, nullptr, false));
    EXPECT_FALSE(CFileDialog::IsFilenameAscii(name, nullptr, false));
    EXPECT_FALSE(CFileDialog::IsFilenameAscii(name, nullptr, false));
}

TEST_F(CFileDialogAsciiNameTest, NameThatIsNotAsciiIsShownAsItStands) {
    const std::string path = "/no/%1 %2 &file <b>\xc3\xa9</b>.tif";
    user.expectWarning(notAscii(path)).answer("OK");

    EXPECT_FALSE(CFileDialog::IsFilenameAscii(toText(path), nullptr, false));
}

} // namespace
