#include "Form.h"
#include "ImageHeaders.h"
#include "Recorder.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using support::Lines;

TEST(HeaderSetUnit, ShowsTheUnitAndConvertsNothing) {
    Form form;
    setSpacingFields(form, {"1.5", "2.5", "3.5"});

    form.SetUnit("nm");

    EXPECT_EQ(shownUnit(form), "nm");
    EXPECT_EQ(form.comboUnit->currentItem(), 3);
    EXPECT_EQ(spacingFields(form), (Fields{"1.5", "2.5", "3.5"}));
}

TEST(HeaderSetUnit, TakesTheFieldsToBeInThatUnit) {
    Form form;

    form.SetUnit("mm");

    EXPECT_EQ(factorToMetres(form), "0.001");
}

TEST(HeaderSetUnit, RenamesTheCurrentItemForAnUnknownUnit) {
    Form form;

    form.SetUnit("cm");

    EXPECT_EQ(units(form), (Lines{"m", "mm", "cm", "nm"}));
    EXPECT_EQ(form.comboUnit->currentItem(), 2);
    EXPECT_EQ(shownUnit(form), "cm");
}

TEST(HeaderSetUnit, ConvertsFromAnUnknownUnitWithFactorOne) {
    Form form;
    form.SetUnit("cm");
    setSpacingFields(form, {"1.5", "2.5", "3.5"});

    form.onComboUnitTextChanged("nm");

    EXPECT_EQ(spacingFields(form), (Fields{"1.5", "2.5", "3.5"}));
}

TEST(HeaderSetUnit, KnowsTheUnitAgainAfterTheNextConversion) {
    Form form;
    form.SetUnit("cm");

    form.onComboUnitTextChanged("nm");

    EXPECT_EQ(factorToMetres(form), "1e-09");
}

TEST(HeaderSetText, WritesEachIntoItsOwnField) {
    Form form;

    form.SetTextX(1.0);
    form.SetTextY(2.0);
    form.SetTextZ(3.0);

    EXPECT_EQ(spacingFields(form), (Fields{"1", "2", "3"}));
}

TEST(HeaderSetText, LeavesADisabledZFieldUnchanged) {
    Form form;
    setSpacingFields(form, {"", "", "7"});
    form.zSpacingLine->setEnabled(false);

    form.SetTextZ(3.0);

    EXPECT_EQ(spacingFields(form)[2], "7");
}

struct StNumber {
    const char* sRow;
    double dValue;
    const char* sText;
};

void PrintTo(const StNumber& row, std::ostream* out) {
    *out << row.sRow;
}

class HeaderNumbers : public testing::TestWithParam<StNumber> {};

TEST_P(HeaderNumbers, AreWrittenWithTenSignificantDigits) {
    Form form;

    form.SetTextX(GetParam().dValue);
    form.SetTextY(GetParam().dValue);
    form.SetTextZ(GetParam().dValue);

    const std::string sExpected = GetParam().sText;
    EXPECT_EQ(spacingFields(form), (Fields{sExpected, sExpected, sExpected}));
}

INSTANTIATE_TEST_SUITE_P(
    , HeaderNumbers,
    testing::Values(StNumber{"Integer", 3.0, "3"}, StNumber{"Fraction", 0.25, "0.25"},
                    StNumber{"SumOfTenthsIsRounded", 0.1 + 0.2, "0.3"},
                    StNumber{"TenDigits", 1.23456789012, "1.23456789"},
                    StNumber{"TieGoesDownToTheEvenDigit", 1234567890.5, "1234567890"},
                    StNumber{"TieGoesUpToTheEvenDigit", 1234567891.5, "1234567892"},
                    StNumber{"TieInAFraction", 12345678.125, "12345678.12"},
                    StNumber{"TieInAFractionUpwards", 12345678.375, "12345678.38"},
                    StNumber{"TenDigitsBeforeThePointAreFixed", 9999999999.0, "9999999999"},
                    StNumber{"ElevenDigitsAreScientific", 12345678912.0, "1.234567891e+10"},
                    StNumber{"TenThousandthIsFixed", 1e-4, "0.0001"},
                    StNumber{"HundredThousandthIsScientific", 1e-5, "1e-05"},
                    StNumber{"Zero", 0.0, "0"}, StNumber{"NegativeZero", -0.0, "0"},
                    StNumber{"Negative", -1.0, "-1"},
                    StNumber{"LargestDouble", std::numeric_limits<double>::max(),
                             "1.797693135e+308"}),
    [](const testing::TestParamInfo<StNumber>& row) { return row.param.sRow; });

TEST(HeaderSetSpacings, ShowsMetres) {
    Form form;

    form.SetSpacings(0.5, 0.25, 2e-6);

    EXPECT_EQ(shownUnit(form), "m");
    EXPECT_EQ(spacingFields(form), (Fields{"0.5", "0.25", "2e-06"}));
    EXPECT_EQ(factorToMetres(form), "1");
}

