#include <ruqlib2core/CValuePointer.h>

#include "CountedValue.h"

#include <gtest/gtest.h>

#include <memory>

using namespace TEVU;

TEST(CValuePointerTest, TellsTypeAndAddress) {
    int number = 1;
    const CValuePointer<int> value(&number);

    const CValuePointerBase& base = value;

    EXPECT_EQ(value.Pointer(), &number);
    EXPECT_EQ(base.Address(), &number);
    EXPECT_EQ(base.PointedType(), typeid(int));
}

TEST(CValuePointerTest, TypeIsThePointersNotTheObjects) {
    CountedValue object(1);
    const CValuePointer<CValueLong> value(&object);

    EXPECT_EQ(value.PointedType(), typeid(CValueLong));
}

TEST(CValuePointerTest, PointerToConstKeepsItsAddress) {
    const int number = 1;
    const CValuePointer<const int> value(&number);

    EXPECT_EQ(value.Address(), &number);
    EXPECT_EQ(value.PointedType(), typeid(int));
}

TEST(CValuePointerTest, NullIsAllowed) {
    EXPECT_EQ(CValuePointer<int>(nullptr).Address(), nullptr);
}

TEST(CValuePointerTest, NeitherOwnsNorCopiesTheObject) {
    CountedValue::StartCounting();
    CountedValue object(1);
    {
        const CValuePointer<CountedValue> value(&object);
        const std::unique_ptr<CValuePointer<CountedValue>> clone(value.Clone());
        EXPECT_EQ(clone->Pointer(), &object);
    }
    EXPECT_EQ(CountedValue::s_nAlive, 1);
    EXPECT_EQ(CountedValue::s_nDeleted, 0);
}
