#include "header/Spacing.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace TEVU;

const double c_dEpsilon = 2.220446049250313e-16;

TEST(Differ, EqualDistancesDoNot) {
    EXPECT_FALSE(differ(1e-6, 1e-6));
}

TEST(Differ, MoreThanTheEpsilonDoesInBothDirections) {
    EXPECT_TRUE(differ(0.0, 1.01 * c_dEpsilon));
    EXPECT_TRUE(differ(1.01 * c_dEpsilon, 0.0));
    EXPECT_TRUE(differ(0.0, -1.01 * c_dEpsilon));
}

TEST(Differ, ExactlyTheEpsilonDoesNot) {
    EXPECT_FALSE(differ(0.0, c_dEpsilon));
    EXPECT_FALSE(differ(c_dEpsilon, 0.0));
}

TEST(Differ, TheEpsilonIsAbsoluteSoTinyDistancesNeverDo) {
    EXPECT_FALSE(differ(1e-17, 2e-16));
}

TEST(SpacingText, HasAsManyPartsAsTheImageHasDimensions) {
    const StSpacing spacing{1e-6, 2e-6, 3e-6};

    EXPECT_EQ(spacingText(spacing, 1), "(1e-06)");
    EXPECT_EQ(spacingText(spacing, 2), "(1e-06,2e-06)");
    EXPECT_EQ(spacingText(spacing, 3), "(1e-06,2e-06,3e-06)");
}

struct StNumber {
    const char* sRow;
    double dValue;
    const char* sText;
};

void PrintTo(const StNumber& row, std::ostream* out) {
    *out << row.sRow;
}

class SpacingNumbers : public testing::TestWithParam<StNumber> {};

TEST_P(SpacingNumbers, AreWrittenAsAStreamDoesByDefault) {
    EXPECT_EQ(spacingText({GetParam().dValue, 0, 0}, 1), std::string("(") + GetParam().sText + ")");
}

INSTANTIATE_TEST_SUITE_P(
    , SpacingNumbers,
    testing::Values(StNumber{"One", 1.0, "1"}, StNumber{"Fraction", 0.25, "0.25"},
                    StNumber{"SixDigits", 0.1234567, "0.123457"},
                    StNumber{"ExactTieGoesToTheEvenDigit", 100000.5, "100000"},
                    StNumber{"OneMillionIsScientific", 1e6, "1e+06"},
                    StNumber{"BelowOneMillionIsFixed", 999999.0, "999999"},
                    StNumber{"TenThousandthIsFixed", 1e-4, "0.0001"},
                    StNumber{"HundredThousandthIsScientific", 1e-5, "1e-05"},
                    StNumber{"Nanometres", 2.5e-9, "2.5e-09"}, StNumber{"Zero", 0.0, "0"},
                    StNumber{"Negative", -1.0, "-1"}),
    [](const testing::TestParamInfo<StNumber>& row) { return row.param.sRow; });

TEST(SpacingChangeEntry, NamesTheOldAndTheNewSpacing) {
    EXPECT_EQ(spacingChangeEntry({1e-6, 1e-6, 2e-6}, {1e-6, 1e-6, 1e-6}, 3),
              "ChangeSpacing((1e-06,1e-06,2e-06)->(1e-06,1e-06,1e-06))");
    EXPECT_EQ(spacingChangeEntry({1, 1, 1}, {0.5, 0.25, 1}, 2), "ChangeSpacing((1,1)->(0.5,0.25))");
    EXPECT_EQ(spacingChangeEntry({1, 1, 1}, {0.5, 0.25, 1}, 1), "ChangeSpacing((1)->(0.5))");
}

} // namespace
