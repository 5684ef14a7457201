#include "RangeRules.h"
#include "Saturate.h"

#include <gtest/gtest.h>
#include <limits>
#include <ostream>
#include <random>
#include <sstream>
#include <string>

namespace TEVU {

void PrintTo(const StInterval& interval, std::ostream* out) {
    *out << '[' << interval.nLower << ", " << interval.nUpper << ']';
}

bool operator==(const StInterval& a, const StInterval& b) {
    return a.nLower == b.nLower && a.nUpper == b.nUpper;
}

} // namespace TEVU

using TEVU::countOf;
using TEVU::pixelOf;
using TEVU::StAxis;
using TEVU::StInterval;
using TEVU::StWidthLimits;
using TEVU::valueAt;
using TEVU::widened;
using TEVU::withLowerRepaired;
using TEVU::withUpperRepaired;
using TEVU::withWidthRepaired;

namespace {

const int c_least = std::numeric_limits<int>::min();
const int c_most = std::numeric_limits<int>::max();
const StAxis c_axis = {132, 16}; // 100 pixels between the handles

/// Counts where a rule and the formula that is written here differ, and keeps the first such place.
class CComparison {
public:
    void check(int actual, int expected, int input, const StInterval& bound, const StAxis& axis) {
        ++m_nChecks;
        if (actual == expected || ++m_nFailures > 1)
            return;
        std::ostringstream text;
        text << actual << " instead of " << expected << " for " << input << " in [" << bound.nLower
             << ", " << bound.nUpper << "] on " << axis.nLength << " pixels with handles of "
             << axis.nHandle;
        m_sFirst = text.str();
    }

    void expectAgreement(long long leastChecks) const {
        EXPECT_GE(m_nChecks, leastChecks);
        EXPECT_EQ(m_nFailures, 0) << "first: " << m_sFirst;
    }

private:
    long long m_nChecks = 0;
    long long m_nFailures = 0;
    std::string m_sFirst;
};

int paintedAt(int value, const StInterval& bound, const StAxis& axis) {
    const int room = axis.nLength - 2 * axis.nHandle;
    return (value - bound.nLower) * room / (bound.nUpper - bound.nLower) + axis.nHandle;
}

int pointedAt(int pixel, const StInterval& bound, const StAxis& axis) {
    // Each step is stored, so that none of them is done with more digits than a float has.
    const float room = static_cast<float>(axis.nLength - 2 * axis.nHandle);
    const float values = static_cast<float>(bound.nUpper - bound.nLower);
    const float scale = room / values;
    const float along = static_cast<float>(pixel - axis.nHandle + 1);
    const float steps = along / scale;
    const float value = steps + static_cast<float>(bound.nLower);
    return static_cast<int>(value);
}

/// Calls \a check for bounds of all widths up to 300 at one place, and all lengths up to 400.
template <class Check>
void forAllBoundsAndLengths(int minimum, Check check) {
    for (int width = 1; width <= 300; ++width) {
        for (int length = 0; length <= 400; ++length)
            check(StInterval{minimum, minimum + width}, length);
    }
}

} // namespace

TEST(RangeRulesTest, PixelsAreThoseOfWholeNumberArithmeticForAllValuesBoundsAndLengths) {
    CComparison comparison;
    forAllBoundsAndLengths(-37, [&](const StInterval& bound, int length) {
        const StAxis axis = {length, 16};
        for (int value = bound.nLower; value <= bound.nUpper; ++value)
            comparison.check(pixelOf(value, bound, axis), paintedAt(value, bound, axis), value,
                             bound, axis);
    });
    comparison.expectAgreement(18000000);
}

TEST(RangeRulesTest, PixelsOfValuesOutsideOfTheBoundGoOnBeyondTheEndsInTheSameSteps) {
    CComparison comparison;
    forAllBoundsAndLengths(1000, [&](const StInterval& bound, int length) {
        const StAxis axis = {length, 14};
        for (int beyond = 1; beyond <= 50; beyond += 7) {
            for (const int value : {bound.nLower - beyond, bound.nUpper + beyond})
                comparison.check(pixelOf(value, bound, axis), paintedAt(value, bound, axis), value,
                                 bound, axis);
        }
    });
    comparison.expectAgreement(1900000);
}