TEST(HeaderSetSpacings, KeepsSixDigitsAndRewritesThemWithTen) {
    Form form;

    form.SetSpacings(1234567.0, 0.123456789, 100000.5);

    EXPECT_EQ(spacingFields(form), (Fields{"1234570", "0.123457", "100000"}));
}

TEST(HeaderSetSpacings, WritesADisabledZFieldButDoesNotRewriteIt) {
    Form form;
    form.zSpacingLine->setEnabled(false);

    form.SetSpacings(1234567.0, 1234567.0, 1234567.0);

    EXPECT_EQ(spacingFields(form), (Fields{"1234570", "1234570", "1.23457e+06"}));
}

/// Tells its unit changes instead of carrying them out.
class UnitRecordingForm : public Form {
public:
    void onComboUnitTextChanged(const QString& unit) override {
        m_recorder.add(qt3::ascii(unit) + ": " + spacingFields(*this)[0]);
    }

    support::Recorder m_recorder;
};

TEST(HeaderSetSpacings, EndsWithTheUnitChangeOfASubclass) {
    UnitRecordingForm form;

    form.SetSpacings(1234567.0, 1.0, 1.0);

    EXPECT_EQ(form.m_recorder.take(), Lines{"m: 1.23457e+06"});
}

TEST(HeaderSetSpacings, WriteTheFieldsInOrderAndThenRewriteThemInOrder) {
    Form form;
    support::Recorder recorder;
    tapFields(recorder, form);

    form.SetSpacings(1234567.0, 2345678.0, 3456789.0);

    EXPECT_EQ(recorder.take(),
              (Lines{"x.textChanged(\"1.23457e+06\")", "y.textChanged(\"2.34568e+06\")",
                     "z.textChanged(\"3.45679e+06\")", "x.textChanged(\"1234570\")",
                     "y.textChanged(\"2345680\")", "z.textChanged(\"3456790\")"}));
}

/// Writes what it knows into an image instead of changing the unit.
class WritingForm : public Form {
public:
    void onComboUnitTextChanged(const QString&) override {
        setSpacingFields(*this, {"", "", ""});
        WriteAttributesToImage(m_image);
    }

    TEVU::CImage m_image = makeImage(3);
};

TEST(HeaderSetSpacings, KeepThemBeforeTheUnitChangeOfASubclass) {
    WritingForm form;

    form.SetSpacings(2.0, 3.0, 4.0);

    expectSpacing(form.m_image, {2.0, 3.0, 4.0});
}

// Unit changes.

struct StConversion {
    const char* sRow;
    const char* sFrom;
    const char* sTo;
    Fields before;
    Fields after;
};

void PrintTo(const StConversion& row, std::ostream* out) {
    *out << row.sRow;
}

class UnitChange : public testing::TestWithParam<StConversion> {};

