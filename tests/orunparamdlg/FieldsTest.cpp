#include "GeneratedDialogTest.h"

#include <CColorPushButton.h>
#include <CDoubleSpinBox.h>
#include <CFileLineWidget.h>
#include <CRangeSlider.h>
#include <CRangeSliderSpinboxed.h>
#include <cfloat>
#include <climits>
#include <qcheckbox.h>
#include <qcombobox.h>
#include <qlineedit.h>
#include <qt3/SpinBox.h>
#include <qt3/Text.h>

// Each kind of parameter, shown and edited.

using namespace maps;
using TEVU::CColorPushButton;
using TEVU::CDoubleSpinBox;
using TEVU::CFileLineWidget;
using TEVU::CRangeSlider;
using TEVU::CRangeSliderSpinboxed;

namespace {

class FieldsTest : public GeneratedDialogTest {
protected:
    static std::string fileText(QWidget* dialog, const char* path) {
        return support::text(field<CFileLineWidget>(dialog, path)->filename());
    }

    static void browse(QWidget* dialog, const char* path) {
        support::mouseClick(part<QPushButton>(dialog, path));
    }
};

CValue* decimals(long count, const char* unit = "") {
    return entry("number", "a", "",
                 {{"decimals", whole(count)}, {"unit", text(unit)}, {"step", number(0.25)}});
}

} // namespace

TEST_F(FieldsTest, WholeNumberIsTyped) {
    describe(entry("integer", "a", "", {{"min", whole(-5)}, {"max", whole(50)}}));
    give({{"a", whole(7)}});
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  EXPECT_EQ(field<qt3::SpinBox>(dialog, "a")->value(), 7);
                  typeOver(field(dialog, "a"), "42");
              }),
              "{a: 42}");
}

TEST_F(FieldsTest, WholeNumberWithAUnitIsTyped) {
    describe(entry("integer", "a", "", {{"min", whole(1)}, {"unit", text("px")}}));
    EXPECT_EQ(okAfter([](QWidget* dialog) { typeOver(field(dialog, "a"), "42"); }), "{a: 42}");
}

TEST_F(FieldsTest, WholeNumberHasItsLimitsStepAndUnit) {
    describe(
        entry("integer", "a", "",
              {{"min", whole(-5)}, {"max", whole(50)}, {"step", whole(10)}, {"unit", text("px")}}));
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  auto* const spinBox = field<qt3::SpinBox>(dialog, "a");
                  EXPECT_EQ(spinBox->minValue(), -5);
                  EXPECT_EQ(spinBox->maxValue(), 50);
                  EXPECT_EQ(support::text(spinBox->text()), "0 px");
                  spinBox->stepUp();
                  spinBox->stepUp();
              }),
              "{a: 20}");
}

TEST_F(FieldsTest, WholeNumberHasAllIntsAsItsLimits) {
    describe({entry("integer", "a", ""), entry("integer", "b", "")});
    give({{"a", whole(INT_MIN)}, {"b", whole(INT_MAX)}});
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  field<qt3::SpinBox>(dialog, "a")->stepDown();
                  field<qt3::SpinBox>(dialog, "b")->stepUp();
              }),
              "{a: -2147483648, b: 2147483647}");
}

TEST_F(FieldsTest, NumberIsTyped) {
    describe(entry("number", "a", "", {{"min", number(-1)}, {"max", number(1)}}));
    give({{"a", number(0.5)}});
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  EXPECT_EQ(numberShown(dialog, "a"), "0.5");
                  typeOver(field(dialog, "a"), "-0.25");
              }),
              "{a: -0.25000000000000000}");
}

TEST_F(FieldsTest, NumberHasItsLimitsStepAndUnit) {
    describe(entry(
        "number", "a", "",
        {{"min", number(-1)}, {"max", number(1)}, {"step", number(0.75)}, {"unit", text("mm")}}));
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  auto* const box = field<CDoubleSpinBox>(dialog, "a");
                  EXPECT_EQ(box->minValue(), -1.0);
                  EXPECT_EQ(box->maxValue(), 1.0);
                  EXPECT_EQ(numberShown(dialog, "a"), "0 mm");
                  box->stepUp();
                  EXPECT_EQ(numberShown(dialog, "a"), "0.75 mm");
                  box->stepUp();
              }),
              "{a: 1.0000000000000000}");
}

