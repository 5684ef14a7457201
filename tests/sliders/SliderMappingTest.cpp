#include "SliderMapping.h"

#include <gtest/gtest.h>
#include <limits>

using TEVU::mirroredIf;
using TEVU::StOffsetMapping;

namespace {

const int c_least = std::numeric_limits<int>::min();
const int c_most = std::numeric_limits<int>::max();

} // namespace

TEST(SliderMappingTest, OffsetIsTheDistanceFromTheMinimum) {
    const StOffsetMapping mapping = {20, 100, false};
    EXPECT_EQ(mapping.ToOffset(20), 0);
    EXPECT_EQ(mapping.ToOffset(35), 15);
    EXPECT_EQ(mapping.ToOffset(100), 80);
    EXPECT_EQ(mapping.ToValue(15), 35);
}

TEST(SliderMappingTest, MirroredOffsetIsTheDistanceFromTheMaximum) {
    const StOffsetMapping mapping = {20, 100, true};
    EXPECT_EQ(mapping.ToOffset(20), 80);
    EXPECT_EQ(mapping.ToOffset(35), 65);
    EXPECT_EQ(mapping.ToOffset(100), 0);
    EXPECT_EQ(mapping.ToValue(65), 35);
}

TEST(SliderMappingTest, ValuesOutsideOfTheBoundAreMappedOnInTheSameSteps) {
    EXPECT_EQ((StOffsetMapping{0, 10, false}.ToOffset(-3)), -3);
    EXPECT_EQ((StOffsetMapping{0, 10, false}.ToValue(13)), 13);
    EXPECT_EQ((StOffsetMapping{0, 10, true}.ToOffset(13)), -3);
    EXPECT_EQ((StOffsetMapping{0, 10, true}.ToValue(13)), -3);
}

TEST(SliderMappingTest, ValueSurvivesTheWayToTheSliderAndBackInEveryBound) {
    for (const bool mirrored : {false, true}) {
        for (int min = -30; min <= 30; ++min) {
            for (int max = -30; max <= 30; ++max) {
                const StOffsetMapping mapping = {min, max, mirrored};
                for (int value = -40; value <= 40; ++value) {
                    ASSERT_EQ(mapping.ToOffset(value), mirrored ? max - value : value - min);
                    ASSERT_EQ(mapping.ToValue(value), mirrored ? max - value : value + min);
                    ASSERT_EQ(mapping.ToValue(mapping.ToOffset(value)), value);
                }
            }
        }
    }
}

TEST(SliderMappingTest, ExtremesGiveTheEndsOfInt) {
    const StOffsetMapping plain = {c_least, c_most, false};
    EXPECT_EQ(plain.ToOffset(c_least), 0);
    EXPECT_EQ(plain.ToOffset(c_most), c_most);
    EXPECT_EQ(plain.ToValue(c_most), -1);
    EXPECT_EQ(plain.ToValue(-1), c_least);

    const StOffsetMapping mirrored = {c_least, c_most, true};
    EXPECT_EQ(mirrored.ToOffset(c_most), 0);
    EXPECT_EQ(mirrored.ToOffset(c_least), c_most);
    EXPECT_EQ(mirrored.ToValue(c_least), c_most);
}

TEST(SliderMappingTest, MirroringTurnsTheRangeRound) {
    EXPECT_EQ(mirroredIf(true, 30, 0, 100), 70);
    EXPECT_EQ(mirroredIf(true, 0, 0, 100), 100);
    EXPECT_EQ(mirroredIf(true, -5, -20, 10), -5);
    EXPECT_EQ(mirroredIf(true, 150, 0, 100), -50);
}

TEST(SliderMappingTest, WithoutMirroringTheValueStays) {
    for (const int value : {c_least, -1, 0, 30, 150, c_most})
        EXPECT_EQ(mirroredIf(false, value, 0, 100), value);
}

TEST(SliderMappingTest, MirroringTwiceGivesTheValueBackInEveryRange) {
    for (int min = -30; min <= 30; ++min) {
        for (int max = -30; max <= 30; ++max) {
            for (int value = -40; value <= 40; ++value) {
                const int mirror = mirroredIf(true, value, min, max);
                ASSERT_EQ(mirror, min + max - value);
                ASSERT_EQ(mirroredIf(true, mirror, min, max), value);
            }
        }
    }
}

TEST(SliderMappingTest, MirroringOfExtremesDoesNotOverflowOnTheWay) {
    EXPECT_EQ(mirroredIf(true, c_most, c_most, c_most), c_most);
    EXPECT_EQ(mirroredIf(true, c_least, c_least, c_least), c_least);
    EXPECT_EQ(mirroredIf(true, c_least, c_least, c_most), c_most);
    EXPECT_EQ(mirroredIf(true, c_least, 0, c_most), c_most);
    EXPECT_EQ(mirroredIf(true, c_most, c_least, 0), c_least);
}