TEST(RangeRulesTest, PixelsInAReversedBoundFollowTheSameFormula) {
    CComparison comparison;
    for (int width = 1; width <= 300; ++width) {
        const StInterval bound = {50, 50 - width};
        for (int value = -100; value <= 100; ++value)
            comparison.check(pixelOf(value, bound, c_axis), paintedAt(value, bound, c_axis), value,
                             bound, c_axis);
    }
    comparison.expectAgreement(60000);
}

TEST(RangeRulesTest, PixelsAreTruncatedTowardZeroBeforeTheHandleIsAdded) {
    EXPECT_EQ(pixelOf(2, {0, 3}, c_axis), 66 + 16);
    EXPECT_EQ(pixelOf(-1, {0, 3}, c_axis), -33 + 16);
    EXPECT_EQ(pixelOf(1, {0, 3}, {22, 16}), -3 + 16); // no room: -10 / 3
}

TEST(RangeRulesTest, EndsOfTheBoundLieBehindTheFirstHandleAndBeforeTheSecond) {
    EXPECT_EQ(pixelOf(20, {20, 80}, c_axis), 16);
    EXPECT_EQ(pixelOf(80, {20, 80}, c_axis), 116);
}

TEST(RangeRulesTest, BoundOfASingleValuePutsEverythingAtTheBeginning) {
    for (const int value : {c_least, -1, 5, 6, c_most})
        EXPECT_EQ(pixelOf(value, {5, 5}, c_axis), 16) << value;
}

TEST(RangeRulesTest, PixelsOfExtremeBoundsDoNotOverflow) {
    const StInterval all = {c_least, c_most};
    EXPECT_EQ(pixelOf(c_least, all, c_axis), 16);
    EXPECT_EQ(pixelOf(0, all, c_axis), 16 + 50);
    EXPECT_EQ(pixelOf(c_most, all, c_axis), 116);
    EXPECT_EQ(pixelOf(c_least, {0, 1}, c_axis), c_least);
    EXPECT_EQ(pixelOf(c_most, {0, 1}, c_axis), c_most);
    EXPECT_EQ(pixelOf(0, {c_most, c_least}, c_axis),
              16 + 49); // reversed: 100 * (2^31-1) / (2^32-1)
}

TEST(RangeRulesTest, PixelsStayExactWhereTheProductLeaves32Bits) {
    std::mt19937 random(31);
    int checks = 0;
    for (const StInterval& bound : {StInterval{0, c_most - 1}, StInterval{c_least, c_most},
                                    StInterval{-5, c_most - 5}, StInterval{c_least, 0}}) {
        const long long span = static_cast<long long>(bound.nUpper) - bound.nLower;
        std::uniform_int_distribution<int> any(bound.nLower, bound.nUpper);
        for (int length = 33; length <= 400; ++length) {
            const long long room = length - 32;
            for (int i = 0; i < 100; ++i) {
                const int value = i == 0 ? bound.nLower : i == 1 ? bound.nUpper : any(random);
                const long long product =
                    (static_cast<long long>(value) - bound.nLower) * room; // 41 bits at most
                const long long pixel = pixelOf(value, bound, {length, 16}) - 16;
                ASSERT_LE(pixel * span, product) << value << " on " << length;
                ASSERT_GT((pixel + 1) * span, product) << value << " on " << length;
                ++checks;
            }
        }
    }
    EXPECT_EQ(checks, 4 * 368 * 100);
}

TEST(RangeRulesTest, ValuesOfTheGreatestBoundAreThoseOfSinglePrecision) {
    const StInterval bound = {0, c_most - 1};
    CComparison comparison;
    for (int length = 33; length <= 400; ++length) {
        const StAxis axis = {length, 16};
        for (int pixel = 15; pixel < length - 17; ++pixel) // further ones lead beyond int: below
            comparison.check(valueAt(pixel, bound, axis), pointedAt(pixel, bound, axis), pixel,
                             bound, axis);
    }
    comparison.expectAgreement(60000);
}

