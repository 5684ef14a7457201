#include <NotOnWindows.h>
#include <qt3/FileDialog.h>

#include "Dialogs.h"
#include "Events.h"
#include "ModalDriver.h"
#include "TempDir.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <qapplication.h>
#include <qfiledialog.h>
#include <qwidget.h>

#if QT_VERSION >= 0x060000
#include <QFileSystemModel>
#include <QListView>
#else
#include <qlistview.h>
extern bool qt_use_native_dialogs;
#endif

using qt3::FileDialog;
using support::ModalDriver;
using Lines = std::vector<std::string>;

namespace {

const char* c_filter = "Images (*.tif *.tiff);;All (*)";

QString ascii(const std::string& text) {
    return QString::fromLatin1(text.c_str());
}

std::string openOne(const std::string& start, const char* filter = c_filter,
                    QWidget* parent = nullptr) {
    return support::text(FileDialog::getOpenFileName(ascii(start), filter, parent, "opendialog",
                                                     "Choose a file..."));
}

Lines openSeveral(const std::string& start, const char* filter = c_filter,
                  QWidget* parent = nullptr) {
    Lines paths;
    const QStringList chosen = FileDialog::getOpenFileNames(
        filter, ascii(start), parent, "opendialog", "Select one or more files...");
    for (QStringList::ConstIterator it = chosen.begin(); it != chosen.end(); ++it)
        paths.push_back(support::text(*it));
    return paths;
}

std::string save(const std::string& start, const char* filter = c_filter,
                 QWidget* parent = nullptr) {
    return support::text(FileDialog::getSaveFileName(ascii(start), filter, parent, "savedialog",
                                                     "Specify a filename..."));
}

struct Way {
    const char* name;
    const char* mode;
    const char* dialog;
    const char* caption;
    Lines (*run)(const std::string& start, const char* filter, QWidget* parent);
};

Lines listOf(const std::string& path) {
    return path.empty() ? Lines() : Lines{path};
}

const Way c_ways[] = {
    {"OpenOne", "open", "opendialog", "Choose a file...",
     [](const std::string& start, const char* filter, QWidget* parent) {
         return listOf(openOne(start, filter, parent));
     }},
    {"OpenSeveral", "open several", "opendialog", "Select one or more files...", openSeveral},
    {"Save", "save", "savedialog", "Specify a filename...",
     [](const std::string& start, const char* filter, QWidget* parent) {
         return listOf(save(start, filter, parent));
     }},
};

void PrintTo(const Way& way, std::ostream* stream) {
    *stream << way.name;
}

// What the toolkit itself has been told.
bool mayBeNative() {
#if QT_VERSION >= 0x060000
    const auto* dialog = dynamic_cast<QFileDialog*>(QApplication::activeModalWidget());
    return !dialog->testOption(QFileDialog::DontUseNativeDialog);
#else
    return qt_use_native_dialogs;
#endif
}

/// In the open dialog.
void acceptTyped(const std::string& name) {
    QWidget* const dialog = QApplication::activeModalWidget();
    support::typeFileName(dialog, name);
    support::acceptFileName(dialog);
}

/// The other way round than it is.
void sortList(QWidget* dialog) {
#if QT_VERSION >= 0x060000
    const auto* const list = support::child<QListView>(dialog, "listView");
    support::waitUntil([&] { return list->model()->rowCount(list->rootIndex()) == 3; });
    support::child<QFileSystemModel>(dialog)->sort(0, Qt::DescendingOrder);
#else
    QListView* const list = support::child<QListView>(dialog);
    list->setSorting(0, false);
    list->sort();
#endif
}

/// As clicks would.
void selectInList(QWidget* dialog, const Lines& names) {
#if QT_VERSION >= 0x060000
    const auto* const list = support::child<QListView>(dialog, "listView");
    const auto* const model = support::child<QFileSystemModel>(dialog);
    for (const std::string& name : names) {
        const QString path = model->rootPath() + '/' + ascii(name);
        support::waitUntil([&] { return model->index(path).isValid(); });
        const QModelIndexList found =
            list->model()->match(list->model()->index(0, 0, list->rootIndex()), Qt::DisplayRole,
                                 ascii(name), 1, Qt::MatchExactly);
        ASSERT_FALSE(found.isEmpty()) << name;
        list->selectionModel()->select(found.first(),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
#else
    QListView* const list = support::child<QListView>(dialog);
    for (const std::string& name : names)
        list->setSelected(list->findItem(ascii(name), 0), true);
#endif
}

support::FileRequest shows(const std::string& folder, const std::string& fileName) {
    return {{}, {}, folder, fileName};
}

} // namespace

class FileDialogWays : public testing::TestWithParam<Way> {
protected:
    Lines run(const std::string& start, const char* filter = c_filter, QWidget* parent = nullptr) {
        return GetParam().run(start, filter, parent);
    }

    support::TempDir m_dir;
};

TEST_P(FileDialogWays, KeepNameCaptionParentAndFilters) {
    QWidget window(nullptr);
    ModalDriver driver;
    driver
        .expectFileDialog({GetParam().dialog,
                           GetParam().caption,
                           m_dir.path(),
                           "",
                           {"Images (*.tif *.tiff)", "All (*)"},
                           GetParam().mode})
        .under(&window)
        .cancel();

    EXPECT_EQ(run(m_dir.path(), c_filter, &window), Lines());
}

TEST_P(FileDialogWays, EndWithoutAChoiceWhenTheirParentIsDestroyed) {
    auto window = std::make_unique<QWidget>(nullptr);
    auto* page = new QWidget(window.get());
    ModalDriver driver;
    driver.expectFileDialog({}).under(page).before([&] { window.reset(); });

    EXPECT_EQ(run(m_dir.path(), c_filter, page), Lines());

    EXPECT_FALSE(window);
}

TEST_P(FileDialogWays, LeaveTheOtherChildrenOfTheirParentAlone) {
    QWidget window(nullptr);
    const QWidget earlier(&window);
    ModalDriver driver;
    driver.expectFileDialog({}).cancel();

    EXPECT_EQ(run(m_dir.path(), c_filter, &window), Lines());

    EXPECT_EQ(support::descendants(&window).size(), 1u);
}

TEST_P(FileDialogWays, FiltersMayBeSeparatedByLineBreaks) {
    ModalDriver driver;
    driver.expectFileDialog({{}, {}, {}, {}, {"One (*.a)", "Two (*.b)"}}).cancel();

    run(m_dir.path(), "One (*.a)\nTwo (*.b)");
}

TEST_P(FileDialogWays, AnEmptyFilterShowsAllFiles) {
    ModalDriver driver;
    driver.expectFileDialog({{}, {}, {}, {}, {"All Files (*)"}}).cancel();

    run(m_dir.path(), "");
}

TEST_P(FileDialogWays, GiveNothingWithoutAChoice) {
    ModalDriver driver;
    driver.expectFileDialog({}).cancel();
    driver.expectFileDialog({}).escape();
    driver.expectFileDialog({}).close();

    EXPECT_EQ(run(m_dir.path()), Lines());
    EXPECT_EQ(run(m_dir.path()), Lines());
    EXPECT_EQ(run(m_dir.path()), Lines());
}

TEST_P(FileDialogWays, GiveTheChosenFile) {
    const std::string path = m_dir.writeFile("scan.tif");
    ModalDriver driver;
    driver.expectFileDialog({}).choose(path);

    EXPECT_EQ(run(m_dir.path()), Lines{path});
}

TEST_P(FileDialogWays, ATypedNameIsInTheFolderShown) {
    const std::string path = m_dir.writeFile("scan.tif");
    ModalDriver driver;
    driver.expectFileDialog({}).choose("scan.tif");

    EXPECT_EQ(run(m_dir.path()), Lines{path});
}

TEST_P(FileDialogWays, BeginInTheWorkingDirectoryWithoutAStartPath) {
    ModalDriver driver;
    driver.expectFileDialog(shows(std::filesystem::current_path().generic_string(), "")).cancel();

    run("");
}

TEST_P(FileDialogWays, WithoutAStartPathShowTheFolderLastUsed) {
    m_dir.writeFile("scan.tif");
    ModalDriver driver;
    driver.expectFileDialog({}).choose("scan.tif");
    driver.expectFileDialog(shows(m_dir.path(), "")).cancel();

    run(m_dir.path());
    run("");
}

TEST_P(FileDialogWays, WithoutAStartPathShowTheWorkingDirectoryAfterAFolderThatHasGone) {
    ModalDriver driver;
    driver.expectFileDialog({}).cancel();
    run(m_dir.makeFolder("gone"));
    m_dir.remove("gone");
#if QT_VERSION < 0x040000
    driver.expectMessage({"Error"}).enter(); // the toolkit's own
    driver.expectMessage({"Error"}).enter();
#endif
    driver.expectFileDialog(shows(std::filesystem::current_path().generic_string(), "")).cancel();

    run("");
}

TEST_P(FileDialogWays, TypedPathDoesNotChangeTheFolderLastUsed) {
    m_dir.makeFolder("other");
    m_dir.writeFile("other/scan.tif");
    ModalDriver driver;
    driver.expectFileDialog({}).choose(m_dir.path("other/scan.tif"));
    driver.expectFileDialog(shows(m_dir.path(), "")).cancel();

    run(m_dir.path());
    run("");
}

TEST_P(FileDialogWays, FolderIsRememberedOnCancelToo) {
    ModalDriver driver;
    driver.expectFileDialog(shows(m_dir.path(), "")).cancel();
    driver.expectFileDialog(shows(m_dir.path(), "")).cancel();

    run(m_dir.path());
    run("");
}

TEST_P(FileDialogWays, ShareTheFolderLastUsed) {
    ModalDriver driver;
    driver.expectFileDialog({}).cancel();
    for (int i = 0; i < 3; ++i)
        driver.expectFileDialog(shows(m_dir.path(), "")).cancel();

    run(m_dir.path());
    openOne("");
    openSeveral("");
    save("");
}

TEST_P(FileDialogWays, LinkToAFileIsReturnedAsTheLink) {
    NOT_ON_WINDOWS(noLinks);
    m_dir.makeLink("link.tif", m_dir.writeFile("scan.tif"));
    ModalDriver driver;
    driver.expectFileDialog({}).choose("link.tif");

    EXPECT_EQ(run(m_dir.path()), Lines{m_dir.path("link.tif")});
}

TEST_P(FileDialogWays, StartFolderThatIsALinkIsResolved) {
    NOT_ON_WINDOWS(noLinks);
    const std::string folder = m_dir.makeFolder("real");
    const std::string path = m_dir.writeFile("real/scan.tif");
    const std::string link = m_dir.makeLink("link", folder);
    ModalDriver driver;
    driver.expectFileDialog({}).choose("scan.tif");

    EXPECT_EQ(run(link), Lines{path});
}

TEST_P(FileDialogWays, NamesMayHoldWhatPathsAndAddressesGiveAMeaning) {
    for (const char* name :
         {"a b.tif", "R&D.tif", "50%41.tif", "a#b.tif", "a+b;c.tif", "x.tar.gz"}) {
        const std::string path = m_dir.writeFile(name);
        ModalDriver driver;
        driver.expectFileDialog({}).choose(path);

        EXPECT_EQ(run(m_dir.path()), Lines{path});
    }
}

TEST_P(FileDialogWays, TypedNameMayBeginWithAColon) {
    NOT_ON_WINDOWS(noSuchNames);
    const std::string path = m_dir.writeFile(":a.tif");
    ModalDriver driver;
    driver.expectFileDialog({}).choose(":a.tif");

    EXPECT_EQ(run(m_dir.path()), Lines{path});
}

INSTANTIATE_TEST_SUITE_P(All, FileDialogWays, testing::ValuesIn(c_ways),
                         [](const auto& row) { return std::string(row.param.name); });

/// What holds for one file, opened or saved.
class FileDialogForOne : public FileDialogWays {};

TEST_P(FileDialogForOne, StartFileInAFolderIsFilledIn) {
    ModalDriver driver;
    driver.expectFileDialog(shows(m_dir.path(), "missing.tif")).cancel();
    driver.expectFileDialog(shows(m_dir.path(), "there.tif")).cancel();

    run(m_dir.path("missing.tif"));
    m_dir.writeFile("there.tif");
    run(m_dir.path("there.tif"));
}

TEST_P(FileDialogForOne, StartFileIsAcceptedAsItStands) {
    const std::string path = m_dir.writeFile("there.tif");
    ModalDriver driver;
    driver.expectFileDialog({}).accept();

    EXPECT_EQ(run(path), Lines{path});
}

TEST_P(FileDialogForOne, StartFileInAMissingFolderShowsTheFolderLastUsedAndNoName) {
    ModalDriver driver;
    driver.expectFileDialog({}).cancel();
    driver.expectFileDialog(shows(m_dir.path(), "")).cancel();

    run(m_dir.path());
    run(m_dir.path("missing/scan.tif"));
}

TEST_P(FileDialogForOne, QuotationMarksArePartOfTheName) {
    NOT_ON_WINDOWS(noSuchNames);
    for (const char* name : {"say \"hi\".tif", "half\"quote.tif", "\"quoted\".tif", "\"\".tif"}) {
        const std::string path = m_dir.writeFile(name);
        ModalDriver driver;
        driver.expectFileDialog({}).choose(name);
        driver.expectFileDialog({}).choose(path);
        driver.expectFileDialog(shows(m_dir.path(), name)).accept();

        EXPECT_EQ(run(m_dir.path()), Lines{path});
        EXPECT_EQ(run(m_dir.path()), Lines{path});
        EXPECT_EQ(run(path), Lines{path});
    }
}

TEST_P(FileDialogForOne, FolderWithQuotationMarksIsEntered) {
    NOT_ON_WINDOWS(noSuchNames);
    const std::string folder = m_dir.makeFolder("a \"b\" c");
    std::string shown;
    ModalDriver driver;
    driver.expectFileDialog({})
        .before([&shown] {
            acceptTyped("a \"b\" c");
            shown = support::folderOf(QApplication::activeModalWidget());
        })
        .cancel();

    EXPECT_EQ(run(m_dir.path()), Lines());
    EXPECT_EQ(shown, folder);
}

#if QT_VERSION >= 0x060000 // Qt 3.3 takes such a name for an address and complains
TEST_P(FileDialogForOne, StartFileThatBeginsWithAColonIsFilledIn) {
    NOT_ON_WINDOWS(noSuchNames);
    const std::string path = m_dir.writeFile(":a.tif");
    ModalDriver driver;
    driver.expectFileDialog(shows(m_dir.path(), ":a.tif")).accept();

    EXPECT_EQ(run(path), Lines{path});
}

TEST_P(FileDialogForOne, StartFolderOfTheProgramsOwnResourcesIsNoFolder) {
    ModalDriver driver;
    driver.expectFileDialog({}).cancel();
    driver.expectFileDialog(shows(m_dir.path(), "")).cancel();

    run(m_dir.path());
    run(":/");
}
#endif

INSTANTIATE_TEST_SUITE_P(All, FileDialogForOne, testing::Values(c_ways[0], c_ways[2]),
                         [](const auto& row) { return std::string(row.param.name); });

/// Some files in a folder, of which the user chooses several.
class FileDialogForSeveral : public testing::Test {
protected:
    Lines run() const { return openSeveral(m_dir.path()); }

    const support::TempDir m_dir;
    const std::string m_sA = m_dir.writeFile("a.tif");
    const std::string m_sB = m_dir.writeFile("b b.tif");
    const std::string m_sC = m_dir.writeFile("c.tif");
    ModalDriver m_driver;
};

TEST_F(FileDialogForSeveral, ComeInTheOrderTyped) {
    m_driver.expectFileDialog({}).chooseSeveral({"c.tif", "a.tif", "b b.tif"});

    EXPECT_EQ(run(), (Lines{m_sC, m_sA, m_sB}));
}

// As happens by itself whenever the folder has been read further.
TEST_F(FileDialogForSeveral, ComeInTheOrderTypedThoughTheListIsSortedMeanwhile) {
    m_driver.expectFileDialog({})
        .before([&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            support::typeFileName(dialog, "\"" + m_sA + "\" \"c.tif\" \"./b b.tif\"");
            sortList(dialog);
            support::acceptFileName(dialog);
        })
        .cancel();

    EXPECT_EQ(run(), (Lines{m_sA, m_sC, m_sB}));
}

TEST_F(FileDialogForSeveral, AreTheNamesTypedAlsoTwiceTheSame) {
    m_driver.expectFileDialog({}).chooseSeveral({"c.tif", "a.tif", "c.tif"});

    EXPECT_EQ(run(), (Lines{m_sC, m_sA, m_sC}));
}

TEST_F(FileDialogForSeveral, MayBeFilesThatTheFilterHides) {
    const std::string hidden = m_dir.writeFile("b.txt");
    m_driver.expectFileDialog({}).chooseSeveral({"c.tif", "b.txt", "a.tif"});

    EXPECT_EQ(run(), (Lines{m_sC, hidden, m_sA}));
}

TEST_F(FileDialogForSeveral, ThatAreSelectedInTheListMayHaveQuotationMarks) {
    NOT_ON_WINDOWS(noSuchNames);
    const std::string quoted = m_dir.writeFile("say \"hi\".tif");
    m_driver.expectFileDialog({})
        .before([] {
            selectInList(QApplication::activeModalWidget(), {"a.tif", "say \"hi\".tif"});
        })
        .accept();

    // What is clicked comes as it is listed on Qt 3.3, which keeps an order that another dialog was given.
    Lines chosen = run();
    std::sort(chosen.begin(), chosen.end());
    EXPECT_EQ(chosen, (Lines{m_sA, quoted}));
}

// In a box of the toolkit's own.
TEST_F(FileDialogForSeveral, MissingOneIsToldOfAndLeavesTheDialogOpenAsItWas) {
    const std::string names = "\"c.tif\" \"b.tif\" \"a.tif\"";
    std::string stillTyped;
    m_driver.expectFileDialog({})
        .before([&] {
            acceptTyped(names);
            if (QWidget* const dialog = QApplication::activeModalWidget())
                stillTyped = support::typedFileName(dialog);
        })
        .chooseSeveral({"c.tif", "a.tif"});
    m_driver.expectMessage({{}, {}, {"OK"}}).enter();

    EXPECT_EQ(run(), (Lines{m_sC, m_sA}));

    EXPECT_EQ(stillTyped, names);
    ASSERT_EQ(m_driver.log().size(), 2u);
    EXPECT_NE(m_driver.log()[1].find("b.tif\\n"), std::string::npos) << m_driver.log()[1];
}

TEST(FileDialog, MissingFileWithQuotationMarksLeavesTheDialogOpen) {
    const support::TempDir dir;
    dir.writeFile("such");
    ModalDriver driver;
    driver.expectFileDialog({}).before([] { acceptTyped("no \"such\" file"); }).cancel();

    EXPECT_EQ(openOne(dir.path()), "");
}

TEST(FileDialog, SavingUnderANewNameWithQuotationMarks) {
    const support::TempDir dir;
    dir.writeFile("hi");
    ModalDriver driver;
    driver.expectFileDialog(shows(dir.path(), "say \"hi\"")).accept();

    EXPECT_EQ(save(dir.path("say \"hi\"")), dir.path("say \"hi\""));
}

TEST(FileDialog, SavingOverAFileIsNotAskedAbout) {
    const support::TempDir dir;
    const std::string path = dir.writeFile("scan.tif", "content");
    ModalDriver driver;
    driver.expectFileDialog({}).choose(path);

    EXPECT_EQ(save(dir.path()), path);
    EXPECT_EQ(driver.log().size(), 1u);
    EXPECT_EQ(dir.read("scan.tif"), "content");
}

TEST(FileDialog, SavingAppendsNoExtension) {
    const support::TempDir dir;
    ModalDriver driver;
    driver.expectFileDialog({}).choose("scan");

    EXPECT_EQ(save(dir.path()), dir.path("scan"));
}

TEST(FileDialog, SavingIntoAMissingFolderIsAccepted) {
    const support::TempDir dir;
    ModalDriver driver;
    driver.expectFileDialog({}).choose(dir.path("missing/scan.tif"));

    EXPECT_EQ(save(dir.path()), dir.path("missing/scan.tif"));
}

TEST(FileDialog, SavingKeepsCharactersBeyondAscii) {
    const support::TempDir dir;
    ModalDriver driver;
    driver.expectFileDialog({}).choose("caf\xc3\xa9.tif");

    EXPECT_EQ(save(dir.path()), dir.path("caf\xc3\xa9.tif"));
}

TEST(FileDialog, LinkedFolderInATypedPathIsResolved) {
    NOT_ON_WINDOWS(noLinks);
    const support::TempDir dir;
    dir.makeFolder("real");
    const std::string path = dir.writeFile("real/scan.tif");
    dir.makeLink("link", dir.path("real"));
    ModalDriver driver;
    driver.expectFileDialog({}).choose(dir.path("link/scan.tif"));
    driver.expectFileDialog({}).choose(dir.path("link/scan.tif"));

    EXPECT_EQ(openOne(dir.path()), path);
    EXPECT_EQ(save(dir.path()), path);
}

TEST(FileDialog, SeveralDoNotFillInAStartFile) {
    const support::TempDir dir;
    dir.makeFolder("other");
    ModalDriver driver;
    driver.expectFileDialog({}).cancel();
    driver.expectFileDialog(shows(dir.path(), "")).cancel();

    openSeveral(dir.path("other"));
    openSeveral(dir.writeFile("scan.tif"));
}

TEST(FileDialog, PlatformsOwnDialogIsSwitchedOff) {
    const support::TempDir dir;
    bool allowed = true;
    ModalDriver driver;
    driver.expectFileDialog({}).before([&] { allowed = mayBeNative(); }).cancel();
    qt3::useNativeDialogs(false);

    openOne(dir.path());

    EXPECT_FALSE(allowed);
}
