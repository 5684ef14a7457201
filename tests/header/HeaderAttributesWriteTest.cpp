#include "Form.h"
#include "HeaderToolsJournal.h"
#include "ImageHeaders.h"

#include <gtest/gtest.h>

namespace {

using support::Lines;
using TEVU::CImage;

// Writing a spacing.

struct StWriting {
    const char* sRow;
    unsigned int nDimension;
    Metres before;
    Fields fields; ///< Typed after reading.
    Metres after;
    const char* sEntry;
};

void PrintTo(const StWriting& row, std::ostream* out) {
    *out << row.sRow;
}

class WriteSpacing : public testing::TestWithParam<StWriting> {};

TEST_P(WriteSpacing, SetsItAndAddsAHistoryEntry) {
    CImage image = makeImage(GetParam().nDimension, GetParam().before);
    Form form;
    form.ReadAttributesFromImage(image);
    setSpacingFields(form, GetParam().fields);

    EXPECT_TRUE(form.WriteAttributesToImage(image));

    expectSpacing(image, GetParam().after);
    EXPECT_EQ(historyOf(image), GetParam().sEntry);
}

const Metres c_um{1e-6, 1e-6, 1e-6};

INSTANTIATE_TEST_SUITE_P(
    , WriteSpacing,
    testing::Values(StWriting{"XOfThree",
                              3,
                              c_um,
                              {"2", "1", "1"},
                              {2e-6, 1e-6, 1e-6},
                              "ChangeSpacing((1e-06,1e-06,1e-06)->(2e-06,1e-06,1e-06))"},
                    StWriting{"YOfThree",
                              3,
                              c_um,
                              {"1", "2", "1"},
                              {1e-6, 2e-6, 1e-6},
                              "ChangeSpacing((1e-06,1e-06,1e-06)->(1e-06,2e-06,1e-06))"},
                    StWriting{"ZOfThreeWhenTheStoredOneDiffersFromX",
                              3,
                              {1e-6, 1e-6, 2e-6},
                              {"1", "1", "1"},
                              c_um,
                              "ChangeSpacing((1e-06,1e-06,2e-06)->(1e-06,1e-06,1e-06))"},
                    StWriting{"ZOfThreeBesidesX",
                              3,
                              c_um,
                              {"2", "1", "3"},
                              {2e-6, 1e-6, 3e-6},
                              "ChangeSpacing((1e-06,1e-06,1e-06)->(2e-06,1e-06,3e-06))"},
                    StWriting{"UntouchedIfTheStoredZDiffersFromXAsTheZTestComparesWithX",
                              3,
                              {1e-6, 1e-6, 2e-6},
                              {"1", "1", "2"},
                              {1e-6, 1e-6, 2e-6},
                              "ChangeSpacing((1e-06,1e-06,2e-06)->(1e-06,1e-06,2e-06))"},
                    StWriting{"XOfTwo",
                              2,
                              {1e-6, 1e-6, 5.0},
                              {"0.5", "1", ""},
                              {5e-7, 1e-6, 1.0},
                              "ChangeSpacing((1e-06,1e-06)->(5e-07,1e-06))"},
                    StWriting{"YOfTwo",
                              2,
                              {1e-6, 1e-6, 5.0},
                              {"1", "250", ""},
                              {1e-6, 2.5e-4, 1.0},
                              "ChangeSpacing((1e-06,1e-06)->(1e-06,0.00025))"},
                    StWriting{"TheZFieldDoesNotCountForTwo",
                              2,
                              {1e-6, 1e-6, 5.0},
                              {"2", "1", "7"},
                              {2e-6, 1e-6, 1.0},
                              "ChangeSpacing((1e-06,1e-06)->(2e-06,1e-06))"},
                    StWriting{"XOfOne",
                              1,
                              {2, 2, 2},
                              {"0.5", "2", "2"},
                              {0.5, 2.0, 1.0},
                              "ChangeSpacing((2)->(0.5))"},
                    StWriting{"UntouchedOneDimensionalSpacingBecomesTheZeroThatIsShown",
                              1,
                              {2e-6, 2e-6, 2e-6},
                              {"0", "0", ""},
                              {0.0, 0.0, 1.0},
                              "ChangeSpacing((2e-06)->(0))"},
                    StWriting{"SixDigitsInTheEntryAndAllInTheSpacing",
                              2,
                              {1.5, 1.5, 1},
                              {"1.23456789", "1000000.5", ""},
                              {1.23456789, 1000000.5, 1.0},
                              "ChangeSpacing((1.5,1.5)->(1.23457,1e+06))"},
                    StWriting{"MoreThanTenDigitsAreLostWithoutAnEdit",
                              2,
                              {12345.678912345, 1, 1},
                              {"12345.67891", "1", ""},
                              {12345.67891, 1.0, 1.0},
                              "ChangeSpacing((12345.7,1)->(12345.7,1))"},
                    StWriting{"NegativeIsWrittenAsTyped",
                              2,
                              c_um,
                              {"-1", "1", ""},
                              {-1e-6, 1e-6, 1.0},
                              "ChangeSpacing((1e-06,1e-06)->(-1e-06,1e-06))"},
                    StWriting{"NoNumberInXIsTheStoredXTimesTheFactorAgain",
                              3,
                              {2e-6, 2e-6, 2e-6},
                              {"abc", "2", "2"},
                              {2e-12, 2e-6, 2e-6},
                              "ChangeSpacing((2e-06,2e-06,2e-06)->(2e-12,2e-06,2e-06))"},
                    StWriting{"NoNumberInYIsTheStoredYTimesTheFactorAgain",
                              3,
                              {2e-6, 3e-6, 2e-6},
                              {"2", "", "2"},
                              {2e-6, 3e-12, 2e-6},
                              "ChangeSpacing((2e-06,3e-06,2e-06)->(2e-06,3e-12,2e-06))"},
                    StWriting{"NoNumberInZIsTheStoredZTimesTheFactorAgain",
                              3,
                              {2e-6, 2e-6, 3e-6},
                              {"2", "2", "1e"},
                              {2e-6, 2e-6, 3e-12},
                              "ChangeSpacing((2e-06,2e-06,3e-06)->(2e-06,2e-06,3e-12))"},
                    StWriting{"ATrailingBlankIsNoNumber",
                              3,
                              {2e-6, 2e-6, 2e-6},
                              {"5 ", "2", "2"},
                              {2e-12, 2e-6, 2e-6},
                              "ChangeSpacing((2e-06,2e-06,2e-06)->(2e-12,2e-06,2e-06))"}),
    [](const testing::TestParamInfo<StWriting>& row) { return row.param.sRow; });

struct StUnchanged {
    const char* sRow;
    unsigned int nDimension;
    Metres spacing;
    Fields fields; ///< Typed after reading.
};

void PrintTo(const StUnchanged& row, std::ostream* out) {
    *out << row.sRow;
}

class UnchangedSpacing : public testing::TestWithParam<StUnchanged> {};

TEST_P(UnchangedSpacing, IsNeitherWrittenNorRecorded) {
    CImage image = makeImage(GetParam().nDimension, GetParam().spacing);
    Form form;
    form.ReadAttributesFromImage(image);
    setSpacingFields(form, GetParam().fields);
    HeaderToolsJournal journal;

    EXPECT_TRUE(form.WriteAttributesToImage(image));

    EXPECT_EQ(journal.take(), (Lines{"GetSpacing", "SetCreator()", "SetCreator()",
                                     "ReplaceHistory()", "SetDescription()"}));
    expectSpacing(image, GetParam().spacing);
}

INSTANTIATE_TEST_SUITE_P(
    , UnchangedSpacing,
    testing::Values(
        StUnchanged{"OfThree", 3, c_um, {"1", "1", "1"}},
        StUnchanged{"OfTwo", 2, {1e-6, 2e-6, 5.0}, {"1", "2", ""}},
        StUnchanged{"WrittenDifferently", 3, c_um, {"1.0", " 1", "1e0"}},
        StUnchanged{"InNanometres", 3, {3.3e-9, 3.3e-9, 3.3e-9}, {"3.3", "3.3", "3.3"}},
        StUnchanged{"WithoutAnExactNumber", 3, {7e-4, 7e-4, 7e-4}, {"700", "700", "700"}},
        StUnchanged{"ZAloneAsTheZTestComparesWithX", 3, c_um, {"1", "1", "9"}},
        StUnchanged{"ZThatIsNoNumberAsTheZTestComparesWithX", 3, c_um, {"1", "1", "abc"}},
        StUnchanged{"ZOfTwo", 2, {1e-6, 1e-6, 5.0}, {"1", "1", "9"}},
        StUnchanged{"OneDimensionalZero", 1, {0, 0, 0}, {"0", "0", ""}}),
    [](const testing::TestParamInfo<StUnchanged>& row) { return row.param.sRow; });

TEST(WriteAttributes, TakeLessThanTheEpsilonForNoChange) {
    CImage image = makeImage(3);
    Form form;
    form.SetSpacings(1e-15, 1e-15, 1e-15);
    setSpacingFields(form, {"1.2e-15", "0.8e-15", "1e-15"});

    form.WriteAttributesToImage(image);

    EXPECT_FALSE(hasSpacing(image));
}

TEST(WriteAttributes, TakeMoreThanTheEpsilonForAChange) {
    for (const Fields& fields : {Fields{"1.3e-15", "1e-15", ""}, Fields{"1e-15", "0.7e-15", ""}}) {
        CImage image = makeImage(2);
        Form form;
        form.zSpacingLine->setEnabled(false);
        form.SetSpacings(1e-15, 1e-15, 1e-15);
        setSpacingFields(form, fields);

        form.WriteAttributesToImage(image);

        EXPECT_TRUE(hasSpacing(image)) << fields[0] << ' ' << fields[1];
    }
}

TEST(WriteAttributes, CompareTheStoredZWithXAsLongAsTheZFieldIsEnabled) {
    for (const bool bEnabled : {true, false}) {
        CImage image = makeImage(2);
        Form form;
        form.SetSpacings(2.0, 2.0, 5.0);
        form.zSpacingLine->setEnabled(bEnabled);

        form.WriteAttributesToImage(image);

        EXPECT_EQ(hasSpacing(image), bEnabled);
    }
}

TEST(WriteAttributes, TakeTheZOfAVolumeAlsoFromADisabledField) {
    Form form;
    form.zSpacingLine->setEnabled(false);
    form.SetSpacings(2.0, 2.0, 2.0);
    setSpacingFields(form, {"3", "2", "7"});
    CImage image = makeImage(3);

    form.WriteAttributesToImage(image);

    expectSpacing(image, {3.0, 2.0, 7.0});
}

TEST(WriteAttributes, CompareWithWhatWasReadNotWithTheImage) {
    Form form;
    form.ReadAttributesFromImage(makeImage(2, {1e-6, 1e-6, 1.0}));
    CImage other = makeImage(2, {5.0, 6.0, 7.0});

    EXPECT_TRUE(form.WriteAttributesToImage(other));

    expectSpacing(other, {5.0, 6.0, 7.0});
    EXPECT_EQ(historyOf(other), "");
}

TEST(WriteAttributes, RecordTheOldSpacingOfTheImageNotTheOneRead) {
    Form form;
    form.ReadAttributesFromImage(makeImage(2, {1e-6, 1e-6, 1.0}));
    setSpacingFields(form, {"2", "1", ""});
    CImage other = makeImage(2, {5.0, 6.0, 7.0});

    form.WriteAttributesToImage(other);

    EXPECT_EQ(historyOf(other), "ChangeSpacing((5,6)->(2e-06,1e-06))");
}

TEST(WriteAttributes, RecordOneMetreForAnImageWithoutSpacing) {
    Form form;
    form.SetUnit("m");
    setSpacingFields(form, {"2", "3", "4"});
    CImage image = makeImage(3);

    form.WriteAttributesToImage(image);

    EXPECT_EQ(historyOf(image), "ChangeSpacing((1,1,1)->(2,3,4))");
}

TEST(WriteAttributes, RecordOneMetreWhateverAFailingGetterLeavesBehind) {
    HeaderToolsJournal journal;
    Form form;
    form.SetUnit("m");
    setSpacingFields(form, {"2", "3", "4"});
    CImage image = makeImage(3);
    journal.failGetSpacing(7.0);

    form.WriteAttributesToImage(image);

    EXPECT_EQ(historyOf(image), "ChangeSpacing((1,1,1)->(2,3,4))");
}

TEST(WriteAttributes, OfAFreshFormWriteOneOfItsUnit) {
    Form form;
    CImage image = makeImage(3);

    EXPECT_TRUE(form.WriteAttributesToImage(image));

    expectSpacing(image, {1e-6, 1e-6, 1e-6});
    EXPECT_EQ(historyOf(image), "ChangeSpacing((1,1,1)->(1e-06,1e-06,1e-06))");
}

TEST(WriteAttributes, CompareWithMinusOneMetreWhenNoSpacingIsKnown) {
    Form fresh;
    Form forgetful;
    forgetful.ReadAttributesFromImage(makeImage(3, {5, 6, 7}));
    forgetful.ReadAttributesFromImage(makeImage(3));

    for (Form* form : {&fresh, &forgetful}) {
        CImage image = makeImage(3);
        form->SetUnit("m");
        setSpacingFields(*form, {"-1", "-1", "-1"});

        form->WriteAttributesToImage(image);

        EXPECT_FALSE(hasSpacing(image));
    }
}

TEST(WriteAttributes, FallBackOnSpacingsThatWereSet) {
    Form form;
    form.SetSpacings(2.0, 3.0, 4.0);
    setSpacingFields(form, {"abc", "abc", "abc"});
    form.SetUnit("mm");
    CImage image = makeImage(3);

    form.WriteAttributesToImage(image);

    expectSpacing(image, {0.002, 0.003, 0.004});
}

TEST(WriteAttributes, TakeTheFieldsInTheUnitShownNotTheOneConvertedTo) {
    Form form;
    setSpacingFields(form, {"2", "3", "4"});
    form.comboUnit->setCurrentItem(3);
    CImage image = makeImage(3);

    form.WriteAttributesToImage(image);

    expectSpacing(image, {2e-9, 3e-9, 4e-9});
}

TEST(WriteAttributes, TakeAnUnknownUnitForMetres) {
    Form form;
    form.SetUnit("cm");
    setSpacingFields(form, {"2", "3", "4"});
    CImage image = makeImage(3);

    form.WriteAttributesToImage(image);

    expectSpacing(image, {2.0, 3.0, 4.0});
}

TEST(WriteAttributes, TakeAUnitChangeForNoChangeOfTheSpacing) {
    CImage image = makeImage(2, {1.5e-6, 2.5e-6, 1.0});
    Form form;
    support::show(&form);
    form.ReadAttributesFromImage(image);

    support::giveFocus(form.comboUnit);
    for (const int nKey : {Qt::Key_End, Qt::Key_Up, Qt::Key_Up, Qt::Key_Home}) {
        support::keyClick(form.comboUnit, nKey);
        EXPECT_TRUE(form.WriteAttributesToImage(image));
        EXPECT_EQ(historyOf(image), "") << shownUnit(form);
    }
    EXPECT_EQ(spacingFields(form), (Fields{"1.5e-06", "2.5e-06", ""}));
}

TEST(WriteAttributes, DoNotTakeTheWrittenSpacingForTheStoredOne) {
    CImage image = makeImage(2, {1e-6, 1e-6, 1.0});
    Form form;
    form.ReadAttributesFromImage(image);
    setSpacingFields(form, {"2", "1", ""});
    form.WriteAttributesToImage(image);

    EXPECT_TRUE(form.WriteAttributesToImage(image));

    // The first entry is gone: the history box, without it, replaces the history.
    EXPECT_EQ(historyOf(image), "ChangeSpacing((2e-06,1e-06)->(2e-06,1e-06))");
}

TEST(WriteAttributes, KnowTheWrittenSpacingAfterTheNextReading) {
    CImage image = makeImage(2, {1e-6, 1e-6, 1.0});
    Form form;
    form.ReadAttributesFromImage(image);
    setSpacingFields(form, {"2", "1", ""});
    form.WriteAttributesToImage(image);
    form.ReadAttributesFromImage(image);

    EXPECT_TRUE(form.WriteAttributesToImage(image));

    EXPECT_EQ(historyOf(image), "ChangeSpacing((1e-06,1e-06)->(2e-06,1e-06))");
}

TEST(WriteAttributes, AppendTheEntryToTheHistoryOfTheForm) {
    CImage image = makeImage(2, {1e-6, 1e-6, 1.0});
    setHistory(image, "Open(a.tif)\nCrop(1,2)");
    Form form;
    form.ReadAttributesFromImage(image);
    setSpacingFields(form, {"2", "1", ""});

    form.WriteAttributesToImage(image);

    EXPECT_EQ(historyOf(image),
              "Open(a.tif)\nCrop(1,2)\nChangeSpacing((1e-06,1e-06)->(2e-06,1e-06))");
}

TEST(WriteAttributes, CallTheHeaderToolsInOrder) {
    HeaderToolsJournal journal;
    CImage image = makeImage(3, c_um);
    Form form;
    form.ReadAttributesFromImage(image);
    setSpacingFields(form, {"2", "3", "4"});
    setShownTexts(form, {"Ada", "a test", "Open"});
    journal.take();

    form.WriteAttributesToImage(image);

    EXPECT_EQ(journal.take(),
              (Lines{"GetSpacing", "SetCreator(Ada)", "SetCreator(Ada)", "ReplaceHistory(Open)",
                     "SetDescription(a test)", "SetSpacing(2e-06,3e-06,4e-06)",
                     "AddToHistory(ChangeSpacing((1e-06,1e-06,1e-06)->(2e-06,3e-06,4e-06)))"}));
}

// Writing the texts.

TEST(WriteAttributes, WriteTheTextsAlsoWithoutAChangeOfTheSpacing) {
    CImage image = makeImage(2, {1e-6, 1e-6, 1.0});
    setCreator(image, "Bob");
    setDescription(image, "before");
    setHistory(image, "New");
    Form form;
    form.ReadAttributesFromImage(image);
    setShownTexts(form, {"Ada", "a test\nof two lines", "Open(a.tif)"});

    EXPECT_TRUE(form.WriteAttributesToImage(image));

    EXPECT_EQ(textsOf(image), (Lines{"Ada", "a test\nof two lines", "Open(a.tif)"}));
}

TEST(WriteAttributes, WriteEmptyTextsToo) {
    CImage image = makeImage(2, {1e-6, 1e-6, 1.0});
    setCreator(image, "Bob");
    setDescription(image, "before");
    setHistory(image, "New");
    Form form;
    form.ReadAttributesFromImage(image);
    setShownTexts(form, {"", "", ""});

    form.WriteAttributesToImage(image);

    EXPECT_EQ(textsOf(image), (Lines{"", "", ""}));
}

TEST(WriteAttributes, GiveBackEveryLatin1Text) {
    std::string letters;
    for (int nCode = 0xA0; nCode <= 0xFF; ++nCode)
        letters += static_cast<char>(nCode);
    CImage image = makeImage(2);
    setCreator(image, letters);
    setDescription(image, letters + "\n" + letters);
    setHistory(image, "<b>" + letters + "</b>\n");
    const Lines before = textsOf(image);
    Form form;
    form.ReadAttributesFromImage(image);
    form.SetSpacings(1.0, 1.0, 1.0);

    form.WriteAttributesToImage(image);

    EXPECT_EQ(textsOf(image), before);
}

TEST(WriteAttributes, WriteAQuestionMarkForWhatIsNotLatin1) {
    Form form;
    const QString outside = QString(QChar(0x20AC)) + "1";
    form.creatorLine->setText(outside);
    form.descriptionText->setText(outside);
    form.historyText->setText(outside);
    form.SetSpacings(1.0, 1.0, 1.0);
    CImage image = makeImage(2);

    form.WriteAttributesToImage(image);

    EXPECT_EQ(textsOf(image), (Lines{"?1", "?1", "?1"}));
}

} // namespace