TEST_F(FieldsTest, NumberShowsItsDecimals) {
    describe(decimals(3));
    give({{"a", number(0.5)}});
    okAfter([](QWidget* dialog) {
        EXPECT_EQ(numberShown(dialog, "a"), "0.500");
        field<CDoubleSpinBox>(dialog, "a")->stepUp();
        EXPECT_EQ(numberShown(dialog, "a"), "0.750");
    });
}

TEST_F(FieldsTest, NumberTypedWithMoreDecimalsIsWhatShows) {
    describe(decimals(2, "mm"));
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  typeOver(field(dialog, "a"), "1.2378");
                  support::keyClick(field(dialog, "a"), Qt::Key_Tab, support::Modifier::None, "\t");
                  EXPECT_EQ(numberShown(dialog, "a"), "1.24 mm");
              }),
              "{a: 1.2400000000000000}");
}

TEST_F(FieldsTest, NumberBeyondAllDecimalsIsKept) {
    describe(decimals(2));
    EXPECT_EQ(okAfter([](QWidget* dialog) { typeOver(field(dialog, "a"), "1234567890123456"); }),
              "{a: 1234567890123456.0}");
}

TEST_F(FieldsTest, NumberLeftAloneKeepsDigitsThatDoNotShow) {
    describe({decimals(2, "mm"), entry("number", "b", ""), entry("number", "c", "")});
    give({{"a", number(0.123456789)}, {"b", number(1.23456789)}, {"c", number(1e-30)}});
    const std::string before = parameters();
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  EXPECT_EQ(numberShown(dialog, "a"), "0.12 mm");
                  EXPECT_EQ(numberShown(dialog, "b"), "1.23457");
                  EXPECT_EQ(numberShown(dialog, "c"), "0");
                  for (const char* path : {"a", "b", "c"}) {
                      support::giveFocus(field(dialog, path));
                      support::keyClick(field(dialog, path), Qt::Key_Tab, support::Modifier::None,
                                        "\t");
                  }
              }),
              before);
}

TEST_F(FieldsTest, NumberConfirmedByReturnKeepsDigitsThatDoNotShow) {
    describe(decimals(2, "mm"));
    give({{"a", number(0.123456789)}});
    const std::string before = parameters();
    EXPECT_TRUE(show([](QWidget* dialog) {
        support::giveFocus(field(dialog, "a"));
        support::typeText(field(dialog, "a"), "\n");
    }));
    EXPECT_EQ(parameters(), before);
}

TEST_F(FieldsTest, NumberAboveItsLimitIsTheLimit) {
    describe(entry("number", "a", "", {{"max", number(1)}}));
    EXPECT_EQ(okAfter([](QWidget* dialog) { typeOver(field(dialog, "a"), "12"); }),
              "{a: 1.0000000000000000}");
}

TEST_F(FieldsTest, UnfinishedNumberGivesWayToTheOldOne) {
    describe(entry("number", "a", ""));
    give({{"a", number(2.5)}});
    EXPECT_EQ(okAfter([](QWidget* dialog) { typeOver(field(dialog, "a"), "-"); }),
              "{a: 2.5000000000000000}");
}

TEST_F(FieldsTest, NumberWithFarLimitsIsNotWide) {
    describe({entry("number", "a", "", {{"decimals", whole(15)}}),
              entry("number", "b", "", {{"max", number(DBL_MAX)}})});
    okAfter([](QWidget* dialog) { EXPECT_LT(dialog->width(), 640); });
}

TEST_F(FieldsTest, RangeIsTyped) {
    describe(entry("range", "a", "", {{"min", whole(10)}, {"max", whole(90)}}));
    give({{"a", range(20, 30)}});
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  auto* const range = field<CRangeSliderSpinboxed>(dialog, "a");
                  EXPECT_EQ(range->GetMin(), 10);
                  EXPECT_EQ(range->GetMax(), 90);
                  EXPECT_EQ(range->GetLower(), 20);
                  EXPECT_EQ(range->GetUpper(), 30);
                  typeOver(support::child<qt3::SpinBox>(range, "spinbox2"), "80");
                  typeOver(support::child<qt3::SpinBox>(range, "spinbox1 "), "70");
              }),
              "{a: {lower: 70, upper: 80}}");
}

