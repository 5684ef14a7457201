#include <ruqlib2core/CValueString.h>

#include <gtest/gtest.h>

using namespace TEVU;

TEST(CValueStringTest, WithoutLengthTakesUpToTheTerminator) {
    EXPECT_EQ(CValueString("path").String(), "path");
    EXPECT_EQ(CValueString("path", CString::NPOS).String(), "path");
}

TEST(CValueStringTest, WithLengthTakesThatManyBytesNulIncluded) {
    EXPECT_EQ(CValueString("path", 2).String(), "pa");
    EXPECT_EQ(CValueString("a\0b", 3).String(), std::string("a\0b", 3));
    EXPECT_EQ(CValueString(std::string("a\0b", 3)).String().size(), 3u);
}

TEST(CValueStringTest, NullIsEmptyWhateverTheLength) {
    EXPECT_EQ(CValueString(nullptr).String(), "");
    EXPECT_EQ(CValueString(nullptr, 5).String(), "");
}
