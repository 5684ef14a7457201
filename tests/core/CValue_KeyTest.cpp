#include <ruqlib2core/CValue_Key.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <vector>

using TEVU::CValue_Key;

namespace {

std::vector<std::string> textsOf(const std::vector<CValue_Key>& keys) {
    std::vector<std::string> texts;
    for (const CValue_Key& key : keys)
        texts.push_back(key.String());
    return texts;
}

} // namespace

TEST(CValue_KeyTest, TextOfAnIndexIsItsDecimalForm) {
    EXPECT_EQ(CValue_Key(3).String(), "3");
    EXPECT_EQ(CValue_Key(-7).String(), "-7");
    EXPECT_EQ(CValue_Key(INT_MIN).String(), std::to_string(INT_MIN));
}

TEST(CValue_KeyTest, IndexAndItsDecimalTextAreTheSameKey) {
    EXPECT_EQ(CValue_Key("3"), CValue_Key(3));
    EXPECT_EQ(CValue_Key(std::to_string(INT_MAX)), CValue_Key(INT_MAX));
    EXPECT_EQ(CValue_Key(std::string("-7")).Index(), -7);
    EXPECT_TRUE(CValue_Key("0").IsIndex());
}

TEST(CValue_KeyTest, OtherSpellingsOfANumberAreTexts) {
    for (const char* text : {"03", "+3", "-0", " 3", "3 ", "3.0", "0x3", "2147483648", "", "-"}) {
        EXPECT_FALSE(CValue_Key(text).IsIndex()) << text;
        EXPECT_EQ(CValue_Key(text).Index(), 0) << text;
        EXPECT_EQ(CValue_Key(text).String(), text);
    }
    EXPECT_NE(CValue_Key("03"), CValue_Key(3));
}

TEST(CValue_KeyTest, NullIsTheEmptyText) {
    EXPECT_EQ(CValue_Key(static_cast<const char*>(nullptr)), CValue_Key(""));
}

TEST(CValue_KeyTest, TextKeepsEveryByte) {
    const std::string bytes("a\0\xff", 3);
    EXPECT_EQ(CValue_Key(bytes).String(), bytes);
}

TEST(CValue_KeyTest, IndicesSortByNumberBeforeTextsByBytes) {
    std::vector<CValue_Key> keys = {"b", 10, "\xc3\xa4", 9, "", -1, "B", "03"};

    std::sort(keys.begin(), keys.end());

    EXPECT_EQ(textsOf(keys),
              (std::vector<std::string>{"-1", "9", "10", "", "03", "B", "b", "\xc3\xa4"}));
}

TEST(CValue_KeyTest, TextsThatBeginAlikeSortByTheFirstByteThatDiffers) {
    std::vector<CValue_Key> keys = {"abd", "a\xff", "ab", "abc", "a"};

    std::sort(keys.begin(), keys.end());

    EXPECT_EQ(textsOf(keys), (std::vector<std::string>{"a", "ab", "abc", "abd", "a\xff"}));
}

TEST(CValue_KeyTest, ExactlyOneOfLessEqualGreaterHolds) {
    const std::vector<CValue_Key> keys = {-1, 0, 9, 10, "0", "9", "", "03", "a", "ab", "ac", "b"};
    for (const CValue_Key& a : keys) {
        for (const CValue_Key& b : keys) {
            EXPECT_EQ((a < b) + (a == b) + (a > b), 1) << a.String() << " " << b.String();
            EXPECT_EQ(a == b, a.String() == b.String()) << a.String() << " " << b.String();
            EXPECT_EQ(a <= b, !(a > b));
            EXPECT_EQ(a >= b, !(a < b));
            EXPECT_EQ(a != b, !(a == b));
        }
    }
}
