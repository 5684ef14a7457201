#include "Form.h"
#include "HeaderToolsJournal.h"
#include "ImageHeaders.h"

#include <gtest/gtest.h>

namespace {

using support::Lines;
using TEVU::CImage;

// Reading the spacing.

struct StReading {
    const char* sRow;
    unsigned int nDimension;
    Metres spacing;
    const char* sUnit;
    Fields fields; ///< What the form shows when all fields held "old" before.
};

void PrintTo(const StReading& row, std::ostream* out) {
    *out << row.sRow;
}

class ReadSpacing : public testing::TestWithParam<StReading> {};

TEST_P(ReadSpacing, IsShownInItsNaturalUnit) {
    const CImage image = makeImage(GetParam().nDimension, GetParam().spacing);
    Form form;
    setSpacingFields(form, {"old", "old", "old"});

    form.ReadAttributesFromImage(image);

    EXPECT_EQ(shownUnit(form), GetParam().sUnit);
    EXPECT_EQ(spacingFields(form), GetParam().fields);
}

INSTANTIATE_TEST_SUITE_P(
    , ReadSpacing,
    testing::Values(
        StReading{"XIsTheLargestOfThree", 3, {0.002, 1e-6, 1e-5}, "mm", {"2", "0.001", "0.01"}},
        StReading{"YIsTheLargestOfThree", 3, {1e-6, 0.002, 1e-5}, "mm", {"0.001", "2", "0.01"}},
        StReading{"ZIsTheLargestOfThree", 3, {1e-6, 1e-5, 0.002}, "mm", {"0.001", "0.01", "2"}},
        StReading{"Nanometres", 3, {5e-9, 2.5e-9, 1e-9}, "nm", {"5", "2.5", "1"}},
        StReading{"Metres", 3, {1.5, 2, 3}, "m", {"1.5", "2", "3"}},
        StReading{"XIsTheLargerOfTwo", 2, {2e-6, 1e-9, 1.0}, "um", {"2", "0.001", "old"}},
        StReading{"YIsTheLargerOfTwo", 2, {1e-9, 2e-6, 1.0}, "um", {"0.001", "2", "old"}},
        StReading{"ZDoesNotCountForTwo", 2, {1e-9, 2e-9, 0.002}, "nm", {"1", "2", "old"}},
        StReading{"OneMillimetreIsInMillimetres", 2, {0.001, 1e-6, 1}, "mm", {"1", "0.001", "old"}},
        StReading{"OneCentimetreIsInMetres", 2, {0.01, 0.001, 1}, "m", {"0.01", "0.001", "old"}},
        StReading{"FiveCentimetresAreInMetres", 2, {0.05, 0.05, 1}, "m", {"0.05", "0.05", "old"}},
        StReading{"ZeroIsInMetres", 2, {0, 0, 1}, "m", {"0", "0", "old"}},
        StReading{"200000MetresAreInMetres", 2, {2e5, 1, 1}, "m", {"200000", "1", "old"}},
        StReading{"TenDigits", 3, {1.23456789012e-6, 1e-6, 1e-6}, "um", {"1.23456789", "1", "1"}},
        StReading{"OneDimensionalSpacingIsShownAsZeroMetres",
                  1,
                  {2e-6, 3e-6, 4e-6},
                  "m",
                  {"0", "0", "old"}}),
    [](const testing::TestParamInfo<StReading>& row) { return row.param.sRow; });

class ReadOfAnyDimension : public testing::TestWithParam<unsigned int> {};

TEST_P(ReadOfAnyDimension, WithoutSpacingLeavesTheFieldsAndShowsMetres) {
    Form form;
    setSpacingFields(form, {"1", "2", "3"});

    form.ReadAttributesFromImage(makeImage(GetParam()));

    EXPECT_EQ(shownUnit(form), "m");
    EXPECT_EQ(spacingFields(form), (Fields{"1", "2", "3"}));
    EXPECT_EQ(factorToMetres(form), "1");
}

TEST_P(ReadOfAnyDimension, DisablesTheZFieldOnlyForTwo) {
    for (const bool bHasSpacing : {false, true}) {
        Form form;

        form.ReadAttributesFromImage(bHasSpacing ? makeImage(GetParam(), {1, 1, 1})
                                                 : makeImage(GetParam()));

        EXPECT_EQ(form.zSpacingLine->isEnabled(), GetParam() != 2);
        EXPECT_TRUE(form.xSpacingLine->isEnabled());
        EXPECT_TRUE(form.ySpacingLine->isEnabled());
    }
}

INSTANTIATE_TEST_SUITE_P(, ReadOfAnyDimension, testing::Values(1u, 2u, 3u));

TEST(ReadAttributes, NeverEnableTheZFieldAgain) {
    Form form;
    form.ReadAttributesFromImage(makeImage(2, {1e-6, 1e-6, 1e-6}));

    form.ReadAttributesFromImage(makeImage(3, {2e-6, 3e-6, 4e-6}));

    EXPECT_FALSE(form.zSpacingLine->isEnabled());
    EXPECT_EQ(spacingFields(form), (Fields{"2", "3", ""}));
}

TEST(ReadAttributes, TakeTheFieldsToBeInTheUnitShown) {
    Form form;

    form.ReadAttributesFromImage(makeImage(3, {1e-9, 1e-9, 1e-9}));

    EXPECT_EQ(factorToMetres(form), "1e-09");
}

TEST(ReadAttributes, ForgetASpacingThatTheNextImageDoesNotHave) {
    Form form;
    form.ReadAttributesFromImage(makeImage(2, {5, 6, 7}));
    form.ReadAttributesFromImage(makeImage(2));
    setSpacingFields(form, {"abc", "abc", ""});
    CImage image = makeImage(2);

    form.WriteAttributesToImage(image);

    expectSpacing(image, {1.0, 1.0, 1.0});
}

// Reading the texts.

TEST(ReadAttributes, ShowTheTexts) {
    CImage image = makeImage(2);
    setCreator(image, "Ada");
    setDescription(image, "a test\nof two lines");
    setHistory(image, "Open(a.tif)\nCrop(1,2)\n");
    Form form;

    form.ReadAttributesFromImage(image);

    EXPECT_EQ(shownTexts(form), (Lines{"Ada", "a test\nof two lines", "Open(a.tif)\nCrop(1,2)\n"}));
}

TEST(ReadAttributes, LeaveTheTextsThatTheImageDoesNotHave) {
    Form form;
    setShownTexts(form, {"Ada", "a test", "Open"});

    form.ReadAttributesFromImage(makeImage(2));

    EXPECT_EQ(shownTexts(form), (Lines{"Ada", "a test", "Open"}));
}

TEST(ReadAttributes, ShowEachTextByItself) {
    CImage withCreator = makeImage(2);
    setCreator(withCreator, "Ada");
    CImage withDescription = makeImage(2);
    setDescription(withDescription, "a test");
    CImage withHistory = makeImage(2);
    setHistory(withHistory, "Open");
    Form form;

    form.ReadAttributesFromImage(withCreator);
    EXPECT_EQ(shownTexts(form), (Lines{"Ada", "", ""}));
    form.ReadAttributesFromImage(withDescription);
    EXPECT_EQ(shownTexts(form), (Lines{"Ada", "a test", ""}));
    form.ReadAttributesFromImage(withHistory);
    EXPECT_EQ(shownTexts(form), (Lines{"Ada", "a test", "Open"}));
}

TEST(ReadAttributes, ShowAnEmptyText) {
    CImage image = makeImage(2);
    setCreator(image, "");
    setDescription(image, "");
    setHistory(image, "");
    Form form;
    setShownTexts(form, {"Ada", "a test", "Open"});

    form.ReadAttributesFromImage(image);

    EXPECT_EQ(shownTexts(form), (Lines{"", "", ""}));
}

TEST(ReadAttributes, KeepWhatLooksLikeMarkup) {
    CImage image = makeImage(2);
    const Lines markup{"<b>Ada</b>", "<b>bold</b> &amp; <br>", "<qt>Open</qt>"};
    setCreator(image, markup[0]);
    setDescription(image, markup[1]);
    setHistory(image, markup[2]);
    Form form;

    form.ReadAttributesFromImage(image);

    EXPECT_EQ(shownTexts(form), markup);
}

TEST(ReadAttributes, FillTheFieldsInOrderAndEachOnce) {
    CImage image = makeImage(3, {1e-6, 2e-6, 3e-6});
    setCreator(image, "Ada");
    setDescription(image, "a test");
    setHistory(image, "Open");
    Form form;
    support::Recorder recorder;
    tapFields(recorder, form);

    form.ReadAttributesFromImage(image);

    EXPECT_EQ(recorder.take(), (Lines{"x.textChanged(\"1\")", "y.textChanged(\"2\")",
                                      "z.textChanged(\"3\")", "creator.textChanged(\"Ada\")",
                                      "history.textChanged()", "description.textChanged()"}));
}

TEST(ReadAttributes, LeaveTheImageAlone) {
    HeaderToolsJournal journal;
    const CImage image = makeImage(3);
    Form form;
    journal.take();

    form.ReadAttributesFromImage(image);

    EXPECT_EQ(journal.take(), (Lines{"GetSpacing", "GetCreator", "GetHistory", "GetDescription"}));
}

} // namespace
