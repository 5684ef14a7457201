#include <ruqlib2core/CValueMap.h>

#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueString.h>

#include <gtest/gtest.h>

using namespace TEVU;

TEST(CValueMapTest, KeysComeInOrderWithIndicesFirst) {
    CValueMap map;
    for (const char* key : {"b", "10", "a/b", "9", "a"})
        map.SetEntry(key, new CValueLong(1));

    EXPECT_EQ(map.Keys(), (std::vector<CValue_Key>{9, 10, "a", "a/b", "b"}));
}

TEST(CValueMapTest, IndexAndItsTextAreOneEntry) {
    CValueMap map;
    map.SetEntry(3, new CValueLong(1));

    map.SetEntry("3", new CValueLong(2));

    EXPECT_EQ(map.Size(), 1u);
    EXPECT_EQ(map.EntryLong(3, 0), 2);
}

TEST(CValueMapTest, SlashesHaveNoMeaning) {
    CValueMap map;
    map.SetEntry("input/documents", new CValueLong(1));

    EXPECT_TRUE(map.HasEntry("input/documents"));
    EXPECT_FALSE(map.HasEntry("input"));
}