TEST_F(FieldsTest, RangeBeingTypedGivesWayToTheDefaults) {
    describe(entry("range", "a", "",
                   {{"min", whole(0)}, {"max", whole(100)}, {"default", range(10, 90)}}));
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  auto* const lower = support::child<qt3::SpinBox>(dialog, "spinbox1 ");
                  support::giveFocus(lower);
                  lower->selectAll();
                  support::typeText(lower, "50"); // which is the range no longer, or not yet
                  press(dialog, "defaults");
                  EXPECT_EQ(support::text(lower->text()), "10");
              }),
              "{a: {lower: 10, upper: 90}}");
}

TEST_F(FieldsTest, RangeStartsWithSliderAndSpinBoxesAlike) {
    describe(entry("range", "a", "", {{"min", whole(10)}, {"max", whole(90)}}));
    give({{"a", range(20, 30)}});
    okAfter([](QWidget* dialog) {
        const auto* const slider = part<CRangeSlider>(dialog, "a");
        EXPECT_EQ(slider->Min(), 0);
        EXPECT_EQ(slider->Max(), 80);
        EXPECT_EQ(slider->Lower(), 10);
        EXPECT_EQ(slider->Upper(), 20);
    });
}

TEST_F(FieldsTest, RangesOfAllSortsAreShownAndReturned) {
    const struct {
        long lower, upper, min, max;
    } ranges[] = {{0, 100, 0, 100},         {0, 0, 0, 100},
                  {100, 100, 0, 100},       {5, 5, 5, 5},
                  {-9, -3, -10, -1},        {INT_MIN, -1, INT_MIN, -1},
                  {0, INT_MAX, 0, INT_MAX}, {1, 2, 0, INT_MAX}};
    for (const auto& row : ranges) {
        describe(entry("range", "a", "", {{"min", whole(row.min)}, {"max", whole(row.max)}}));
        give({{"a", range(row.lower, row.upper)}});
        const std::string before = parameters();
        EXPECT_EQ(okAfter([&](QWidget* dialog) {
                      const auto* const range = field<CRangeSliderSpinboxed>(dialog, "a");
                      EXPECT_EQ(range->GetLower(), row.lower);
                      EXPECT_EQ(range->GetUpper(), row.upper);
                  }),
                  before);
    }
}

TEST_F(FieldsTest, RangeKeepsWhatElseIsInItsMap) {
    describe(entry("range", "a", "", {{"min", whole(0)}, {"max", whole(9)}}));
    give({{"a", map({{"lower", whole(1)}, {"upper", whole(2)}, {"name", text("x")}})}});
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  field<CRangeSliderSpinboxed>(dialog, "a")->SlotSetUpper(5);
              }),
              "{a: {lower: 1, name: \"x\", upper: 5}}");
}

TEST_F(FieldsTest, TextIsTyped) {
    describe(entry("text", "a", ""));
    give({{"a", text("old")}});
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  EXPECT_EQ(support::text(field<QLineEdit>(dialog, "a")->text()), "old");
                  typeOver(field(dialog, "a"), "New & <b>old</b>");
              }),
              "{a: \"New & <b>old</b>\"}");
}

TEST_F(FieldsTest, TextIsLatin1) {
    describe({entry("text", "a", ""), entry("text", "b", "")});
    give({{"a", text("\xb5m")}});
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  EXPECT_EQ(support::text(field<QLineEdit>(dialog, "a")->text()), "\xc2\xb5m");
                  field<QLineEdit>(dialog, "b")->setText(qt3::fromAscii("\xe9t\xe9"));
              }),
              "{a: \"\xb5m\", b: \"\xe9t\xe9\"}");
}

TEST_F(FieldsTest, TextLeftAloneKeepsWhatNoFieldCanHold) {
    describe(entry("text", "a", ""));
    const std::string bytes = std::string("a\0b\r\n", 5) + std::string(40000, 'x');
    m_app.m_parameters.SetEntry("a", new TEVU::CValueString(bytes));
    okAfter();
    EXPECT_EQ(m_app.m_parameters.EntryString("a"), bytes);
}

TEST_F(FieldsTest, TextThatCannotBeStoredKeepsTheDialogOpen) {
    describe(entry("text", "a", "&Note:"));
    EXPECT_EQ(okAfter([this](QWidget* dialog) {
                  auto* const line = field<QLineEdit>(dialog, "a");
                  line->setText(QString(QChar(0x20ac)));
                  user.expectWarning({"Not a Latin-1 text",
                                      "The text of \"Note\" contains characters that cannot be "
                                      "stored.\nOnly those of Latin-1 can.",
                                      {"OK"}})
                      .under(dialog)
                      .answer("OK");
                  press(dialog, "ok");
                  EXPECT_TRUE(dialog->isVisible());
                  EXPECT_EQ(dialog->focusWidget(), line);
                  line->setText("ten euros");
              }),
              "{a: \"ten euros\"}");
}

