#include <CFileDialog.h>

#include "FileDialogTest.h"
#include "RegistryJournal.h"
#include "ScriptedUser.h"

#include <AsciiLetters.h>
#include <Events.h>
#include <OrdinaryUser.h>
#include <System.h>
#include <algorithm>
#include <filesystem>
#include <ostream>
#include <qapplication.h>
#include <qt3/FileDialog.h>
#include <qwidget.h>
#include <ruqlib2core/CException.h>
#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueString.h>

#if QT_VERSION < 0x040000
extern bool qt_use_native_dialogs;
#else
#include <qfiledialog.h>
#endif

namespace fs = std::filesystem;
using support::FileRequest;
using support::Message;
using TEVU::CFileDialog;
using TEVU::CRegistry;

namespace {

const char* const c_images = "Images (*.png *.tif)";

bool nativeDialogIsOff() {
#if QT_VERSION < 0x040000
    return !qt_use_native_dialogs;
#else
    const QFileDialog* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    return dialog && dialog->testOption(QFileDialog::DontUseNativeDialog);
#endif
}

// Of the toolkit itself: the folder last shown has gone.
void expectWordsAboutAMissingFolder([[maybe_unused]] support::ModalDriver& user) {
#if QT_VERSION < 0x040000
    user.expectMessage({"Error"}).enter();
    user.expectMessage({"Error"}).enter();
#endif
}

class CFileDialogSaveTest : public FileDialogTest {
protected:
    static Message overwrite(const std::string& path) { return existing("Overwrite", path); }

    /// The folder of this test's own saving.
    std::string results() const { return dir.makeFolder("results"); }

    static bool ask(CFileDialog& dialog, const std::string& proposal = "scan") {
        return dialog.GetSaveFileName(proposal, c_images, CFileDialog::eOverwrite);
    }

    bool save(CFileDialog& dialog, const std::string& path) {
        user.expectFileDialog({}).choose(path);
        return ask(dialog);
    }

    static Lines newestOnly(const std::string& path, const std::string& folder) {
        return {"lastimage0=" + path,
                "lastimage1=", "lastimage2=", "lastimage3=", "savingdir=" + folder};
    }

    static void expectUntouched(const CFileDialog& dialog) {
        EXPECT_EQ(dialog.FilePaths(), Lines());
        EXPECT_EQ(dialog.FileExtension(false), "");
        EXPECT_FALSE(dialog.WasFileSelected());
        EXPECT_EQ(remembered(), Lines());
    }
};

TEST_F(CFileDialogSaveTest, ShowsTheDialogWithItsNameCaptionFolderProposalFiltersAndParent) {
    QWidget window(nullptr);
    CFileDialog dialog(&window);
    FileRequest expected = saveIn(results(), "scan.png");
    expected.filters = {"Images (*.png *.tif)", "Surfaces (*.stl.gz)"};
    user.expectFileDialog(expected).under(&window).cancel();

    EXPECT_FALSE(dialog.GetSaveFileName(dir.path("results/scan"),
                                        "Images (*.png *.tif);;Surfaces (*.stl.gz)",
                                        CFileDialog::eOverwrite));
}

TEST_F(CFileDialogSaveTest, WithoutParentTheDialogHasNone) {
    CFileDialog dialog;
    user.expectFileDialog({}).under(nullptr).cancel();

    EXPECT_FALSE(ask(dialog));
}

TEST_F(CFileDialogSaveTest, FilterIsReadAsLatin1) {
    CFileDialog dialog;
    FileRequest expected = saveIn(home(), "scan.png");
    expected.filters = {"Gr\xc3\xb6\xc3\x9f"
                        "e (*.png)"};
    user.expectFileDialog(expected).cancel();

    EXPECT_FALSE(dialog.GetSaveFileName("scan",
                                        "Gr\xf6\xdf"
                                        "e (*.png)",
                                        CFileDialog::eOverwrite));
}

TEST_F(CFileDialogSaveTest, SwitchesNativeDialogsOffBeforeEachDialog) {
    bool off[2] = {false, false};
    user.expectFileDialog({})
        .before([&] { off[0] = nativeDialogIsOff(); })
        .choose(dir.path("a.jpg"));
    user.expectWarning({}).before([] { qt3::useNativeDialogs(true); }).answer("No");
    user.expectFileDialog({}).before([&] { off[1] = nativeDialogIsOff(); }).cancel();
    CFileDialog dialog;
    qt3::useNativeDialogs(true);

    EXPECT_FALSE(ask(dialog));

    EXPECT_TRUE(off[0]);
    EXPECT_TRUE(off[1]);
}

TEST_F(CFileDialogSaveTest, EmptyNameIsProposedAsUntitledInTheHomeDirectory) {
    CFileDialog dialog;
    user.expectFileDialog(saveIn(home(), "Untitled.png")).cancel();

    EXPECT_FALSE(ask(dialog, ""));
}

TEST_F(CFileDialogSaveTest, ProposalIsAcceptedAsItStands) {
    CFileDialog dialog;
    user.expectFileDialog({}).accept();

    EXPECT_TRUE(ask(dialog, dir.path("scan")));

    EXPECT_EQ(dialog.FilePaths(), Lines{dir.path("scan.png")});
}

struct Proposal {
    const char* name;
    const char* file;
    const char* filter;
    const char* proposed;
};

void PrintTo(const Proposal& row, std::ostream* out) {
    *out << row.name;
}

class CFileDialogProposalTest : public FileDialogTest,
                                public testing::WithParamInterface<Proposal> {};

TEST_P(CFileDialogProposalTest, IsBehindTheStartDirectory) {
    ScriptedUser script;
    CFileDialog dialog;

    EXPECT_FALSE(
        dialog.GetSaveFileName(GetParam().file, GetParam().filter, CFileDialog::eOverwrite));

    EXPECT_EQ(script.takeStarts(), Lines{home() + '/' + GetParam().proposed});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CFileDialogProposalTest,
    testing::Values(Proposal{"NoName", "", c_images, "Untitled.png"},
                    Proposal{"NoNameAndCompound", "", "Surfaces (*.stl.gz *.stl)",
                             "Untitled.stl.gz"},
                    Proposal{"NoNameAndNoFilter", "", "", "Untitled"},
                    Proposal{"NameAndNoFilter", "scan.jpg", "", "scan.jpg"},
                    Proposal{"WithoutExtension", "scan", c_images, "scan.png"},
                    Proposal{"WithTheSecondExtension", "scan.tif", c_images, "scan.tif"},
                    Proposal{"WithAnExtensionInUpperCase", "Scan.PNG", c_images, "Scan.PNG"},
                    Proposal{"WithAnotherExtension", "scan.jpg", c_images, "scan.jpg.png"},
                    Proposal{"WithSeveralDots", "a.b.c", c_images, "a.b.c.png"},
                    Proposal{"WithADotAtTheEnd", "scan.", c_images, "scan..png"},
                    Proposal{"Dot", ".", c_images, "..png"},
                    Proposal{"Blank", " ", c_images, " .png"},
                    Proposal{"WithBlanks", " my  scan ", c_images, " my  scan .png"},
                    Proposal{"WithQuotes", "a\"b'c", c_images, "a\"b'c.png"},
                    Proposal{"RelativeFolder", "sub/scan", c_images, "sub/scan.png"},
                    Proposal{"HomeIsNoAbsoluteName", "~/scan", c_images, "~/scan.png"},
                    Proposal{"Percent", "100%1", c_images, "100%1.png"},
                    Proposal{"ColonFirst", ":scan", c_images, ":scan.png"},
                    Proposal{"ColonAsTheFolder", ":/scan", c_images, ":/scan.png"}),
    [](const testing::TestParamInfo<Proposal>& row) { return std::string(row.param.name); });

TEST_F(CFileDialogSaveTest, LongNameIsProposedWhole) {
    ScriptedUser script;
    CFileDialog dialog;
    const std::string name(3000, 'a');

    EXPECT_FALSE(ask(dialog, name));

    EXPECT_EQ(script.takeStarts(), Lines{home() + '/' + name + ".png"});
}

TEST_F(CFileDialogSaveTest, MalformedFilterThrowsBeforeAnyDialogAndAnyLookUp) {
    remember("savingdir", results());
    CFileDialog dialog;

    EXPECT_THROW(dialog.GetSaveFileName("scan", "All (*)", CFileDialog::eOverwrite),
                 TEVU::CException);

    EXPECT_EQ(user.log(), Lines());
    EXPECT_EQ(remembered(), Lines{"savingdir=" + dir.path("results")});
}

class CFileDialogSaveStartTest : public CFileDialogSaveTest {
protected:
    /// The look-up that comes first in the process.
    void lookUpOnce() {
        CFileDialog dialog;
        EXPECT_FALSE(ask(dialog));
        script.takeLog();
    }