TEST(RangeRulesTest, ValuesAreThoseOfSinglePrecisionForAllPixelsBoundsAndLengths) {
    CComparison comparison;
    forAllBoundsAndLengths(-37, [&](const StInterval& bound, int length) {
        const StAxis axis = {length, 16};
        if (length == 32)
            return; // no room between the handles: below
        for (int pixel = -20; pixel <= length + 20; ++pixel)
            comparison.check(valueAt(pixel, bound, axis), pointedAt(pixel, bound, axis), pixel,
                             bound, axis);
    });
    comparison.expectAgreement(28000000);
}

TEST(RangeRulesTest, ValuesInAReversedBoundFollowTheSameFormula) {
    CComparison comparison;
    for (int width = 1; width <= 300; ++width) {
        const StInterval bound = {50, 50 - width};
        for (int pixel = -50; pixel <= 200; ++pixel)
            comparison.check(valueAt(pixel, bound, c_axis), pointedAt(pixel, bound, c_axis), pixel,
                             bound, c_axis);
    }
    comparison.expectAgreement(75000);
}

TEST(RangeRulesTest, ValueIsTakenOnePixelFurtherThanThePixelThatIsPainted) {
    EXPECT_EQ(valueAt(16, {0, 100}, c_axis), 1);
    EXPECT_EQ(valueAt(15, {0, 100}, c_axis), 0);
    EXPECT_EQ(valueAt(115, {0, 100}, c_axis), 100);
    EXPECT_EQ(valueAt(116, {0, 100}, c_axis), 101);
}

TEST(RangeRulesTest, ValuesAreTruncatedTowardZeroBehindTheMinimumNotBefore) {
    EXPECT_EQ(valueAt(14, {0, 10}, c_axis), 0);   // -0.1
    EXPECT_EQ(valueAt(20, {-10, 0}, c_axis), -9); // -9.5
    EXPECT_EQ(valueAt(20, {10, 20}, c_axis), 10); // 10.5
}

TEST(RangeRulesTest, ValuesBeyondTheDigitsOfSinglePrecisionAreRoundedAsItsNumbersAre) {
    // 2^24 + 1 has no float of its own.
    EXPECT_EQ(valueAt(15, {16777217, 16777317}, c_axis), 16777216);
    EXPECT_EQ(valueAt(18, {16777217, 16777317}, c_axis),
              pointedAt(18, {16777217, 16777317}, c_axis));
}

TEST(RangeRulesTest, BoundOfASingleValueIsTheValueUnderEveryPixel) {
    for (const int pixel : {c_least, -1, 15, 16, 131, c_most}) {
        EXPECT_EQ(valueAt(pixel, {5, 5}, c_axis), 5) << pixel;
        EXPECT_EQ(valueAt(pixel, {5, 5}, {32, 16}), 5) << pixel;
        EXPECT_EQ(valueAt(pixel, {-7, -7}, {10, 16}), -7) << pixel;
        EXPECT_EQ(valueAt(pixel, {16777217, 16777217}, c_axis), 16777217) << pixel; // no float
    }
}

TEST(RangeRulesTest, WithoutRoomTheValueIsAnEndOfIntOrTheMinimum) {
    const StAxis noRoom = {32, 16};
    EXPECT_EQ(valueAt(14, {3, 9}, noRoom), c_least);
    EXPECT_EQ(valueAt(15, {3, 9}, noRoom), 3);
    EXPECT_EQ(valueAt(16, {3, 9}, noRoom), c_most);
}

TEST(RangeRulesTest, ValuesBeyondIntAreItsEnds) {
    const StInterval all = {c_least, c_most};
    EXPECT_EQ(valueAt(400, all, c_axis), c_most);
    EXPECT_EQ(valueAt(-400, all, c_axis), c_least);
    EXPECT_EQ(valueAt(115, all, c_axis), c_most);
    EXPECT_EQ(valueAt(15, all, c_axis), c_least);
    EXPECT_EQ(valueAt(c_most, {0, c_most}, c_axis), c_most);
    EXPECT_EQ(valueAt(c_least, {0, c_most}, c_axis), c_least);
}

