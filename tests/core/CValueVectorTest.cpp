#include <ruqlib2core/CValueVector.h>

#include "CountedValue.h"

#include <ruqlib2core/CException.h>

#include <gtest/gtest.h>

using namespace TEVU;

TEST(CValueVectorTest, EntriesComeInTheOrderOfTheIndices) {
    CValueVector vector;
    for (const int index : {10, 9, 0, 100})
        vector.SetEntry(index, new CValueLong(index));

    EXPECT_EQ(vector.Keys(), (std::vector<CValue_Key>{0, 9, 10, 100}));
}

TEST(CValueVectorTest, RemovingAnEntryMovesNoOther) {
    CValueVector vector;
    for (const int index : {0, 1, 2})
        vector.SetEntry(index, new CValueLong(index));

    vector.RemoveEntry(1);

    EXPECT_EQ(vector.Keys(), (std::vector<CValue_Key>{0, 2}));
    EXPECT_EQ(vector.EntryLong(2, 0), 2);
}

TEST(CValueVectorTest, KeyThatIsNoIndexIsRefusedAndTheValueDeleted) {
    CountedValue::StartCounting();
    CValueVector vector;

    EXPECT_THROW(vector.SetEntry("label", new CountedValue(1)), CException);
    EXPECT_THROW(vector.SetEntry(-1, new CountedValue(1)), CException);

    EXPECT_EQ(vector.Size(), 0u);
    EXPECT_EQ(CountedValue::s_nAlive, 0);
    EXPECT_FALSE(vector.HasEntry("label"));
    EXPECT_FALSE(vector.RemoveEntry("label"));
}