TEST_P(UnitChange, ConvertsWhatIsANumber) {
    Form form;
    form.SetUnit(GetParam().sFrom);
    setSpacingFields(form, GetParam().before);

    form.onComboUnitTextChanged(GetParam().sTo);

    EXPECT_EQ(spacingFields(form), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    , UnitChange,
    testing::Values(
        StConversion{
            "MillimetresToMicrometres", "mm", "um", {"1.5", "2", "0.25"}, {"1500", "2000", "250"}},
        StConversion{
            "MillimetresToMetres", "mm", "m", {"1.5", "2", "0.25"}, {"0.0015", "0.002", "0.00025"}},
        StConversion{"MillimetresToNanometres",
                     "mm",
                     "nm",
                     {"1.5", "2", "3"},
                     {"1500000", "2000000", "3000000"}},
        StConversion{"NanometresToMillimetres",
                     "nm",
                     "mm",
                     {"1500000", "2000000", "3000000"},
                     {"1.5", "2", "3"}},
        StConversion{"MetresToNanometres",
                     "m",
                     "nm",
                     {"1e-6", "2", "3.5"},
                     {"1000", "2000000000", "3500000000"}},
        StConversion{"SameUnitRewritesWithTenDigits",
                     "um",
                     "um",
                     {"1.50", "01", "1.23456789012"},
                     {"1.5", "1", "1.23456789"}},
        StConversion{"EmptyFieldsStayEmpty", "mm", "um", {"", "1", ""}, {"", "1000", ""}},
        StConversion{
            "WhatIsNoNumberStays", "mm", "um", {"abc", "1.5mm", "1"}, {"abc", "1.5mm", "1000"}},
        StConversion{"IncompleteNumbersStay", "mm", "um", {"1e", "-", "."}, {"1e", "-", "."}},
        StConversion{
            "TrailingBlankIsNoNumber", "mm", "um", {"1.5 ", " 1.5", "2"}, {"1.5 ", "1500", "2000"}},
        StConversion{
            "DecimalCommaIsNoNumber", "mm", "um", {"1,5", "1", "1"}, {"1,5", "1000", "1000"}},
        StConversion{"OutOfRangeIsNoNumber",
                     "mm",
                     "um",
                     {"1e400", "1e-400", "1"},
                     {"1e400", "1e-400", "1000"}},
        StConversion{"NegativeIsANumber", "mm", "um", {"-1.5", "0", "1"}, {"-1500", "0", "1000"}}),
    [](const testing::TestParamInfo<StConversion>& row) { return row.param.sRow; });

TEST(HeaderUnitChange, ThereAndBackGivesTheSameFields) {
    Form form;
    form.SetUnit("mm");
    setSpacingFields(form, {"1.5", "2.25", "3"});

    form.onComboUnitTextChanged("nm");
    form.onComboUnitTextChanged("mm");

    EXPECT_EQ(spacingFields(form), (Fields{"1.5", "2.25", "3"}));
}

TEST(HeaderUnitChange, ConvertsTheFieldsInOrderAndEachOnce) {
    Form form;
    setSpacingFields(form, {"1", "2", "3"});
    support::Recorder recorder;
    tapFields(recorder, form);

    form.onComboUnitTextChanged("nm");

    EXPECT_EQ(recorder.take(), (Lines{"x.textChanged(\"1000\")", "y.textChanged(\"2000\")",
                                      "z.textChanged(\"3000\")"}));
}

TEST(HeaderUnitChange, LeavesADisabledZFieldUnconverted) {
    Form form;
    setSpacingFields(form, {"1", "2", "3"});
    form.zSpacingLine->setEnabled(false);

    form.onComboUnitTextChanged("nm");

    EXPECT_EQ(spacingFields(form), (Fields{"1000", "2000", "3"}));
}

TEST(HeaderUnitChange, FromCodeDoesNotChooseTheUnit) {
    Form form;

    form.onComboUnitTextChanged("nm");

    EXPECT_EQ(shownUnit(form), "um");
}

TEST(HeaderUnitChange, ChangesTheUnitEvenIfNoFieldIsANumber) {
    Form form;
    setSpacingFields(form, {"abc", "", ""});

    form.onComboUnitTextChanged("nm");

    EXPECT_EQ(factorToMetres(form), "1e-09");
}

TEST(HeaderUnitChange, ThrowsForAnUnknownUnit) {
    Form form;

    for (const char* sUnit : {"cm", "", "MM", "mm "}) {
        EXPECT_EQ(thrownText([&] { form.onComboUnitTextChanged(sUnit); }), "Invalid unit selected.")
            << '"' << sUnit << '"';
    }
}

TEST(HeaderUnitChange, LeavesAllAsItWasForAnUnknownUnit) {
    Form form;
    setSpacingFields(form, {"1", "2", "3"});

    thrownText([&] { form.onComboUnitTextChanged("cm"); });

    EXPECT_EQ(spacingFields(form), (Fields{"1", "2", "3"}));
    EXPECT_EQ(factorToMetres(form), "1e-06");
}

struct StChoiceByKey {
    const char* sRow;
    int nKey;
    const char* sUnit;
    Fields after;
};

void PrintTo(const StChoiceByKey& row, std::ostream* out) {
    *out << row.sRow;
}

class UserChoosesUnit : public testing::TestWithParam<StChoiceByKey> {};

TEST_P(UserChoosesUnit, AndTheFieldsAreConvertedOnce) {
    Form form;
    support::show(&form);
    setSpacingFields(form, {"1", "2.5", "abc"});

    support::giveFocus(form.comboUnit);
    support::keyClick(form.comboUnit, GetParam().nKey);

    EXPECT_EQ(shownUnit(form), GetParam().sUnit);
    EXPECT_EQ(spacingFields(form), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    , UserChoosesUnit,
    testing::Values(StChoiceByKey{"NextByDown", Qt::Key_Down, "nm", {"1000", "2500", "abc"}},
                    StChoiceByKey{"PreviousByUp", Qt::Key_Up, "mm", {"0.001", "0.0025", "abc"}},
                    StChoiceByKey{"FirstByHome", Qt::Key_Home, "m", {"1e-06", "2.5e-06", "abc"}},
                    StChoiceByKey{"LastByEnd", Qt::Key_End, "nm", {"1000", "2500", "abc"}}),
    [](const testing::TestParamInfo<StChoiceByKey>& row) { return row.param.sRow; });

TEST(HeaderUnitChange, OfTheUserReachesASubclass) {
    UnitRecordingForm form;
    setSpacingFields(form, {"1", "2", "3"});
    support::show(&form);

    support::giveFocus(form.comboUnit);
    support::keyClick(form.comboUnit, Qt::Key_Down);
    support::keyClick(form.comboUnit, Qt::Key_Home);

    EXPECT_EQ(form.m_recorder.take(), (Lines{"nm: 1", "m: 1"}));
}

TEST(HeaderUnitChange, DoesNotComeFromChoosingInCode) {
    UnitRecordingForm form;

    form.comboUnit->setCurrentItem(0);
    form.SetUnit("nm");

    EXPECT_EQ(form.m_recorder.take(), Lines{});
}

} // namespace
