#include "ModalDriver.h"

#include "Events.h"

#include <filesystem>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <qapplication.h>
#include <qdialog.h>
#include <qt3/ColorDialog.h>
#include <qt3/FileDialog.h>
#include <qt3/MessageBox.h>
#include <qt3/Text.h>
#include <qwidget.h>

using qt3::MessageBox;
using support::ModalDriver;
using Lines = std::vector<std::string>;

namespace {

int askRetry(QWidget* parent = nullptr) {
    return MessageBox::warning(parent, "Caption", "The text:\n%1",
                               MessageBox::Cancel | MessageBox::Escape,
                               MessageBox::Retry | MessageBox::Default);
}

int tell() {
    return MessageBox::information(nullptr, "Note", "Done.", MessageBox::Ok);
}

/// One that there is everywhere.
std::string folder() {
    return std::filesystem::canonical(std::filesystem::temp_directory_path()).generic_string();
}

QString askForFile(QWidget* parent = nullptr) {
    return qt3::FileDialog::getSaveFileName(qt3::fromAscii(folder() + "/it.png"),
                                            "Images (*.png);;All (*)", parent, "savedialog",
                                            "Specify");
}

const support::Message c_retry{"Caption", "The text:\n%1", {"Cancel", "Retry"}, "Retry", "Cancel"};

} // namespace

TEST(ModalDriver, ClicksTheButtonWithTheLabel) {
    ModalDriver driver;
    driver.expectWarning(c_retry).answer("Retry");
    driver.expectWarning(c_retry).answer("Cancel");

    EXPECT_EQ(askRetry(), MessageBox::Retry);
    EXPECT_EQ(askRetry(), MessageBox::Cancel);
}

TEST(ModalDriver, PressesKeysAndCloses) {
    ModalDriver driver;
    driver.expectMessage({}).enter();
    driver.expectMessage({}).escape();
    driver.expectMessage({}).close();

    EXPECT_EQ(askRetry(), MessageBox::Retry);
    EXPECT_EQ(askRetry(), MessageBox::Cancel);
    EXPECT_EQ(askRetry(), MessageBox::Cancel);
}

TEST(ModalDriver, ReturnStillPressesTheDefaultButtonAfterTheEscapeButtonWasLookedAt) {
    ModalDriver driver;
    driver.expectMessage(c_retry).enter();

    EXPECT_EQ(askRetry(), MessageBox::Retry);
}

TEST(ModalDriver, LogsEachDialogWithItsAnswer) {
    ModalDriver driver;
    driver.expectMessage({}).answer("Retry");
    driver.expectMessage({}).escape();
    driver.expectFileDialog({}).choose(folder() + "/other.png");
    driver.expectColorDialog({}).accept(QColor(1, 2, 3));

    askRetry();
    tell();
    askForFile();
    qt3::ColorDialog::getColor(QColor(255, 255, 255), nullptr, "Choose color");

    EXPECT_EQ(driver.log(), (Lines{"warning 'Caption' 'The text:\\n%1' [Cancel, Retry] -> Retry",
                                   "information 'Note' 'Done.' [OK] -> escape",
                                   "save 'savedialog' 'Specify' in '" + folder() +
                                       "' with 'it.png' -> '" + folder() + "/other.png'",
                                   "color 'Choose color' '#ffffff' -> '#010203'"}));
}

TEST(ModalDriver, FillsInTheFileDialog) {
    ModalDriver driver;
    const support::FileRequest expected{
        "savedialog", "Specify", folder(), "it.png", {"Images (*.png)", "All (*)"}, "save"};
    driver.expectFileDialog(expected).choose(folder() + "/new.png");
    driver.expectFileDialog(expected).accept();
    driver.expectFileDialog(expected).cancel();
    driver.expectFileDialog(expected).escape();
    driver.expectFileDialog(expected).close();

    EXPECT_EQ(support::text(askForFile()), folder() + "/new.png");
    EXPECT_EQ(support::text(askForFile()), folder() + "/it.png");
    EXPECT_TRUE(askForFile().isEmpty());
    EXPECT_TRUE(askForFile().isEmpty());
    EXPECT_TRUE(askForFile().isEmpty());
}

TEST(ModalDriver, ChoosesColors) {
    const QColor white(255, 255, 255);
    ModalDriver driver;
    driver.expectColorDialog({"Choose color", "#ffffff"}).accept(QColor(10, 20, 30));
    driver.expectColorDialog({}).accept();
    driver.expectColorDialog({}).cancel();

    EXPECT_EQ(qt3::ColorDialog::getColor(white, nullptr, "Choose color"), QColor(10, 20, 30));
    EXPECT_EQ(qt3::ColorDialog::getColor(white, nullptr, "Choose color"), white);
    EXPECT_FALSE(qt3::ColorDialog::getColor(white, nullptr, "Choose color").isValid());
}

TEST(ModalDriver, AnyOtherDialogIsEndedByTheTest) {
    ModalDriver driver;
    driver.expectDialog({}).act([](QWidget* dialog) { dialog->close(); });
    QDialog dialog(nullptr);

    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_EQ(driver.log(), Lines{"dialog '' '' -> done"});
}

TEST(ModalDriver, TheSameDialogShownAgainIsAFurtherOne) {
    ModalDriver driver;
    driver.expectDialog({}).close();
    driver.expectDialog({}).escape();
    QDialog dialog(nullptr);

    dialog.exec();
    dialog.exec();

    EXPECT_EQ(driver.log(), (Lines{"dialog '' '' -> close", "dialog '' '' -> escape"}));
}

