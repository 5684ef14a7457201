#include <qt3/DoubleText.h>

#include <qt3/Text.h>

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

using qt3::doubleTextState;
using qt3::fromAscii;

namespace {

const double c_infinity = std::numeric_limits<double>::infinity();
const double c_largest = std::numeric_limits<double>::max();

const int Invalid = QValidator::Invalid;
const int Intermediate = QValidator::Intermediate;
const int Acceptable = QValidator::Acceptable;

struct StVerdict {
    const char* name;
    const char* text;
    int free;     ///< without limits
    int positive; ///< with 0 up to the largest double and ten decimals
};

void PrintTo(const StVerdict& row, std::ostream* stream) {
    *stream << '"' << row.text << '"';
}

class DoubleTextTest : public testing::TestWithParam<StVerdict> {};

int freeState(const char* text) {
    return doubleTextState(fromAscii(text), -c_infinity, c_infinity, 1000);
}

/// Within [-1, 10] and with at most two decimals.
int limitedState(const char* text) {
    return doubleTextState(fromAscii(text), -1.0, 10.0, 2);
}

} // namespace

TEST_P(DoubleTextTest, IsJudgedAsQt3WithoutLimits) {
    EXPECT_EQ(freeState(GetParam().text), GetParam().free);
}

TEST_P(DoubleTextTest, IsJudgedAsQt3ForPositiveNumbers) {
    EXPECT_EQ(doubleTextState(fromAscii(GetParam().text), 0.0, c_largest, 10), GetParam().positive);
}

INSTANTIATE_TEST_SUITE_P(
    Text, DoubleTextTest,
    testing::Values(StVerdict{"Number", "1.5", Acceptable, Acceptable},
                    StVerdict{"Empty", "", Intermediate, Intermediate},
                    StVerdict{"OnlyMinus", "-", Intermediate, Invalid},
                    StVerdict{"MinusAndPoint", "-.", Intermediate, Invalid},
                    StVerdict{"OnlyPlus", "+", Invalid, Invalid},
                    StVerdict{"PlusAndPoint", "+.", Invalid, Invalid},
                    StVerdict{"OnlyBlank", " ", Intermediate, Intermediate},
                    StVerdict{"PointBetweenBlanks", "  .  ", Intermediate, Intermediate},
                    StVerdict{"LeadingBlank", " 1.5", Acceptable, Acceptable},
                    StVerdict{"TrailingBlank", "1.5 ", Invalid, Invalid},
                    StVerdict{"UnfinishedExponent", "1e", Acceptable, Acceptable},
                    StVerdict{"UnfinishedSignedExponent", "1e+", Acceptable, Acceptable},
                    StVerdict{"OnlyExponentSign", "e", Intermediate, Intermediate},
                    StVerdict{"ExponentWithoutNumber", "e5", Intermediate, Intermediate},
                    StVerdict{"TwoExponents", "1e2e3", Invalid, Invalid},
                    StVerdict{"ExponentAfterNoNumber", "xe5", Invalid, Invalid},
                    StVerdict{"Overflow", "1e400", Acceptable, Acceptable},
                    StVerdict{"Underflow", "1e-400", Acceptable, Acceptable},
                    StVerdict{"Infinity", "inf", Acceptable, Intermediate},
                    StVerdict{"NotANumber", "nan", Acceptable, Acceptable},
                    StVerdict{"DecimalComma", "1,5", Invalid, Invalid},
                    StVerdict{"Grouping", "1,234.5", Invalid, Invalid},
                    StVerdict{"Negative", "-1.5", Acceptable, Invalid},
                    StVerdict{"BlankAndNegative", " -1.5", Acceptable, Invalid},
                    StVerdict{"ElevenDecimals", "0.12345678901", Acceptable, Intermediate},
                    StVerdict{"TenDecimals", "0.1234567890", Acceptable, Acceptable},
                    StVerdict{"ElevenDecimalsWithExponent", "0.12345678901e1", Acceptable,
                              Acceptable},
                    StVerdict{"Letters", "auto", Invalid, Invalid},
                    StVerdict{"Unit", "1 mm", Invalid, Invalid}),
    [](const testing::TestParamInfo<StVerdict>& row) { return row.param.name; });

TEST(DoubleTextTest, NumberAtALimitIsInside) {
    EXPECT_EQ(limitedState("10"), Acceptable);
    EXPECT_EQ(limitedState("-1"), Acceptable);
    EXPECT_EQ(limitedState("10.01"), Intermediate);
    EXPECT_EQ(limitedState("-1.01"), Intermediate);
}