TEST_F(FieldsTest, FileToOpenIsChosen) {
    describe(entry("open file", "a", "", {{"filter", text("Images (*.tif *.png)")}}));
    give({{"a", text(makeFile("old.tif").c_str())}});
    const std::string chosen = makeFile("new.tif");
    EXPECT_EQ(okAfter([&](QWidget* dialog) {
                  EXPECT_EQ(fileText(dialog, "a"), dir.path("old.tif"));
                  support::FileRequest expected = openIn(home());
                  expected.filters = {"Images (*.tif *.png)"};
                  user.expectFileDialog(expected).choose(chosen);
                  browse(dialog, "a");
              }),
              "{a: \"" + chosen + "\"}");
}

TEST_F(FieldsTest, FileToOpenIsTyped) {
    describe(entry("open file", "a", ""));
    const std::string path = makeFile("new.tif");
    EXPECT_EQ(
        okAfter([&](QWidget* dialog) { typeOver(part<QLineEdit>(dialog, "a"), path.c_str()); }),
        "{a: \"" + path + "\"}");
}

TEST_F(FieldsTest, FilesToOpenAreChosen) {
    describe(entry("open files", "a", ""));
    const Lines files{makeFile("b.tif"), makeFile("a,1.tif"), makeFile("c.tif")};
    EXPECT_EQ(okAfter([&](QWidget* dialog) {
                  user.expectFileDialog(openSeveralIn(home())).chooseSeveral(files);
                  browse(dialog, "a");
                  EXPECT_EQ(fileText(dialog, "a"), files[0] + ',' + files[1] + ',' + files[2]);
              }),
              "{a: [\"" + files[0] + "\", \"" + files[1] + "\", \"" + files[2] + "\"]}");
}

TEST_F(FieldsTest, FilesToOpenAreShownAndReturned) {
    describe(entry("open files", "a", ""));
    const std::string first = makeFile("a.tif");
    const std::string second = makeFile("b,c.tif");
    give({{"a", texts({first.c_str(), second.c_str()})}});
    const std::string before = parameters();
    EXPECT_EQ(
        okAfter([&](QWidget* dialog) { EXPECT_EQ(fileText(dialog, "a"), first + ',' + second); }),
        before);
}

TEST_F(FieldsTest, NoFilesAreAnEmptyVector) {
    describe(entry("open files", "a", ""));
    give({{"a", texts({makeFile("a.tif").c_str()})}});
    EXPECT_EQ(
        okAfter([&](QWidget* dialog) { field<CFileLineWidget>(dialog, "a")->setFilename(""); }),
        "{a: []}");
}

TEST_F(FieldsTest, FileToSaveIsChosen) {
    describe(entry("save file", "a", "", {{"filter", text("Tables (*.csv)")}}));
    EXPECT_EQ(okAfter([&](QWidget* dialog) {
                  user.expectFileDialog(
                          {"savedialog", {}, home(), "Untitled.csv", {"Tables (*.csv)"}, "save"})
                      .choose(dir.path("new.csv"));
                  browse(dialog, "a");
              }),
              "{a: \"" + dir.path("new.csv") + "\"}");
    EXPECT_FALSE(dir.exists("new.csv"));
}

TEST_F(FieldsTest, ChoiceIsMadeByKeys) {
    describe(entry("choice", "a", "",
                   {{"choices", texts({"none", "mean", "median"})},
                    {"labels", texts({"None", "Mean value", "Median"})}}));
    give({{"a", text("mean")}});
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  auto* const box = field<QComboBox>(dialog, "a");
                  EXPECT_EQ(box->count(), 3);
                  EXPECT_EQ(support::text(box->currentText()), "Mean value");
                  support::giveFocus(box);
                  support::keyClick(box, Qt::Key_Down);
              }),
              "{a: \"median\"}");
}

TEST_F(FieldsTest, ChoicesWithTheSameLabelAreToldApart) {
    describe(entry("choice", "a", "",
                   {{"choices", texts({"x", "y"})}, {"labels", texts({"Same", "Same"})}}));
    give({{"a", text("y")}});
    EXPECT_EQ(okAfter(), "{a: \"y\"}");
}