TEST(RangeRulesTest, SingleValueGrowsDownwardOnlyAtTheTopOfTheBound) {
    const StInterval bound = {0, 10};
    EXPECT_EQ(widened({10, 10}, bound), (StInterval{9, 10}));
    EXPECT_EQ(widened({9, 9}, bound), (StInterval{9, 10}));
    EXPECT_EQ(widened({0, 0}, bound), (StInterval{0, 1}));
    EXPECT_EQ(widened({11, 11}, bound), (StInterval{11, 12}));
    EXPECT_EQ(widened({-3, -3}, bound), (StInterval{-3, -2}));
}

TEST(RangeRulesTest, SingleValueGrowsUpwardInABoundOfThatValueAlone) {
    EXPECT_EQ(widened({5, 5}, {5, 5}), (StInterval{5, 6}));
}

TEST(RangeRulesTest, EverySingleValueGrowsByOneAsTheBoundSays) {
    for (int minimum = -20; minimum <= 20; ++minimum) {
        for (int maximum = -20; maximum <= 20; ++maximum) {
            for (int value = -25; value <= 25; ++value) {
                const bool down = value != minimum && value == maximum;
                const StInterval expected =
                    down ? StInterval{value - 1, value} : StInterval{value, value + 1};
                ASSERT_EQ(widened({value, value}, {minimum, maximum}), expected)
                    << value << " in " << minimum << ", " << maximum;
            }
        }
    }
}

TEST(RangeRulesTest, ExtremeSingleValuesGrowInsideOfInt) {
    EXPECT_EQ(widened({c_most, c_most}, {0, c_most}), (StInterval{c_most - 1, c_most}));
    EXPECT_EQ(widened({c_most, c_most}, {0, 10}), (StInterval{c_most, c_most}));
    EXPECT_EQ(widened({c_least, c_least}, {c_least, 10}), (StInterval{c_least, c_least + 1}));
    EXPECT_EQ(widened({c_least, c_least}, {0, c_least}), (StInterval{c_least, c_least}));
}

namespace {

/// Calls \a check for all small ranges, reversed ones too, and all small limits.
template <class Check>
void forAllRangesAndLimits(Check check) {
    for (int lower = -6; lower <= 6; ++lower) {
        for (int upper = -6; upper <= 6; ++upper) {
            for (int least = 0; least <= 4; ++least) {
                for (int greatest = -5; greatest <= 14; ++greatest)
                    check(StInterval{lower, upper}, StWidthLimits{least, greatest});
            }
        }
    }
}

} // namespace

TEST(RangeRulesTest, KeepingTheUpperEndMovesTheLowerWhenTooWideThenTheUpperWhenTooNarrow) {
    forAllRangesAndLimits([](StInterval range, const StWidthLimits& limits) {
        const StInterval given = range;
        int& lower = range.nLower;
        int& upper = range.nUpper;
        if (upper - lower + 1 > limits.nMaximum)
            lower = upper - limits.nMaximum + 1;
        if (upper - lower + 1 < limits.nMinimum)
            upper = lower + limits.nMinimum - 1;
        ASSERT_EQ(withWidthRepaired(given, limits, true), range);
    });
}

TEST(RangeRulesTest, KeepingTheLowerEndMovesTheUpperWhenTooWideThenTheLowerWhenTooNarrow) {
    forAllRangesAndLimits([](StInterval range, const StWidthLimits& limits) {
        const StInterval given = range;
        int& lower = range.nLower;
        int& upper = range.nUpper;
        if (upper - lower + 1 > limits.nMaximum)
            upper = lower + limits.nMaximum - 1;
        if (upper - lower + 1 < limits.nMinimum)
            lower = upper - limits.nMinimum + 1;
        ASSERT_EQ(withWidthRepaired(given, limits, false), range);
    });
}