TEST(ModalDriver, HookRunsWhileTheDialogIsOpen) {
    bool open = false;
    ModalDriver driver;
    driver.expectMessage({}).before([&] { open = QApplication::activeModalWidget(); }).answer("OK");

    tell();

    EXPECT_TRUE(open);
}

TEST(ModalDriver, DialogsMayBeNested) {
    int inner = 0;
    ModalDriver driver;
    driver.expectWarning({}).before([&] { inner = tell(); }).answer("Retry");
    driver.expectInformation({}).answer("OK");

    EXPECT_EQ(askRetry(), MessageBox::Retry);
    EXPECT_EQ(inner, MessageBox::Ok);
}

TEST(ModalDriver, KnowsTheParent) {
    QWidget window(nullptr);
    ModalDriver driver;
    driver.expectMessage({}).under(&window).answer("Retry");
    driver.expectMessage({}).under(nullptr).answer("Retry");

    EXPECT_EQ(askRetry(&window), MessageBox::Retry);
    EXPECT_EQ(askRetry(), MessageBox::Retry);
}

TEST(ModalDriver, UnexpectedDialogFailsTheTestAndIsClosed) {
    ModalDriver driver;

    EXPECT_NONFATAL_FAILURE(askRetry(),
                            "unexpected: warning 'Caption' 'The text:\\n%1' [Cancel, Retry]");
}

TEST(ModalDriver, MissingDialogFailsTheTest) {
    ModalDriver driver;
    driver.expectWarning({"Caption"}).answer("OK");

    EXPECT_NONFATAL_FAILURE(driver.finish(), "never came: message box 'Caption'");
}

TEST(ModalDriver, MissingDialogIsNoticedAtTheEndOfTheDriver) {
    auto driver = std::make_unique<ModalDriver>();
    driver->expectFileDialog({"opendialog"}).cancel();

    EXPECT_NONFATAL_FAILURE(driver.reset(), "never came: file dialog 'opendialog'");
}

struct WrongMessage {
    const char* name;
    support::Message expected;
    const char* difference;
};

void PrintTo(const WrongMessage& row, std::ostream* stream) {
    *stream << row.name;
}

class ModalDriverDifferences : public testing::TestWithParam<WrongMessage> {};

TEST_P(ModalDriverDifferences, FailTheTest) {
    ModalDriver driver;
    driver.expectMessage(GetParam().expected).answer("Retry");

    EXPECT_NONFATAL_FAILURE(askRetry(), GetParam().difference);
}

INSTANTIATE_TEST_SUITE_P(
    Message, ModalDriverDifferences,
    testing::Values(
        WrongMessage{"Caption", {"Other"}, "the caption is 'Caption', not 'Other'"},
        WrongMessage{"EmptyCaption", {""}, "the caption is 'Caption', not ''"},
        WrongMessage{"Text", {{}, "Other"}, "the text is 'The text:\\n%1', not 'Other'"},
        WrongMessage{"Order",
                     {{}, {}, {"Retry", "Cancel"}},
                     "the buttons are [Cancel, Retry], not [Retry, Cancel]"},
        WrongMessage{
            "Default", {{}, {}, {}, "Cancel"}, "the default button is 'Retry', not 'Cancel'"},
        WrongMessage{
            "Escape", {{}, {}, {}, {}, "Retry"}, "the escape button is 'Cancel', not 'Retry'"},
        WrongMessage{"NoEscape", {{}, {}, {}, {}, ""}, "the escape button is 'Cancel', not ''"}),
    [](const auto& row) { return row.param.name; });

TEST(ModalDriver, WrongIconFailsTheTest) {
    ModalDriver driver;
    driver.expectInformation({"Caption"}).answer("Retry");

    EXPECT_NONFATAL_FAILURE(askRetry(), "the icon is 'warning', not 'information'");
}

TEST(ModalDriver, WrongParentFailsTheTest) {
    QWidget window(nullptr);
    ModalDriver driver;
    driver.expectMessage({}).under(&window).answer("Retry");

    EXPECT_NONFATAL_FAILURE(askRetry(), "the parent is another widget");
}

TEST(ModalDriver, AnotherKindOfDialogFailsTheTest) {
    ModalDriver driver;
    driver.expectFileDialog({"opendialog"}).cancel();

    EXPECT_NONFATAL_FAILURE(tell(), "it should be: file dialog 'opendialog'");
}

TEST(ModalDriver, WrongFileDialogFailsTheTest) {
    ModalDriver driver;
    driver.expectFileDialog({"savedialog", "Specify", folder(), "other.png"}).cancel();

    EXPECT_NONFATAL_FAILURE(askForFile(), "the file name is 'it.png', not 'other.png'");
}

TEST(ModalDriver, NoEscapeButtonIsSeen) {
    ModalDriver driver;
    driver.expectMessage({"Note", "Done.", {"OK"}, "OK", ""}).close();

    EXPECT_EQ(tell(), 0);
}

TEST(ModalDriver, DialogThatStaysOpenFailsTheTestAndIsClosed) {
    ModalDriver driver;
    driver.expectDialog({}).act([](QWidget*) {});
    QDialog dialog(nullptr);

    EXPECT_NONFATAL_FAILURE(dialog.exec(), "stays open: dialog '' ''");
}

TEST(ModalDriver, MissingButtonFailsTheTest) {
    ModalDriver driver;
    driver.expectMessage({}).before([] {}).answer("Ignore");
    int failures = 0;

    {
        testing::TestPartResultArray results;
        const testing::ScopedFakeTestPartResultReporter reporter(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
        tell();
        failures = results.size();
    }

    EXPECT_EQ(failures, 2); // the missing button, and the box that stays open
}