TEST_F(FieldsTest, SwitchIsClicked) {
    describe({entry("switch", "a", "Label"), entry("switch", "b", "")});
    give({{"a", flag(true)}, {"b", flag(false)}});
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  auto* const checkBox = field<QCheckBox>(dialog, "a");
                  EXPECT_EQ(support::text(checkBox->text()), "Label");
                  EXPECT_TRUE(checkBox->isChecked());
                  EXPECT_FALSE(field<QCheckBox>(dialog, "b")->isChecked());
                  support::giveFocus(checkBox);
                  support::keyClick(checkBox, Qt::Key_Space, support::Modifier::None, " ");
              }),
              "{a: false, b: false}");
}

TEST_F(FieldsTest, ColorIsChosen) {
    describe(entry("color", "a", ""));
    give({{"a", text("#102030")}});
    EXPECT_EQ(okAfter([this](QWidget* dialog) {
                  auto* const button = field<CColorPushButton>(dialog, "a");
                  EXPECT_EQ(support::text(button->color().name()), "#102030");
                  user.expectColorDialog({}).accept(QColor(255, 128, 0));
                  support::mouseClick(button);
              }),
              "{a: \"#ff8000\"}");
}

TEST_F(FieldsTest, ColorLeftAloneStaysAsItWasWritten) {
    describe(entry("color", "a", ""));
    give({{"a", text("#FF8000")}});
    EXPECT_EQ(okAfter(), "{a: \"#FF8000\"}");
}

TEST_F(FieldsTest, ParametersOfGroupsAreEditedWhereTheyLie) {
    describe({group("Outer",
                    {entry("integer", "a", ""),
                     group("Inner", {entry("integer", "a", "")}, {{"key", text("inner")}}),
                     group("Visual", {entry("integer", "b", "")})},
                    {{"key", text("outer")}}),
              entry("integer", "a", "")});
    give({{"a", whole(1)}, {"other", nullPointer()}, {"outer", map({{"x", flag(true)}})}});
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  typeOver(field(dialog, "a"), "2");
                  typeOver(field(dialog, "outer/a"), "3");
                  typeOver(field(dialog, "outer/inner/a"), "4");
                  typeOver(field(dialog, "outer/b"), "5");
              }),
              "{a: 2, other: null, outer: {a: 3, b: 5, inner: {a: 4}, x: true}}");
}

// Files, checked on OK

namespace {

class FileFieldsTest : public FieldsTest {
protected:
    /// Presses OK, which must leave the dialog open at the field.
    static void pressInVain(QWidget* dialog, const char* path) {
        press(dialog, "ok");
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_EQ(dialog->focusWidget(), part<QLineEdit>(dialog, path));
    }
};

} // namespace

TEST_F(FileFieldsTest, FileToOpenMustBeThere) {
    describe({entry("text", "t", ""), entry("open file", "a", "")});
    const std::string path = dir.path("missing.tif");
    give({{"a", text(path.c_str())}});
    EXPECT_EQ(okAfter([&](QWidget* dialog) {
                  user.expectWarning(unreadable(path)).under(dialog).answer("Cancel");
                  pressInVain(dialog, "a");
                  makeFile("missing.tif");
              }),
              "{a: \"" + path + "\", t: \"\"}");
}

TEST_F(FileFieldsTest, DialogWhoseParentGoesUnderABoxIsCancelled) {
    describe({entry("open file", "a", ""), entry("open file", "b", "")});
    const std::string path = dir.path("missing.tif");
    give({{"a", text(path.c_str())}, {"b", text(path.c_str())}});
    auto* const window = new qt3::Widget;
    support::show(window); // the active window is the parent
    EXPECT_FALSE(show([&](QWidget* dialog) {
        user.expectWarning(unreadable(path)).before([=] { delete window; });
        auto* const edit = part<QLineEdit>(dialog, "a");
        support::giveFocus(edit);
        support::keyPress(edit, Qt::Key_Return, support::Modifier::None, "\r");
    }));
}

TEST_F(FileFieldsTest, MissingFileCanBeTriedAgain) {
    describe(entry("open file", "a", ""));
    const std::string path = dir.path("late.tif");
    give({{"a", text(path.c_str())}});
    EXPECT_EQ(okAfter([&](QWidget*) {
                  user.expectWarning(unreadable(path))
                      .before([this] { makeFile("late.tif"); })
                      .answer("Retry");
              }),
              "{a: \"" + path + "\"}");
}