    void expectStart(const std::string& proposal, const std::string& start) {
        CFileDialog dialog;
        EXPECT_FALSE(ask(dialog, proposal));
        EXPECT_EQ(script.takeStarts(), Lines{start});
    }

    ScriptedUser script;
};

TEST_F(CFileDialogSaveStartTest, IsTheAbsoluteNameInAnExistingDirectory) {
    remember("loadingdir", dir.makeFolder("images"));

    expectStart(results() + "/scan", dir.path("results/scan.png"));
}

TEST_F(CFileDialogSaveStartTest, OfAnAbsoluteNameIsAsItIsSpelled) {
    results();

    expectStart(dir.path() + "/results/../results//scan",
                dir.path() + "/results/../results//scan.png");
}

TEST_F(CFileDialogSaveStartTest, OfAnAbsoluteNameThatIsADirectoryIsThatWithTheExtension) {
    expectStart(results(), dir.path("results.png"));
}

TEST_F(CFileDialogSaveStartTest, AbsoluteNameInAMissingDirectoryIsJoinedBehindTheHomeDirectory) {
    expectStart(dir.path("none/scan"), home() + '/' + dir.path("none/scan.png"));
}

TEST_F(CFileDialogSaveStartTest, AbsoluteNameInAMissingDirectoryIsJoinedBehindTheRememberedOne) {
    remember("loadingdir", dir.makeFolder("images"));

    expectStart(dir.path("none/scan"), dir.path("images") + '/' + dir.path("none/scan.png"));
}

TEST_F(CFileDialogSaveStartTest, RelativeNameIsNotSoughtInTheWorkingFolder) {
    dir.makeFolder("working folder/sub");

    expectStart("sub/scan", home() + "/sub/scan.png");
}

TEST_F(CFileDialogSaveStartTest, IsInTheHomeDirectoryWhenNothingIsRemembered) {
    expectStart("scan", home() + "/scan.png");
}

TEST_F(CFileDialogSaveStartTest, IsInTheLoadingDirectoryWithoutASavingDirectory) {
    remember("loadingdir", dir.makeFolder("images"));

    expectStart("scan", dir.path("images/scan.png"));
}

TEST_F(CFileDialogSaveStartTest, IsInTheSavingDirectoryOfThisRunBeforeTheLoadingDirectory) {
    lookUpOnce();
    remember("loadingdir", dir.makeFolder("images"));
    remember("savingdir", results());

    expectStart("scan", dir.path("results/scan.png"));
}

TEST_F(CFileDialogSaveStartTest, IsInTheHomeDirectoryWhenTheLoadingDirectoryHasVanished) {
    remember("loadingdir", dir.path("vanished"));

    expectStart("scan", home() + "/scan.png");
}

TEST_F(CFileDialogSaveStartTest, VanishedSavingDirectoryMeansTheHomeAndNotTheLoadingDirectory) {
    lookUpOnce();
    remember("loadingdir", dir.makeFolder("images"));
    remember("savingdir", dir.path("vanished"));

    expectStart("scan", home() + "/scan.png");
    EXPECT_EQ(remembered(),
              (Lines{"loadingdir=" + dir.path("images"), "savingdir=" + dir.path("vanished")}));
}

TEST_F(CFileDialogSaveStartTest, EmptySavingDirectoryMeansTheHomeDirectory) {
    lookUpOnce();
    remember("savingdir", "");

    expectStart("scan", home() + "/scan.png");
}

TEST_F(CFileDialogSaveStartTest, SavingDirectoryThatIsNoTextMeansTheHomeDirectory) {
    lookUpOnce();
    rememberNumber("savingdir");

    expectStart("scan", home() + "/scan.png");
}

TEST_F(CFileDialogSaveStartTest, SavingDirectoryThatIsAFileCountsBecauseItExists) {
    lookUpOnce();
    remember("savingdir", makeFile("results.zip"));

    expectStart("scan", dir.path("results.zip/scan.png"));
}

TEST_F(CFileDialogSaveStartTest, SavingDirectoryWithASlashAtTheEndGetsAnother) {
    lookUpOnce();
    remember("savingdir", results() + '/');

    expectStart("scan", dir.path("results") + "//scan.png");
}

TEST_F(CFileDialogSaveStartTest, FirstLookUpDeletesTheSavingDirectoryOfAnEarlierRun) {
    SecondProcess laterRun(&remembered);
    const auto rememberIt = [](const SecondProcess::Arguments& results) {
        remember("savingdir", results[0]);
        return Lines{"done"};
    };
    SecondProcess earlierRun(rememberIt, {results()});
    ASSERT_EQ(earlierRun.result(), Lines{"done"});

    expectStart("scan", home() + "/scan.png");

    EXPECT_EQ(remembered(), Lines());
    EXPECT_EQ(laterRun.result(), Lines());
}

TEST_F(CFileDialogSaveStartTest, FirstLookUpDeletesTheSavingDirectoryOfThisRunToo) {
    remember("savingdir", results());
    remember("loadingdir", dir.makeFolder("images"));

    expectStart("scan", dir.path("images/scan.png"));

    EXPECT_EQ(remembered(), Lines{"loadingdir=" + dir.path("images")});
}

TEST_F(CFileDialogSaveStartTest, LaterLookUpsLeaveTheSavingDirectory) {
    lookUpOnce();
    remember("savingdir", results());
    lookUpOnce();

    EXPECT_EQ(remembered(), Lines{"savingdir=" + dir.path("results")});
}

TEST_F(CFileDialogSaveStartTest, LookUpForOpeningWasTheFirstOneForSavingToo) {
    CFileDialog dialog;
    EXPECT_FALSE(dialog.GetOpenFileName(allFiles, CFileDialog::UseWorkingDir));
    script.takeLog();
    remember("savingdir", results());

    expectStart("scan", dir.path("results/scan.png"));
}

TEST_F(CFileDialogSaveStartTest, LookUpForSavingWasTheFirstOneForOpeningToo) {
    lookUpOnce();
    remember("savingdir", results());
    CFileDialog dialog;

    EXPECT_FALSE(dialog.GetOpenFileName(allFiles, CFileDialog::UseWorkingDir));

    EXPECT_EQ(script.takeStarts(), Lines{dir.path("results")});
}

TEST_F(CFileDialogSaveStartTest, AbsoluteNameInAnExistingDirectoryIsNoLookUp) {
    remember("savingdir", dir.makeFolder("earlier"));

    expectStart(results() + "/scan", dir.path("results/scan.png"));

    EXPECT_EQ(remembered(), Lines{"savingdir=" + dir.path("earlier")});
}

TEST_F(CFileDialogSaveStartTest, FirstLookUpDeletesWhatASavingWithoutLookUpHasRemembered) {
    CFileDialog dialog;
    script.answer(results() + "/scan.png");
    ASSERT_TRUE(ask(dialog, dir.path("results/scan")));
    ASSERT_EQ(remembered().back(), "savingdir=" + dir.path("results"));
    script.takeLog();

    expectStart("scan", home() + "/scan.png");

    EXPECT_EQ(remembered().back(), "lastimage3=");
}

TEST_F(CFileDialogSaveStartTest, IsInTheDirectoryOfTheLastSavingAfterTheFirstLookUp) {
    CFileDialog dialog;
    script.answer(results() + "/scan.png");
    ASSERT_TRUE(ask(dialog));
    script.takeLog();

    expectStart("scan", dir.path("results/scan.png"));
}

TEST_F(CFileDialogSaveStartTest, IsOfTheSameProposalOnEveryPass) {
    CFileDialog dialog;
    script.answer(dir.path("other.jpg"));
    script.answer("No");
    script.answer(dir.path("third.gif"));
    script.answer("No");

    EXPECT_FALSE(ask(dialog));

    EXPECT_EQ(script.takeStarts(), Lines(3, home() + "/scan.png"));
}

TEST_F(CFileDialogSaveStartTest, IsLookedUpAfreshOnEveryPass) {
    CFileDialog dialog;
    script.answer(dir.path("other.jpg"));
    script.answer("No", [this] { remember("savingdir", results()); });
    script.answer(dir.path("other.jpg"));
    script.answer("No", [this] { dir.remove("results"); });
    script.answer(dir.path("other.jpg"));
    script.answer("No", [] { CRegistry::Obj().RemoveEntry("main/globalsettings/IO/savingdir"); });
    remember("loadingdir", dir.makeFolder("images"));

    EXPECT_FALSE(ask(dialog));

    EXPECT_EQ(script.takeStarts(), (Lines{dir.path("images/scan.png"), dir.path("results/scan.png"),
                                          home() + "/scan.png", dir.path("images/scan.png")}));
}

TEST_F(CFileDialogSaveStartTest, DirectoryThatVanishesBetweenPassesMakesTheNextPassTheFirstLookUp) {
    CFileDialog dialog;
    remember("savingdir", dir.makeFolder("earlier"));
    const std::string proposal = results() + "/scan.png";
    script.answer(dir.path("other.jpg"));
    script.answer("No", [this] { dir.remove("results"); });
    script.answer(dir.path("other.jpg"), [this] { EXPECT_EQ(remembered(), Lines()); });
    script.answer("No", [this] { results(); });

    EXPECT_FALSE(ask(dialog, proposal));

    EXPECT_EQ(script.takeStarts(), (Lines{proposal, home() + '/' + proposal, proposal}));
}

struct Refusal {
    const char* name;
    void (*refuseDialog)(support::FileStep&);
    void (*refuseBox)(support::MessageStep&);
};

void PrintTo(const Refusal& row, std::ostream* out) {
    *out << row.name;
}

class CFileDialogSaveCancelTest : public CFileDialogSaveTest,
                                  public testing::WithParamInterface<Refusal> {
protected:
    CFileDialogSaveCancelTest() : m_dialog(makeDialog()), m_vBefore(remembered()) {}

    void refuse(support::FileStep& step) { GetParam().refuseDialog(step); }
    void refuse(support::MessageStep& step) { GetParam().refuseBox(step); }

    void expectNothingChanged() {
        EXPECT_FALSE(ask(m_dialog));
        EXPECT_EQ(m_dialog.FilePaths(), Lines{dir.path("results/earlier.tif")});
        EXPECT_EQ(m_dialog.FileExtension(false), "tif");
        EXPECT_TRUE(m_dialog.WasFileSelected());
        EXPECT_EQ(remembered(), m_vBefore);
    }

private:
    CFileDialog makeDialog() {
        user.expectFileDialog({}).choose(results() + "/earlier.tif");
        return CFileDialog("", c_images, CFileDialog::eOverwrite, nullptr);
    }

    CFileDialog m_dialog;
    Lines m_vBefore;
};

TEST_P(CFileDialogSaveCancelTest, OfTheDialogChangesNothing) {
    refuse(user.expectFileDialog(saveIn(dir.path("results"), "scan.png")));

    expectNothingChanged();
}

TEST_P(CFileDialogSaveCancelTest, OfTheExtensionQuestionEndsItAndChangesNothing) {
    user.expectFileDialog({}).choose(dir.path("b.jpg"));
    refuse(user.expectWarning(wrongType(".png")));

    expectNothingChanged();
}

TEST_P(CFileDialogSaveCancelTest, OfTheOverwriteQuestionEndsItAndChangesNothing) {
    user.expectFileDialog({}).choose(makeFile("b.png"));
    refuse(user.expectWarning(overwrite(dir.path("b.png"))));

    expectNothingChanged();
}

TEST_P(CFileDialogSaveCancelTest, OfTheOverwriteQuestionAboutAnAppendedNameEndsItToo) {
    makeFile("b.png");
    user.expectFileDialog({}).choose(dir.path("b"));
    user.expectWarning(wrongType(".png")).answer("Yes");
    refuse(user.expectWarning(overwrite(dir.path("b.png"))));

    expectNothingChanged();
}

TEST_P(CFileDialogSaveCancelTest, OfTheWritabilityBoxOpensTheDialogAgain) {
    user.expectFileDialog({}).choose(dir.path("none/b.png"));
    refuse(user.expectWarning(unwritable(dir.path("none/b.png"))));
    refuse(user.expectFileDialog(saveIn(dir.path("results"), "scan.png")));

    expectNothingChanged();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CFileDialogSaveCancelTest,
    testing::Values(Refusal{"CancelButton", [](support::FileStep& step) { step.cancel(); },
                            [](support::MessageStep& step) { step.answer("Cancel"); }},
                    Refusal{"EscapeKey", [](support::FileStep& step) { step.escape(); },
                            [](support::MessageStep& step) { step.escape(); }},
                    Refusal{"ClosedWindow", [](support::FileStep& step) { step.close(); },
                            [](support::MessageStep& step) { step.close(); }}),
    [](const testing::TestParamInfo<Refusal>& row) { return std::string(row.param.name); });

TEST_F(CFileDialogSaveTest, CancelOfAFreshObjectLeavesItEmptyAndTheRegistryToo) {
    CFileDialog dialog;
    user.expectFileDialog({}).choose(dir.path("a.jpg"));
    user.expectWarning({}).answer("Cancel");

    EXPECT_FALSE(ask(dialog));

    expectUntouched(dialog);
}

TEST_F(CFileDialogSaveTest, ListedExtensionIsNotAskedAbout) {
    CFileDialog dialog;

    EXPECT_TRUE(save(dialog, dir.path("Scan.TIF")));

    EXPECT_EQ(user.log().size(), 1u);
    EXPECT_EQ(dialog.FilePath(), dir.path("Scan.TIF"));
}

TEST_F(CFileDialogSaveTest, MissingExtensionIsAppendedOnYes) {
    QWidget window(nullptr);
    CFileDialog dialog(&window);
    user.expectFileDialog({}).choose(dir.path("a.b"));
    user.expectWarning(wrongType(".png")).under(&window).answer("Yes");

    EXPECT_TRUE(ask(dialog));

    EXPECT_EQ(dialog.FilePath(), dir.path("a.b.png"));
    EXPECT_EQ(remembered(), newestOnly(dir.path("a.b.png"), dir.path()));
}

TEST_F(CFileDialogSaveTest, MissingExtensionIsAppendedOnReturn) {
    CFileDialog dialog;
    user.expectFileDialog({}).choose(dir.path("a"));
    user.expectWarning(wrongType(".png")).enter();

    EXPECT_TRUE(ask(dialog));

    EXPECT_EQ(dialog.FilePath(), dir.path("a.png"));
}

TEST_F(CFileDialogSaveTest, MissingExtensionOnNoOpensTheDialogAgainWithNoOtherQuestion) {
    CFileDialog dialog;
    user.expectFileDialog(saveIn(home(), "scan.png")).choose(makeFile("exists.jpg"));
    user.expectWarning(wrongType(".png")).answer("No");
    user.expectFileDialog(saveIn(home(), "scan.png")).choose(dir.path("none/b.jpg"));
    user.expectWarning(wrongType(".png")).answer("No");
    user.expectFileDialog(saveIn(home(), "scan.png")).cancel();

    EXPECT_FALSE(ask(dialog));

    expectUntouched(dialog);
}

TEST_F(CFileDialogSaveTest, MissingCompoundExtensionIsAppendedWhole) {
    CFileDialog dialog;
    user.expectFileDialog({}).choose(dir.path("mesh.gz"));
    user.expectWarning(wrongType(".stl.gz")).answer("Yes");

    EXPECT_TRUE(dialog.GetSaveFileName("", "Surfaces (*.stl.gz)", CFileDialog::eOverwrite));

    EXPECT_EQ(dialog.FilePath(), dir.path("mesh.gz.stl.gz"));
    EXPECT_EQ(dialog.FileExtension(false), "stl.gz");
}

TEST_F(CFileDialogSaveTest, ExtensionInUpperCaseOfTheFilterIsAskedAboutEvenIfItIsThere) {
    CFileDialog dialog;
    user.expectFileDialog({}).choose(dir.path("a.PNG"));
    user.expectWarning(wrongType(".PNG")).answer("Yes");

    EXPECT_TRUE(dialog.GetSaveFileName("", "Images (*.PNG)", CFileDialog::eOverwrite));

    EXPECT_EQ(dialog.FilePath(), dir.path("a.PNG.PNG"));
}

TEST_F(CFileDialogSaveTest, EmptyFilterThrowsOnlyAfterANameWasAccepted) {
    CFileDialog dialog;
    user.expectFileDialog(saveIn(home(), "Untitled")).cancel();
    EXPECT_FALSE(dialog.GetSaveFileName("", "", CFileDialog::eOverwrite));
    user.expectFileDialog(saveIn(home(), "Untitled")).choose(makeFile("a.png"));

    try {
        dialog.GetSaveFileName("", "", CFileDialog::eOverwrite);
        FAIL() << "nothing was thrown";
    } catch (const TEVU::CException& exception) {
        EXPECT_EQ(exception.Place(), "CFileDialog::GetMissingExtension");
        EXPECT_EQ(exception.Message(), "Malformed type list");
    }

    expectUntouched(dialog);
}

TEST_F(CFileDialogSaveTest, FilterThatIsMalformedForTheChosenNameOnlyThrowsThen) {
    CFileDialog dialog;
    user.expectFileDialog({}).choose(dir.path("a.jpg"));

    EXPECT_THROW(
        dialog.GetSaveFileName("a.png", "All (*);;Images (*.png)", CFileDialog::eOverwrite),
        TEVU::CException);

    expectUntouched(dialog);
}

struct Mode {
    const char* name;
    int mode;
    const char* word;
};

void PrintTo(const Mode& row, std::ostream* out) {
    *out << row.name;
}

class CFileDialogSaveModeTest : public CFileDialogSaveTest,
                                public testing::WithParamInterface<Mode> {
protected:
    bool askInMode(CFileDialog& dialog) {
        return dialog.GetSaveFileName("", c_images,
                                      static_cast<CFileDialog::EnSaveMode>(GetParam().mode));
    }
};

TEST_P(CFileDialogSaveModeTest, IsTheWordOfTheQuestion) {
    QWidget window(nullptr);
    CFileDialog dialog(&window);
    user.expectFileDialog({}).choose(makeFile("a.png"));
    user.expectWarning(existing(GetParam().word, dir.path("a.png"))).under(&window).answer("Yes");

    EXPECT_TRUE(askInMode(dialog));

    EXPECT_EQ(dialog.FilePath(), dir.path("a.png"));
}

TEST_P(CFileDialogSaveModeTest, LeavesTheExistingFileAsItIs) {
    CFileDialog dialog;
    user.expectFileDialog({}).choose(makeFile("a.png"));
    user.expectWarning({}).enter();
    support::makeOld(dir.path("a.png"));
    const fs::file_time_type before = fs::last_write_time(dir.path("a.png"));

    EXPECT_TRUE(askInMode(dialog));

    EXPECT_EQ(dir.read("a.png"), "pixels");
    EXPECT_EQ(fs::last_write_time(dir.path("a.png")), before);
}

TEST_P(CFileDialogSaveModeTest, MakesNoDifferenceForANewFile) {
    CFileDialog dialog;
    user.expectFileDialog({}).choose(dir.path("a.png"));

    EXPECT_TRUE(askInMode(dialog));

    EXPECT_FALSE(dir.exists("a.png"));
}

INSTANTIATE_TEST_SUITE_P(Rows, CFileDialogSaveModeTest,
                         testing::Values(Mode{"Overwrite", CFileDialog::eOverwrite, "Overwrite"},
                                         Mode{"Append", CFileDialog::eAppend, "Append"},
                                         Mode{"AnyOtherIsOverwrite", 2, "Overwrite"},
                                         Mode{"AnyNegativeIsOverwrite", -1, "Overwrite"}),
                         [](const testing::TestParamInfo<Mode>& row) {
                             return std::string(row.param.name);
                         });

TEST_F(CFileDialogSaveTest, ModesHaveTheirNumbers) {
    EXPECT_EQ(CFileDialog::eOverwrite, 0);
    EXPECT_EQ(CFileDialog::eAppend, 1);
}

TEST_F(CFileDialogSaveTest, ExistingFileOnNoOpensTheDialogAgain) {
    CFileDialog dialog;
    user.expectFileDialog(saveIn(home(), "scan.png")).choose(makeFile("a.png"));
    user.expectWarning(overwrite(dir.path("a.png"))).answer("No");
    user.expectFileDialog(saveIn(home(), "scan.png")).choose(dir.path("b.png"));

    EXPECT_TRUE(ask(dialog));

    EXPECT_EQ(dialog.FilePaths(), Lines{dir.path("b.png")});
    EXPECT_EQ(remembered(), newestOnly(dir.path("b.png"), dir.path()));
}

TEST_F(CFileDialogSaveTest, NameWithTheAppendedExtensionIsTheOneAskedAbout) {
    CFileDialog dialog;
    makeFile("a");
    makeFile("a.png");
    user.expectFileDialog({}).choose(dir.path("a"));
    user.expectWarning(wrongType(".png")).answer("Yes");
    user.expectWarning(overwrite(dir.path("a.png"))).answer("Yes");

    EXPECT_TRUE(ask(dialog));

    EXPECT_EQ(dialog.FilePath(), dir.path("a.png"));
}

TEST_F(CFileDialogSaveTest, NameWithoutTheAppendedExtensionIsNotAskedAbout) {
    CFileDialog dialog;
    user.expectFileDialog({}).choose(makeFile("a"));
    user.expectWarning(wrongType(".png")).answer("Yes");

    EXPECT_TRUE(ask(dialog));

    EXPECT_EQ(dialog.FilePath(), dir.path("a.png"));
}

TEST_F(CFileDialogSaveTest, FolderChosenAsAFileIsAskedAboutLikeAFile) {
    CFileDialog dialog;
    const std::string path = results() + "/.";
    ScriptedUser script;
    script.answer(path);
    script.answer("Yes");

    EXPECT_TRUE(dialog.GetSaveFileName("", "Plain (*.)", CFileDialog::eOverwrite));

    const Lines log = script.takeLog();
    ASSERT_EQ(log.size(), 3u);
    EXPECT_EQ(log[2], script::warning("Overwrite File", "Overwrite\n'" + path + "'?",
                                      "Yes (default), No, Cancel (escape)"));
    EXPECT_EQ(dialog.FileExtension(false), "");
    EXPECT_TRUE(dir.exists("results"));
}

TEST_F(CFileDialogSaveTest, FolderOfTheProposalMayVanishUnderAQuestion) {
    CFileDialog dialog;
    user.expectFileDialog(saveIn(results(), "scan.png")).choose(dir.path("a.jpg"));
    user.expectWarning(wrongType(".png")).before([this] { dir.remove("results"); }).answer("No");
    expectWordsAboutAMissingFolder(user);
    user.expectFileDialog(saveIn(workingFolder(), "")).choose(dir.path("a.png"));

    EXPECT_TRUE(ask(dialog, dir.path("results/scan")));

    EXPECT_EQ(dialog.FilePath(), dir.path("a.png"));
}

TEST_F(CFileDialogSaveTest, FolderOfTheChosenFileMayVanishUnderAQuestion) {
    CFileDialog dialog;
    const std::string path = results() + "/a";
    user.expectFileDialog({}).choose(path);
    user.expectWarning(wrongType(".png")).before([this] { dir.remove("results"); }).answer("Yes");
    user.expectWarning(unwritable(path + ".png")).answer("Cancel");
    user.expectFileDialog({}).cancel();

    EXPECT_FALSE(ask(dialog));

    expectUntouched(dialog);
    EXPECT_FALSE(dir.exists("results"));
}

TEST_F(CFileDialogSaveTest, NoToAnExistingFileStillRunsTheWritabilityCheck) {
    RUN_AS_ORDINARY_USER();
    QWidget window(nullptr);
    CFileDialog dialog(&window);
    const std::string path = makeFile("a.png");
    dir.setPermissions("a.png", 0400);
    user.expectFileDialog({}).choose(path);
    user.expectWarning(overwrite(path)).answer("No");
    user.expectWarning(unwritable(path)).under(&window).answer("Cancel");
    user.expectFileDialog({}).cancel();

    EXPECT_FALSE(ask(dialog));

    expectUntouched(dialog);
}

TEST_F(CFileDialogSaveTest, NoToAnExistingFileStandsThoughItBecomesWritable) {
    RUN_AS_ORDINARY_USER();
    CFileDialog dialog;
    const std::string path = makeFile("a.png");
    dir.setPermissions("a.png", 0400);
    user.expectFileDialog({}).choose(path);
    user.expectWarning(overwrite(path)).answer("No");
    user.expectWarning(unwritable(path))
        .before([this] { dir.setPermissions("a.png", 0600); })
        .answer("Retry");
    user.expectFileDialog({}).cancel();

    EXPECT_FALSE(ask(dialog));

    expectUntouched(dialog);
}

TEST_F(CFileDialogSaveTest, NoToAnExistingFileStillComplainsAboutANameThatIsNotAscii) {
    CFileDialog dialog;
    const std::string path = support::text(makeFileNamed(toText("caf\xc3\xa9.png")));
    user.expectFileDialog({}).choose(path);
    user.expectWarning(overwrite(path)).answer("No");
    user.expectWarning(notAscii(path)).answer("OK");
    user.expectFileDialog({}).cancel();

    EXPECT_FALSE(ask(dialog));
}

TEST_F(CFileDialogSaveTest, ExistingFileThatIsLockedIsAskedAboutUntilItIsWritable) {
    RUN_AS_ORDINARY_USER();
    CFileDialog dialog;
    const std::string path = makeFile("a.png");
    dir.setPermissions("a.png", 0400);
    user.expectFileDialog({}).choose(path);
    user.expectWarning(overwrite(path)).answer("Yes");
    user.expectWarning(unwritable(path)).answer("Retry");
    user.expectWarning(unwritable(path))
        .before([this] { dir.setPermissions("a.png", 0600); })
        .enter();

    EXPECT_TRUE(ask(dialog));

    EXPECT_EQ(dialog.FilePath(), path);
    EXPECT_EQ(dir.read("a.png"), "pixels");
}

TEST_F(CFileDialogSaveTest, LockedFolderIsAskedAboutUntilItIsWritable) {
    RUN_AS_ORDINARY_USER();
    CFileDialog dialog;
    const std::string path = results() + "/a.png";
    dir.setPermissions("results", 0500);
    user.expectFileDialog({}).choose(path);
    user.expectWarning(unwritable(path)).answer("Retry");
    user.expectWarning(unwritable(path))
        .before([this] { dir.setPermissions("results", 0700); })
        .answer("Retry");

    EXPECT_TRUE(ask(dialog));

    EXPECT_EQ(listOf(dir.path("results")), Lines());
}

TEST_F(CFileDialogSaveTest, MissingFolderIsAskedAboutUntilItIsThere) {
    QWidget window(nullptr);
    CFileDialog dialog(&window);
    const std::string path = dir.path("none/a.png");
    user.expectFileDialog({}).choose(path);
    user.expectWarning(unwritable(path)).under(&window).answer("Retry");
    user.expectWarning(unwritable(path)).before([this] { dir.makeFolder("none"); }).answer("Retry");

    EXPECT_TRUE(ask(dialog));

    EXPECT_EQ(remembered(), newestOnly(path, dir.path("none")));
    EXPECT_EQ(listOf(dir.path("none")), Lines());
}

TEST_F(CFileDialogSaveTest, FileThatAppearsWhileItsPlaceIsAskedAboutIsNotAskedAboutItself) {
    CFileDialog dialog;
    const std::string path = dir.path("none/a.png");
    user.expectFileDialog({}).choose(path);
    user.expectWarning(unwritable(path)).before([this] { makeFile("none/a.png"); }).answer("Retry");

    EXPECT_TRUE(ask(dialog));

    EXPECT_EQ(dir.read("none/a.png"), "pixels");
}

TEST_F(CFileDialogSaveTest, PlaceWhereNobodyMayWriteOpensTheDialogAgain) {
    NOT_ON_WINDOWS(noClosedPlace);
    CFileDialog dialog;
    user.expectFileDialog({}).choose("/proc/a.png");
    user.expectWarning(unwritable("/proc/a.png")).answer("Cancel");
    user.expectFileDialog(saveIn(home(), "scan.png")).choose(dir.path("a.png"));

    EXPECT_TRUE(ask(dialog));

    EXPECT_EQ(dialog.FilePaths(), Lines{dir.path("a.png")});
}

TEST_F(CFileDialogSaveTest, FullDeviceIsWritableBecauseNothingIsWritten) {
    NOT_ON_WINDOWS(noLinks);
    CFileDialog dialog;
    const std::string path = dir.makeLink("full.png", "/dev/full");
    user.expectFileDialog({}).choose(path);
    user.expectWarning(overwrite(path)).answer("Yes");

    EXPECT_TRUE(ask(dialog));

    EXPECT_EQ(dialog.FilePath(), path);
}

TEST_F(CFileDialogSaveTest, NewFileIsTriedAndLeavesNothingBehind) {
    CFileDialog dialog;
    const std::string path = results() + "/a.png";
    support::makeOld(dir.path("results"));
    const fs::file_time_type before = fs::last_write_time(dir.path("results"));

    EXPECT_TRUE(save(dialog, path));

    EXPECT_EQ(listOf(dir.path("results")), Lines());
    EXPECT_GT(fs::last_write_time(dir.path("results")), before);
}

TEST_F(CFileDialogSaveTest, NameThatIsNotAsciiIsRefusedAndTheDialogOpensAgain) {
    QWidget window(nullptr);
    CFileDialog dialog(&window);
    const std::string path = results() + "/caf\xc3\xa9.png";
    user.expectFileDialog(saveIn(home(), "scan.png")).choose(path);
    user.expectWarning(notAscii(path)).under(&window).answer("OK");
    user.expectFileDialog(saveIn(home(), "scan.png")).choose(path);
    user.expectWarning(notAscii(path)).escape();
    user.expectFileDialog(saveIn(home(), "scan.png")).cancel();

    EXPECT_FALSE(ask(dialog));

    expectUntouched(dialog);
    EXPECT_EQ(listOf(dir.path("results")), Lines());
}

TEST_F(CFileDialogSaveTest, FolderThatIsNotAsciiIsRefusedToo) {
    CFileDialog dialog;
    dir.makeFolder("caf\xc3\xa9");
    const std::string path = dir.path("caf\xc3\xa9/a.png");
    ScriptedUser script;
    script.answer(path);
    script.answer("OK");

    EXPECT_FALSE(ask(dialog));

    const Lines log = script.takeLog();
    ASSERT_EQ(log.size(), 5u);
    EXPECT_EQ(log[2],
              script::warning(*notAscii(path).caption, *notAscii(path).text, "OK (default)"));
}

TEST_F(CFileDialogSaveTest, NameThatIsNotAsciiIsAskedAboutItsExtensionFirst) {
    CFileDialog dialog;
    const std::string path = dir.path("caf\xc3\xa9");
    user.expectFileDialog({}).choose(path);
    user.expectWarning(wrongType(".png")).answer("Yes");
    user.expectWarning(notAscii(path + ".png")).answer("OK");
    user.expectFileDialog({}).cancel();

    EXPECT_FALSE(ask(dialog));
}

TEST_F(CFileDialogSaveTest, UnwritableNameThatIsNotAsciiIsUnwritableOnly) {
    CFileDialog dialog;
    const std::string path = dir.path("none/caf\xc3\xa9.png");
    user.expectFileDialog({}).choose(path);
    user.expectWarning(unwritable(path)).answer("Cancel"); // and no word about the name
    user.expectFileDialog({}).cancel();

    EXPECT_FALSE(ask(dialog));
}

struct SavedName {
    const char* name;
    const char* file;
    const char* extension;
};

void PrintTo(const SavedName& row, std::ostream* out) {
    *out << row.name;
}

class CFileDialogSavedNameTest : public CFileDialogSaveTest,
                                 public testing::WithParamInterface<SavedName> {};

TEST_P(CFileDialogSavedNameTest, IsKeptAndRememberedAsItStands) {
    if (!support::isPossibleName(GetParam().file))
        NOT_ON_WINDOWS(noSuchNames);
    CFileDialog dialog;
    const std::string path = results() + '/' + GetParam().file;
    ScriptedUser script;
    script.answer(path);

    EXPECT_TRUE(dialog.GetSaveFileName("", "Files (*.png *.stl.gz *.rek.gz *.gz *.)",
                                       CFileDialog::eOverwrite));

    EXPECT_EQ(dialog.FilePaths(), Lines{path});
    EXPECT_EQ(dialog.FileExtension(false), GetParam().extension);
    EXPECT_EQ(remembered(), newestOnly(path, dir.path("results")));
    EXPECT_EQ(listOf(dir.path("results")), Lines());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CFileDialogSavedNameTest,
    testing::Values(
        SavedName{"Simple", "scan.png", "png"}, SavedName{"UpperCase", "Scan.PNG", "png"},
        SavedName{"Blanks", " my  scan .png", "png"}, SavedName{"Quotes", "a\"b'c`.png", "png"},
        SavedName{"Markers", "100%1 %2 &b <b>.png", "png"},
        SavedName{"SeveralDots", "a.b..c.png", "png"}, SavedName{"OnlyAnExtension", ".png", "png"},
        SavedName{"DotAtTheEnd", "scan.", ""}, SavedName{"Compound", "Mesh.STL.gz", "stl.gz"},
        SavedName{"SeveralDotsAndCompound", "a.b.rek.gz", "rek.gz"},
        SavedName{"OtherSectionBeforeGz", "a.tar.gz", "tar.gz"},
        SavedName{"Backslash", "a\\b.png", "png"}),
    [](const testing::TestParamInfo<SavedName>& row) { return std::string(row.param.name); });

TEST_F(CFileDialogSaveTest, NameWithGzBehindItsOnlyDotHasItsWholePathAsExtension) {
    CFileDialog dialog;
    ScriptedUser script;
    std::string path = results() + "/Scan.GZ";
    script.answer(path);

    EXPECT_TRUE(dialog.GetSaveFileName("", "Zipped (*.gz)", CFileDialog::eOverwrite));

    std::transform(path.begin(), path.end(), path.begin(), support::lowerLetter);
    EXPECT_EQ(dialog.FileExtension(false), path);
}

TEST_F(CFileDialogSaveTest, NamesTypedIntoTheDialogAreKeptAsTheyStand) {
    CFileDialog dialog;
    for (const char* name : {"my scan.png", "a.b.c.png", "100%1 &b <b>.png", "say \"hi\".png"}) {
        if (!support::isPossibleName(name))
            continue;
        EXPECT_TRUE(save(dialog, dir.path(name)));
        EXPECT_EQ(dialog.FilePath(), dir.path(name));
    }
}

// What the field of a toolkit's own dialog takes is the toolkit's: here the script hands over the name.
class CFileDialogLongNameTest : public CFileDialogSaveTest {
protected:
    void expectUnwritable(const std::string& path, const Lines& log) {
        EXPECT_EQ(std::count(log.begin(), log.end(),
                             script::warning(*unwritable(path).caption, *unwritable(path).text,
                                             "Cancel (escape), Retry (default)")),
                  1);
    }