TEST(RangeRulesTest, RepairOfTheLowerEndMovesNothingElse) {
    forAllRangesAndLimits([](StInterval range, const StWidthLimits& limits) {
        const StInterval given = range;
        int& lower = range.nLower;
        const int upper = range.nUpper;
        if (upper - lower + 1 > limits.nMaximum)
            lower = upper - limits.nMaximum + 1;
        if (upper - lower + 1 < limits.nMinimum)
            lower = upper - limits.nMinimum + 1;
        ASSERT_EQ(withLowerRepaired(given, limits), range);
    });
}

TEST(RangeRulesTest, RepairOfTheUpperEndMovesNothingElse) {
    forAllRangesAndLimits([](StInterval range, const StWidthLimits& limits) {
        const StInterval given = range;
        const int lower = range.nLower;
        int& upper = range.nUpper;
        if (upper - lower + 1 > limits.nMaximum)
            upper = lower + limits.nMaximum - 1;
        if (upper - lower + 1 < limits.nMinimum)
            upper = lower + limits.nMinimum - 1;
        ASSERT_EQ(withUpperRepaired(given, limits), range);
    });
}

TEST(RangeRulesTest, RangeReversedByMoreThanOneIsTooNarrow) {
    EXPECT_EQ(withWidthRepaired({50, 20}, {0, 101}, true), (StInterval{50, 49}));
    EXPECT_EQ(withWidthRepaired({50, 49}, {0, 101}, true), (StInterval{50, 49}));
    EXPECT_EQ(withLowerRepaired({50, 20}, {0, 101}), (StInterval{21, 20}));
    EXPECT_EQ(withUpperRepaired({50, 20}, {0, 101}), (StInterval{50, 49}));
}

TEST(RangeRulesTest, NegativeLimitShrinksARangeToNoValue) {
    EXPECT_EQ(withLowerRepaired({10, 10}, {0, -4}), (StInterval{11, 10}));
    EXPECT_EQ(withUpperRepaired({10, 10}, {0, -4}), (StInterval{10, 9}));
}

TEST(RangeRulesTest, RepairOfExtremeRangesStaysInsideOfInt) {
    const StInterval all = {c_least, c_most};
    EXPECT_EQ(withWidthRepaired(all, {0, 101}, true), (StInterval{c_most - 100, c_most}));
    EXPECT_EQ(withWidthRepaired(all, {0, 101}, false), (StInterval{c_least, c_least + 100}));
    EXPECT_EQ(withLowerRepaired(all, {0, 101}), (StInterval{c_most - 100, c_most}));
    EXPECT_EQ(withUpperRepaired(all, {0, 101}), (StInterval{c_least, c_least + 100}));
    EXPECT_EQ(withWidthRepaired({c_most, c_least}, {0, 101}, true),
              (StInterval{c_most, c_most - 1}));
    EXPECT_EQ(withLowerRepaired({c_most, c_least}, {0, 101}), (StInterval{c_least + 1, c_least}));
}

TEST(RangeRulesTest, CountIncludesBothEnds) {
    EXPECT_EQ(countOf({3, 7}), 5);
    EXPECT_EQ(countOf({3, 3}), 1);
    EXPECT_EQ(countOf({3, 2}), 0);
    EXPECT_EQ(countOf({10, 5}), -4);
    EXPECT_EQ(countOf({0, c_most}), c_most);
    EXPECT_EQ(countOf({c_least, c_most}), c_most);
    EXPECT_EQ(countOf({c_most, c_least}), c_least);
}

TEST(SaturateTest, NumbersInsideOfIntStayAndOthersBecomeItsEnds) {
    EXPECT_EQ(TEVU::saturated(0), 0);
    EXPECT_EQ(TEVU::saturated(-5), -5);
    EXPECT_EQ(TEVU::saturated(c_most), c_most);
    EXPECT_EQ(TEVU::saturated(c_least), c_least);
    EXPECT_EQ(TEVU::saturated(c_most + 1LL), c_most);
    EXPECT_EQ(TEVU::saturated(c_least - 1LL), c_least);
    EXPECT_EQ(TEVU::saturated(std::numeric_limits<long long>::max()), c_most);
    EXPECT_EQ(TEVU::saturated(std::numeric_limits<long long>::min()), c_least);
}