TEST(DoubleTextTest, MinusIsForbiddenFromAMinimumOfZeroOn) {
    const QString minus = fromAscii("-0.5");
    EXPECT_EQ(doubleTextState(minus, 0.0, 10.0, 2), Invalid);
    EXPECT_EQ(doubleTextState(minus, 3.0, 10.0, 2), Invalid);
    EXPECT_EQ(doubleTextState(minus, -0.25, 10.0, 2), Intermediate);
    EXPECT_EQ(doubleTextState(fromAscii("\t\n-1"), 0.0, 10.0, 2), Invalid);
}

TEST(DoubleTextTest, NotANumberIsOutsideOfNoLimits) {
    EXPECT_EQ(limitedState("nan"), Acceptable);
    EXPECT_EQ(limitedState("inf"), Intermediate);
}

TEST(DoubleTextTest, DecimalsAreTheDigitsBehindThePoint) {
    EXPECT_EQ(limitedState("1.25"), Acceptable);
    EXPECT_EQ(limitedState("1.250"), Intermediate);
    EXPECT_EQ(limitedState(".25"), Acceptable);
    EXPECT_EQ(limitedState(".250"), Intermediate);
    EXPECT_EQ(limitedState("9"), Acceptable);
    EXPECT_EQ(doubleTextState(fromAscii("1"), 0.0, 10.0, 0), Acceptable);
    EXPECT_EQ(doubleTextState(fromAscii("1."), 0.0, 10.0, 0), Acceptable);
    EXPECT_EQ(doubleTextState(fromAscii("1.0"), 0.0, 10.0, 0), Intermediate);
    EXPECT_EQ(doubleTextState(fromAscii("10000"), 0.0, 1e6, 2), Acceptable);
}

TEST(DoubleTextTest, DecimalsBeforeAnExponentAreNotCounted) {
    for (const char* text : {"1.125e0", "1.125E0", "1.125e", "1.125e-", "1.125E+"})
        EXPECT_EQ(limitedState(text), Acceptable) << text;
}

TEST(DoubleTextTest, NumberBeforeAnUnfinishedExponentCounts) {
    EXPECT_EQ(limitedState("9e"), Acceptable);
    EXPECT_EQ(limitedState("11e"), Intermediate);
    EXPECT_EQ(limitedState("-2E-"), Intermediate);
    EXPECT_EQ(limitedState("9e999"), Acceptable);
    EXPECT_EQ(limitedState("11e999"), Intermediate);
}

TEST(DoubleTextTest, ExponentHasAtMostOneSignAndThenDigitsToTheEnd) {
    for (const char* text : {"1e-", "1e+", "1E-", "1e-999", "1e+999", "1E999"})
        EXPECT_EQ(freeState(text), Acceptable) << text;
    for (const char* text : {"1e--5", "1e++5", "1e+-5", "1e-+5", "1e5x", "1e-5x", "1e-5 ", "1ex",
                             "1e.5", "1e 5", "1e5-", "1e-5+"})
        EXPECT_EQ(freeState(text), Invalid) << text;
}

TEST(DoubleTextTest, ExponentAtTheVeryBeginningWaitsForItsNumber) {
    for (const char* text : {"e", "E", "e5", "e-5", "E+"})
        EXPECT_EQ(freeState(text), Intermediate) << text;
    for (const char* text : {" e5", "-e5", ".e5", "ex", "e5e", "ee", "eE5"})
        EXPECT_EQ(freeState(text), Invalid) << text;
}

TEST(DoubleTextTest, SecondExponentIsInvalidWhereverItStands) {
    for (const char* text : {"1e5e", "1ee5", "1e5E5", "1E1e1", "ee1"})
        EXPECT_EQ(freeState(text), Invalid) << text;
}

TEST(DoubleTextTest, NothingYetIsBlanksAroundOneMinusAndOnePoint) {
    for (const char* text : {"", "   ", "-", "  -", "-  ", ".", " . ", "-.", "  -.  "})
        EXPECT_EQ(freeState(text), Intermediate) << '"' << text << '"';
    for (const char* text : {"- .", ". .", "..", "--", ".-", "-\t.", "\t", " . x"})
        EXPECT_EQ(freeState(text), Invalid) << '"' << text << '"';
}

TEST(DoubleTextTest, CharacterOfCodeZeroEndsNoText) {
    QString text = fromAscii("1");
    text += QChar(0);
    EXPECT_EQ(doubleTextState(text, -c_infinity, c_infinity, 1000), Invalid);
}
