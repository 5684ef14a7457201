#include "numeric/DoubleSpinBoxText.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <qt3/Text.h>

using namespace TEVU;

namespace {

const double c_dEpsilon = std::numeric_limits<double>::epsilon();

StAffixes affixes(const char* prefix, const char* suffix) {
    return {QString(prefix), QString(suffix)};
}

struct StNumberRow {
    const char* sName;
    double dValue;
    const char* sText;
};

void PrintTo(const StNumberRow& row, std::ostream* out) {
    *out << row.sName;
}

class NumberText : public testing::TestWithParam<StNumberRow> {};

TEST_P(NumberText, HasSixSignificantDigits) {
    EXPECT_EQ(qt3::ascii(numberText(GetParam().dValue)), GetParam().sText);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NumberText,
    testing::Values(StNumberRow{"Zero", 0.0, "0"}, StNumberRow{"NegativeZero", -0.0, "0"},
                    StNumberRow{"Half", 0.5, "0.5"}, StNumberRow{"Whole", 3.0, "3"},
                    StNumberRow{"SumThatIsNotExact", 0.1 + 0.2, "0.3"},
                    StNumberRow{"SixDigits", 123456.0, "123456"},
                    StNumberRow{"SevenDigits", 1234567.0, "1.23457e+06"},
                    StNumberRow{"TieGoesToTheEvenDigit", 100000.5, "100000"},
                    StNumberRow{"Small", 0.0001, "0.0001"},
                    StNumberRow{"VerySmall", 0.00001, "1e-05"},
                    StNumberRow{"Negative", -2.25, "-2.25"},
                    StNumberRow{"Infinite", std::numeric_limits<double>::infinity(), "inf"},
                    StNumberRow{"NotANumber", std::nan(""), "nan"}),
    [](const auto& row) { return std::string(row.param.sName); });

TEST(Affixes, AreEmptyWhenBothAre) {
    EXPECT_TRUE(affixes("", "").isEmpty());
    EXPECT_FALSE(affixes("x", "").isEmpty());
    EXPECT_FALSE(affixes("", "mm").isEmpty());
    EXPECT_FALSE(affixes("x", "mm").isEmpty());
}

struct StCleanRow {
    const char* sName;
    const char* sText;
    const char* sPrefix;
    const char* sSuffix;
    const char* sClean;
};

void PrintTo(const StCleanRow& row, std::ostream* out) {
    *out << row.sName;
}

class NumberWithoutAffixes : public testing::TestWithParam<StCleanRow> {};

TEST_P(NumberWithoutAffixes, IsWhatIsLeft) {
    const StCleanRow& row = GetParam();
    EXPECT_EQ(qt3::ascii(numberWithoutAffixes(row.sText, affixes(row.sPrefix, row.sSuffix))),
              row.sClean);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NumberWithoutAffixes,
    testing::Values(StCleanRow{"NoAffixes", " 2.5\t", "", "", "2.5"},
                    StCleanRow{"Both", "x 2.5 mm", "x ", " mm", "2.5"},
                    StCleanRow{"BothWithBlanksAround", "  x 2.5 mm  ", "x ", " mm", "2.5"},
                    StCleanRow{"BlanksOfTheAffixesMissing", "x2.5mm", "x ", " mm", "2.5"},
                    StCleanRow{"PrefixMissing", "2.5 mm", "x ", " mm", "2.5"},
                    StCleanRow{"SuffixMissing", "x 2.5", "x ", " mm", "2.5"},
                    StCleanRow{"BothMissing", "2.5", "x ", " mm", "2.5"},
                    StCleanRow{"OnlyTheFirstPrefixGoes", "xx2", "x", "", "x2"},
                    StCleanRow{"AffixesOfBlanks", " 2.5 ", "  ", "  ", "2.5"},
                    StCleanRow{"NothingBetween", "x mm", "x ", " mm", ""},
                    StCleanRow{"Empty", "", "x ", " mm", ""}),
    [](const auto& row) { return std::string(row.param.sName); });

TEST(NumberOrZero, TellsWhatIsANumber) {
    bool ok = false;
    EXPECT_EQ(numberOrZero("2.5", &ok), 2.5);
    EXPECT_TRUE(ok);
    EXPECT_EQ(numberOrZero("two", &ok), 0.0);
    EXPECT_FALSE(ok);
}

TEST(NumberOrZero, BlankBehindTheNumberMakesItZero) {
    bool ok = true;
    EXPECT_EQ(numberOrZero("2.5 ", &ok), 0.0);
    EXPECT_FALSE(ok);
}

TEST(SpecialText, IsRecognisedWithBlanksAround) {
    EXPECT_TRUE(isSpecialText("auto", "auto"));
    EXPECT_TRUE(isSpecialText("  auto ", "auto"));
    EXPECT_TRUE(isSpecialText("auto", " auto "));
    EXPECT_FALSE(isSpecialText("Auto", "auto"));
    EXPECT_FALSE(isSpecialText("aut", "auto"));
}

TEST(SpecialText, EmptyOneIsNone) {
    EXPECT_FALSE(isSpecialText("", ""));
    EXPECT_FALSE(isSpecialText(" ", QString()));
}

TEST(SpecialText, StateGrowsWithTheText) {
    EXPECT_EQ(specialTextState("a", "auto"), QValidator::Intermediate);
    EXPECT_EQ(specialTextState(" aut", "auto "), QValidator::Intermediate);
    EXPECT_EQ(specialTextState(" auto ", "auto"), QValidator::Acceptable);
    EXPECT_EQ(specialTextState("automatic", "auto"), QValidator::Invalid);
    EXPECT_EQ(specialTextState("b", "auto"), QValidator::Invalid);
    EXPECT_EQ(specialTextState("b", ""), QValidator::Invalid);
}

struct StPartRow {
    const char* sName;
    const char* sText;
    const char* sPrefix;
    const char* sSuffix;
    int nStart;
    int nLength;
};

void PrintTo(const StPartRow& row, std::ostream* out) {
    *out << row.sName;
}

class NumberPart : public testing::TestWithParam<StPartRow> {};

TEST_P(NumberPart, StandsBetweenTheAffixes) {
    const StPartRow& row = GetParam();
    const StTextPart part = numberPart(row.sText, affixes(row.sPrefix, row.sSuffix));
    EXPECT_EQ(part.isPresent(), row.nStart >= 0);
    EXPECT_EQ(part.nStart, row.nStart);
    EXPECT_EQ(part.nLength, row.nLength);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NumberPart,
    testing::Values(StPartRow{"Both", "x 2.5 mm", "x ", " mm", 2, 3},
                    StPartRow{"NothingBetween", "x  mm", "x ", " mm", 2, 0},
                    StPartRow{"PrefixOnly", "x 2.5", "x ", "", 2, 3},
                    StPartRow{"SuffixOnly", "2.5 mm", "", " mm", 0, 3},
                    StPartRow{"SuffixWithoutItsBlank", "2.5mm", "", " mm", 0, 3},
                    StPartRow{"SuffixOfBlanksMissing", "2.5", "", "  ", 0, 3},
                    StPartRow{"PrefixWithoutItsBlankIsNone", "x2.5 mm", "x ", " mm", -1, 0},
                    StPartRow{"PrefixMissing", "2.5 mm", "x ", " mm", -1, 0},
                    StPartRow{"SuffixMissing", "x 2.5", "x ", " mm", -1, 0},
                    StPartRow{"ShorterThanBoth", "mm", "", " mm", -1, 0}),
    [](const auto& row) { return std::string(row.param.sName); });

TEST(RoundingDust, UpToTheEpsilonIsZero) {
    EXPECT_EQ(withoutRoundingDust(1e-17), 0.0);
    EXPECT_EQ(withoutRoundingDust(c_dEpsilon), 0.0);
    EXPECT_EQ(withoutRoundingDust(-c_dEpsilon), 0.0);
    EXPECT_FALSE(std::signbit(withoutRoundingDust(-0.0)));
}

TEST(RoundingDust, EverythingElseStays) {
    const double justAbove = std::nextafter(c_dEpsilon, 1.0);
    EXPECT_EQ(withoutRoundingDust(justAbove), justAbove);
    EXPECT_EQ(withoutRoundingDust(-0.1), -0.1);
    EXPECT_TRUE(std::isnan(withoutRoundingDust(std::nan(""))));
}

} // namespace