    ScriptedUser script;
    CFileDialog dialog;
};

TEST_F(CFileDialogLongNameTest, OfTheGreatestLengthIsAccepted) {
    const std::string path = results() + '/' + std::string(251, 'a') + ".png";
    script.answer(path);

    EXPECT_TRUE(ask(dialog));

    EXPECT_EQ(dialog.FilePath(), path);
    EXPECT_EQ(remembered(), newestOnly(path, dir.path("results")));
    EXPECT_EQ(listOf(dir.path("results")), Lines());
}

TEST_F(CFileDialogLongNameTest, ThatIsTooLongWithItsExtensionOnlyIsNotWritable) {
    const std::string path = dir.path(std::string(252, 'a'));
    script.answer(path);
    script.answer("Yes");
    script.answer("Cancel");

    EXPECT_FALSE(ask(dialog));

    expectUnwritable(path + ".png", script.takeLog());
    expectUntouched(dialog);
}

TEST_F(CFileDialogLongNameTest, LongerThanAnyPathIsNotWritable) {
    const std::string path = dir.path(std::string(5000, 'a') + ".png");
    script.answer(path);
    script.answer("Cancel");

    EXPECT_FALSE(ask(dialog));

    expectUnwritable(path, script.takeLog());
    expectUntouched(dialog);
}

TEST_F(CFileDialogSaveTest, LinkToAnExistingFileIsAskedAboutAsTheLinkAndStays) {
    NOT_ON_WINDOWS(noLinks);
    CFileDialog dialog;
    const std::string link = dir.makeLink("link.png", makeFile("target.png"));
    user.expectFileDialog({}).choose(link);
    user.expectWarning(overwrite(link)).answer("Yes");

    EXPECT_TRUE(ask(dialog));

    EXPECT_EQ(dialog.FilePath(), link);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(dir.read("target.png"), "pixels");
}

TEST_F(CFileDialogSaveTest, LinkToNothingYetIsANewFileAndStaysALinkToNothing) {
    NOT_ON_WINDOWS(noLinks);
    CFileDialog dialog;
    const std::string link = dir.makeLink("link.png", results() + "/target.png");

    EXPECT_TRUE(save(dialog, link));

    EXPECT_EQ(dialog.FilePath(), link);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(listOf(dir.path("results")), Lines());
}

TEST_F(CFileDialogSaveTest, LinkIntoAMissingFolderIsNotWritableAndStays) {
    NOT_ON_WINDOWS(noLinks);
    CFileDialog dialog;
    const std::string link = dir.makeLink("link.png", dir.path("none/target.png"));
    user.expectFileDialog({}).choose(link);
    user.expectWarning(unwritable(link)).answer("Cancel");
    user.expectFileDialog({}).cancel();

    EXPECT_FALSE(ask(dialog));

    EXPECT_TRUE(fs::is_symlink(link));
}

TEST_F(CFileDialogSaveTest, AcceptedNameIsKeptAndRemembered) {
    SecondProcess laterRun(&remembered);
    CFileDialog dialog;

    EXPECT_TRUE(save(dialog, results() + "/A.Png"));

    EXPECT_EQ(dialog.FilePath(), dir.path("results/A.Png"));
    EXPECT_EQ(dialog.FilePaths(), Lines{dir.path("results/A.Png")});
    EXPECT_EQ(dialog.FileExtension(false), "png");
    EXPECT_EQ(dialog.FileExtension(true), "PNG");
    const Lines expected = newestOnly(dir.path("results/A.Png"), dir.path("results"));
    EXPECT_EQ(remembered(), expected);
    EXPECT_EQ(laterRun.result(), expected);
}

TEST_F(CFileDialogSaveTest, HistoryAndDirectoryAreTexts) {
    CFileDialog dialog;

    EXPECT_TRUE(save(dialog, dir.path("a.png")));

    for (const char* key : {"lastimage0", "lastimage1", "lastimage2", "lastimage3", "savingdir"})
        EXPECT_TRUE(CRegistry::Obj().HasEntry(std::string("main/globalsettings/IO/") + key,
                                              typeid(TEVU::CValueString)))
            << key;
}

TEST_F(CFileDialogSaveTest, LoadingDirectoryStaysAsItIs) {
    CFileDialog dialog;
    remember("loadingdir", dir.makeFolder("images"));

    EXPECT_TRUE(save(dialog, results() + "/a.png"));

    EXPECT_EQ(CRegistry::Obj().EntryString("main/globalsettings/IO/loadingdir"),
              dir.path("images"));
}

TEST_F(CFileDialogSaveTest, HistoryIsMovedOnFromItsEndBehindTheDirectory) {
    CFileDialog dialog;
    EXPECT_TRUE(save(dialog, dir.path("1.png")));
    const RegistryJournal registry;

    EXPECT_TRUE(save(dialog, results() + "/2.png"));

    EXPECT_EQ(registry.writes(), (Lines{"savingdir=" + dir.path("results"), "lastimage3=",
                                        "lastimage2=", "lastimage1=" + dir.path("1.png"),
                                        "lastimage0=" + dir.path("results/2.png")}));
}

TEST_F(CFileDialogSaveTest, HistoryHoldsOpenedAndSavedFilesAndOneOfThemTwice) {
    CFileDialog dialog;
    ScriptedUser script;
    script.answer(makeFile("1.tif"));
    EXPECT_TRUE(dialog.GetOpenFileName(allFiles, dir.path()));
    for (const char* name : {"2.png", "3.png", "3.png", "4.png"}) {
        script.answer(dir.path(name));
        EXPECT_TRUE(ask(dialog));
    }

    EXPECT_EQ(remembered(),
              (Lines{"lastimage0=" + dir.path("4.png"), "lastimage1=" + dir.path("3.png"),
                     "lastimage2=" + dir.path("3.png"), "lastimage3=" + dir.path("2.png"),
                     "loadingdir=" + dir.path(), "savingdir=" + dir.path()}));
}

TEST_F(CFileDialogSaveTest, SavedFileReplacesSeveralOpenedOnes) {
    CFileDialog dialog;
    user.expectFileDialog({}).chooseSeveral({makeFile("1.tif"), makeFile("2.tif")});
    EXPECT_EQ(dialog.GetOpenFileNames(allFiles, dir.path()), 2);

    EXPECT_TRUE(save(dialog, dir.path("a.png")));

    EXPECT_EQ(dialog.FilePaths(), Lines{dir.path("a.png")});
    EXPECT_EQ(dialog.FileExtension(false), "png");
}

TEST_F(CFileDialogSaveTest, FileInTheRootFolderHasTheRootAsItsDirectory) {
    struct WritableRoot : ScriptedUser {
        bool canCreate(const QString&) override { return true; }
    } script;
    CFileDialog dialog;
    script.answer("/ruqgui-none.png");

    EXPECT_TRUE(ask(dialog));

    EXPECT_EQ(remembered(), newestOnly("/ruqgui-none.png", "/"));
}

TEST_F(CFileDialogSaveTest, ConstructorAsksAndKeepsTheAnswer) {
    QWidget window(nullptr);
    user.expectFileDialog(saveIn(home(), "scan.png")).under(&window).choose(makeFile("a.png"));
    user.expectWarning(existing("Append", dir.path("a.png"))).under(&window).answer("Yes");

    const CFileDialog dialog("scan", c_images, CFileDialog::eAppend, &window);

    EXPECT_TRUE(dialog.WasFileSelected());
    EXPECT_EQ(dialog.FilePaths(), Lines{dir.path("a.png")});
    EXPECT_EQ(dialog.FileExtension(false), "png");
    EXPECT_EQ(remembered(), newestOnly(dir.path("a.png"), dir.path()));
}

TEST_F(CFileDialogSaveTest, ConstructorHasNoFileWhenItIsCancelled) {
    user.expectFileDialog({}).cancel();

    const CFileDialog dialog("scan", c_images, CFileDialog::eOverwrite, nullptr);

    expectUntouched(dialog);
}

TEST_F(CFileDialogSaveTest, ConstructorThrowsWhatSavingThrows) {
    EXPECT_THROW(CFileDialog("scan", "All (*)", CFileDialog::eOverwrite, nullptr),
                 TEVU::CException);
}

TEST_F(CFileDialogSaveTest, ConstructorAloneSetsTheFlagAndNoLaterSaving) {
    CFileDialog dialog;

    EXPECT_TRUE(save(dialog, dir.path("a.png")));

    EXPECT_FALSE(dialog.WasFileSelected());
}

class CFileDialogTwoProcessesTest : public CFileDialogSaveTest {
protected:
    /// Saves thirty files into a folder of its own.
    static Lines saveMany(const SecondProcess::Arguments& folder) {
        ScriptedUser script;
        CFileDialog dialog;
        for (int i = 0; i < 30; ++i) {
            script.answer(folder[0] + "/" + std::to_string(i) + ".png");
            if (!ask(dialog))
                std::abort();
        }
        return {"done"};
    }

