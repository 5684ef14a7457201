#include <ruqlib2image/CSize.h>

#include <gtest/gtest.h>

using namespace TEVU;

TEST(CSizeTest, HasTheExtentsOfItsArguments) {
    const CSize size(4, 5, 6);

    EXPECT_EQ(size.Dimension(), 3u);
    EXPECT_EQ(size[0], 4);
    EXPECT_EQ(size[1], 5);
    EXPECT_EQ(size[2], 6);
}

TEST(CSizeTest, IsOneAlongAnAxisThatItDoesNotHave) {
    EXPECT_EQ(CSize(4)[1], 1);
    EXPECT_EQ(CSize(4)[2], 1);
    EXPECT_EQ(CSize(4, 5)[2], 1);
}

TEST(CSizeTest, KeepsThatOneWhenSeenAsAPosition) {
    const CSize size(4, 5);
    const CPos& pos = size;

    EXPECT_EQ(pos[2], 1);
}

TEST(CSizeTest, ASingleSliceIsNotATwoDimensionalSize) {
    EXPECT_EQ(CSize(4, 5), CSize(4, 5));
    EXPECT_NE(CSize(4, 5), CSize(4, 5, 1));
}
