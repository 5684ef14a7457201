#include <ruqlib2image/CPos.h>

#include <gtest/gtest.h>

using namespace TEVU;

TEST(CPosTest, HasTheDimensionOfItsArguments) {
    EXPECT_EQ(CPos(4).Dimension(), 1u);
    EXPECT_EQ(CPos(4, 5).Dimension(), 2u);
    EXPECT_EQ(CPos(4, 5, 6).Dimension(), 3u);
}

TEST(CPosTest, CoordinatesComeInTheOrderOfTheAxes) {
    const CPos pos(-4, 5, 6);

    EXPECT_EQ(pos[0], -4);
    EXPECT_EQ(pos[1], 5);
    EXPECT_EQ(pos[2], 6);
}

TEST(CPosTest, IsZeroAlongAnAxisThatItDoesNotHave) {
    EXPECT_EQ(CPos(4)[1], 0);
    EXPECT_EQ(CPos(4, 5)[2], 0);
    EXPECT_EQ(CPos(4, 5, 6)[3], 0);
}

TEST(CPosTest, EqualsOnlyTheSameCoordinates) {
    EXPECT_EQ(CPos(4, 5, 6), CPos(4, 5, 6));
    EXPECT_NE(CPos(4, 5, 6), CPos(4, 5, 7));
    EXPECT_NE(CPos(4, 5), CPos(5, 4));
}

TEST(CPosTest, AnotherDimensionIsAnotherPosition) {
    EXPECT_NE(CPos(4), CPos(4, 0));
    EXPECT_NE(CPos(4, 5), CPos(4, 5, 0));
}