    bool isSaved(const std::string& path) const {
        const fs::path file(path);
        const int number = std::atoi(file.stem().string().c_str());
        return (file.parent_path() == dir.path("first") ||
                file.parent_path() == dir.path("second")) &&
               file.filename() == std::to_string(number) + ".png" && number < 30;
    }
};

TEST_F(CFileDialogTwoProcessesTest, LeaveAHistoryOfWholeNamesAndOneOfTheirDirectories) {
    dir.makeFolder("first");
    dir.makeFolder("second");
    SecondProcess laterRun(&remembered);
    SecondProcess other(saveMany, {dir.path("second")});
    other.letGo();
    saveMany({dir.path("first")});

    EXPECT_EQ(other.result(), Lines{"done"});
    const Lines lines = remembered();
    ASSERT_EQ(lines.size(), 5u);
    for (int i = 0; i < 4; ++i) {
        const std::string key = "lastimage" + std::to_string(i) + '=';
        EXPECT_EQ(lines[static_cast<std::size_t>(i)].substr(0, key.size()), key);
        EXPECT_TRUE(isSaved(lines[static_cast<std::size_t>(i)].substr(key.size())))
            << lines[static_cast<std::size_t>(i)];
    }
    EXPECT_EQ(fs::path(lines[0]).filename(), "29.png");
    EXPECT_TRUE(lines[4] == "savingdir=" + dir.path("first") ||
                lines[4] == "savingdir=" + dir.path("second"))
        << lines[4];
    EXPECT_EQ(laterRun.result(), lines);
}

} // namespace