TEST_F(FileFieldsTest, EveryOneOfSeveralFilesMustBeThere) {
    describe(entry("open files", "a", ""));
    const std::string first = makeFile("a.tif");
    const std::string second = dir.path("b.tif");
    give({{"a", texts({first.c_str(), second.c_str()})}});
    cancelAfter([&](QWidget* dialog) {
        user.expectWarning(unreadable(second)).under(dialog).answer("Cancel");
        pressInVain(dialog, "a");
    });
}

TEST_F(FileFieldsTest, FolderIsNoFile) {
    dir.makeFolder("folder.csv");
    describe(
        {entry("open file", "a", ""), entry("save file", "b", "", {{"filter", text("*.csv")}})});
    cancelAfter([&](QWidget* dialog) {
        for (const char* path : {"a", "b"}) {
            field<CFileLineWidget>(dialog, path)->setFilename(toText(dir.path("folder.csv")));
            user.expectWarning({"Not a file",
                                "This is a folder, not a file:\n" + dir.path("folder.csv"),
                                {"OK"}})
                .under(dialog)
                .answer("OK");
            pressInVain(dialog, path);
            field<CFileLineWidget>(dialog, path)->setFilename("");
        }
    });
}

TEST_F(FileFieldsTest, NameMustBeAscii) {
    describe(
        {entry("open file", "a", ""), entry("save file", "b", "", {{"filter", text("*.csv")}})});
    const QString name = makeFileNamed(QString(QChar(0xe9)) + ".csv");
    cancelAfter([&](QWidget* dialog) {
        for (const char* path : {"a", "b"}) {
            field<CFileLineWidget>(dialog, path)->setFilename(name);
            user.expectWarning(notAscii(support::text(name))).under(dialog).answer("OK");
            pressInVain(dialog, path);
            field<CFileLineWidget>(dialog, path)->setFilename("");
        }
    });
}

TEST_F(FileFieldsTest, PlaceToSaveMustBeWritable) {
    describe(entry("save file", "a", "", {{"filter", text("*.csv")}}));
    const std::string path = dir.path("no folder/a.csv");
    cancelAfter([&](QWidget* dialog) {
        field<CFileLineWidget>(dialog, "a")->setFilename(toText(path));
        user.expectWarning(unwritable(path)).under(dialog).answer("Cancel");
        pressInVain(dialog, "a");
    });
}

TEST_F(FileFieldsTest, FileThatIsNotThereYetCanBeSaved) {
    describe(entry("save file", "a", "", {{"filter", text("*.csv")}}));
    EXPECT_EQ(okAfter([&](QWidget* dialog) {
                  field<CFileLineWidget>(dialog, "a")->setFilename(toText(dir.path("a.csv")));
              }),
              "{a: \"" + dir.path("a.csv") + "\"}");
    EXPECT_FALSE(dir.exists("a.csv"));
}

TEST_F(FileFieldsTest, NoFileIsFineUnlessOneIsRequired) {
    describe({entry("open file", "a", ""), entry("open files", "b", ""),
              entry("save file", "c", "", {{"filter", text("*.csv")}})});
    EXPECT_EQ(okAfter(), "{a: \"\", b: [], c: \"\"}");
}

TEST_F(FileFieldsTest, RequiredFilesMustBeNamed) {
    describe(
        {entry("open file", "a", "&First:", {{"required", flag(true)}}),
         entry("open files", "b", "Second", {{"required", flag(true)}}),
         entry("save file", "c", "Third:", {{"required", flag(true)}, {"filter", text("*.csv")}})});
    const std::string path = makeFile("a.csv");
    EXPECT_EQ(okAfter([&](QWidget* dialog) {
                  const struct {
                      const char* path;
                      const char* label;
                  } rows[] = {{"a", "First"}, {"b", "Second"}, {"c", "Third"}};
                  for (const auto& row : rows) {
                      user.expectWarning(
                              {"File missing",
                               std::string("Please choose a file for \"") + row.label + "\".",
                               {"OK"}})
                          .under(dialog)
                          .answer("OK");
                      pressInVain(dialog, row.path);
                      field<CFileLineWidget>(dialog, row.path)->setFilename(toText(path));
                  }
              }),
              "{a: \"" + path + "\", b: [\"" + path + "\"], c: \"" + path + "\"}");
}
