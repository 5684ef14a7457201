#include <ruqlib2core/CValueContainerBase.h>

#include "CountedValue.h"

#include <ruqlib2core/CException.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValuePointer.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>

#include <gtest/gtest.h>

using namespace TEVU;

/// What maps and vectors share, under keys that both take.
template <class Container>
class CValueContainerBaseTest : public testing::Test {
protected:
    CValueContainerBaseTest() { CountedValue::StartCounting(); }

    Container m_container;
};

using Containers = testing::Types<CValueMap, CValueVector>;
TYPED_TEST_SUITE(CValueContainerBaseTest, Containers);

TYPED_TEST(CValueContainerBaseTest, BeginsEmpty) {
    EXPECT_EQ(this->m_container.Size(), 0u);
    EXPECT_TRUE(this->m_container.Keys().empty());
    EXPECT_FALSE(this->m_container.HasEntry(0));
}

TYPED_TEST(CValueContainerBaseTest, EntryIsTheVeryValueThatWasSet) {
    auto* value = new CValueLong(7);

    this->m_container.SetEntry(1, value);

    const TypeParam& asConst = this->m_container;
    EXPECT_EQ(this->m_container.Entry(1, true), value);
    EXPECT_EQ(asConst.Entry("1", true), value);
    EXPECT_EQ(this->m_container.Size(), 1u);
}

TYPED_TEST(CValueContainerBaseTest, MissingEntryIsNullOrAnExceptionWithTheKey) {
    const TypeParam& asConst = this->m_container;
    EXPECT_EQ(this->m_container.Entry(42, false), nullptr);
    EXPECT_EQ(asConst.Entry(42, false), nullptr);
    EXPECT_THROW(asConst.Entry(42, true), CException);
    try {
        this->m_container.Entry(42, true);
        FAIL() << "no exception";
    } catch (const CException& failure) {
        EXPECT_NE(failure.Message().find("\"42\""), std::string::npos) << failure.what();
    }
}

TYPED_TEST(CValueContainerBaseTest, ReplacedValueIsDeletedOnce) {
    this->m_container.SetEntry(0, new CountedValue(1));

    this->m_container.SetEntry(0, new CountedValue(2));

    EXPECT_EQ(CountedValue::s_nAlive, 1);
    EXPECT_EQ(CountedValue::s_nDeleted, 1);
    EXPECT_EQ(this->m_container.Size(), 1u);
}

TYPED_TEST(CValueContainerBaseTest, HeldValueSetAgainStays) {
    auto* value = new CountedValue(1);
    this->m_container.SetEntry(0, value);

    this->m_container.SetEntry(0, value);

    EXPECT_EQ(CountedValue::s_nDeleted, 0);
    EXPECT_EQ(this->m_container.Entry(0, true), value);
}

TYPED_TEST(CValueContainerBaseTest, NullRemovesTheEntry) {
    this->m_container.SetEntry(0, new CountedValue(1));

    this->m_container.SetEntry(0, nullptr);
    this->m_container.SetEntry(1, nullptr);

    EXPECT_EQ(this->m_container.Size(), 0u);
    EXPECT_EQ(CountedValue::s_nAlive, 0);
}

TYPED_TEST(CValueContainerBaseTest, RemovedValueIsDeletedAndOthersStay) {
    this->m_container.SetEntry(0, new CountedValue(1));
    this->m_container.SetEntry(1, new CountedValue(2));

    EXPECT_TRUE(this->m_container.RemoveEntry(0));
    EXPECT_FALSE(this->m_container.RemoveEntry(0));

    EXPECT_FALSE(this->m_container.HasEntry(0));
    EXPECT_TRUE(this->m_container.HasEntry(1));
    EXPECT_EQ(CountedValue::s_nDeleted, 1);
}

TYPED_TEST(CValueContainerBaseTest, ValuesDieWithTheContainer) {
    {
        TypeParam container;
        container.SetEntry(0, new CountedValue(1));
        container.SetEntry(1, new CountedValue(2));
    }
    EXPECT_EQ(CountedValue::s_nAlive, 0);
    EXPECT_EQ(CountedValue::s_nDeleted, 2);
}

TYPED_TEST(CValueContainerBaseTest, CopyIsDeepThroughNestedContainers) {
    auto* inner = new CValueMap;
    inner->SetEntry("x", new CountedValue(1));
    this->m_container.SetEntry(0, inner);

    TypeParam copy(this->m_container);
    inner->SetEntry("x", new CountedValue(2));

    const auto& copiedInner = dynamic_cast<const CValueMap&>(*copy.Entry(0, true));
    EXPECT_NE(&copiedInner, inner);
    EXPECT_EQ(copiedInner.EntryLong("x", 0), 1);
    EXPECT_EQ(CountedValue::s_nAlive, 2);
}

TYPED_TEST(CValueContainerBaseTest, CloneIsADeepCopyOfTheSameClass) {
    this->m_container.SetEntry(0, new CountedValue(1));

    const std::unique_ptr<CValue> clone(static_cast<const CValue&>(this->m_container).Clone());
    this->m_container.RemoveEntry(0);

    EXPECT_EQ(dynamic_cast<TypeParam&>(*clone).EntryLong(0, 0), 1);
    EXPECT_EQ(CountedValue::s_nAlive, 1);
}

TYPED_TEST(CValueContainerBaseTest, AssignmentReplacesEverything) {
    TypeParam other;
    other.SetEntry(1, new CountedValue(1));
    this->m_container.SetEntry(0, new CountedValue(2));

    this->m_container = other;

    EXPECT_EQ(this->m_container.Keys(), std::vector<CValue_Key>{1});
    EXPECT_EQ(CountedValue::s_nAlive, 2);
    EXPECT_EQ(CountedValue::s_nDeleted, 1);
}

TYPED_TEST(CValueContainerBaseTest, SelfAssignmentKeepsTheEntries) {
    this->m_container.SetEntry(0, new CountedValue(7));

    TypeParam& same = this->m_container;
    this->m_container = same;

    EXPECT_EQ(this->m_container.EntryLong(0, 0), 7);
    EXPECT_EQ(CountedValue::s_nAlive, 1);
}

TYPED_TEST(CValueContainerBaseTest, ContainerCanBeReplacedByOneOfItsOwnEntries) {
    auto* inner = new TypeParam;
    inner->SetEntry(5, new CountedValue(7));
    this->m_container.SetEntry(0, inner);

    this->m_container = *inner;

    EXPECT_EQ(this->m_container.Keys(), std::vector<CValue_Key>{5});
    EXPECT_EQ(this->m_container.EntryLong(5, 0), 7);
    EXPECT_EQ(CountedValue::s_nAlive, 1);
}

TYPED_TEST(CValueContainerBaseTest, TypeMustBeExactlyTheEntrys) {
    this->m_container.SetEntry(0, new CountedValue(1));
    int number = 0;
    this->m_container.SetEntry(1, new CValuePointer<int>(&number));

    EXPECT_TRUE(this->m_container.HasEntry(0, typeid(CountedValue)));
    EXPECT_FALSE(this->m_container.HasEntry(0, typeid(CValueLong)));
    EXPECT_FALSE(this->m_container.HasEntry(0, typeid(CValue)));
    EXPECT_TRUE(this->m_container.HasEntry(1, typeid(CValuePointer<int>)));
    EXPECT_FALSE(this->m_container.HasEntry(1, typeid(CValuePointer<long>)));
    EXPECT_FALSE(this->m_container.HasEntry(2, typeid(CountedValue)));
}

TYPED_TEST(CValueContainerBaseTest, EntryOfAnotherKindReadsAsTheDefault) {
    this->m_container.SetEntry(0, new CValueString("true"));
    this->m_container.SetEntry(1, new CValueLong(1));

    EXPECT_TRUE(this->m_container.EntryBool(1, true));
    EXPECT_FALSE(this->m_container.EntryBool(1, false));
    EXPECT_EQ(this->m_container.EntryLong(0, 5), 5);
    EXPECT_EQ(this->m_container.EntryDouble(1, 0.5), 0.5);
    EXPECT_EQ(this->m_container.GetString(1, "default"), "default");
}

TYPED_TEST(CValueContainerBaseTest, MissingEntryReadsAsTheDefault) {
    EXPECT_TRUE(this->m_container.EntryBool(9, true));
    EXPECT_EQ(this->m_container.EntryLong(9, 5), 5);
    EXPECT_EQ(this->m_container.EntryDouble(9, 0.5), 0.5);
    EXPECT_EQ(this->m_container.GetString(9, "default"), "default");
}

TYPED_TEST(CValueContainerBaseTest, EntryOfTheRightKindReadsAsItsValue) {
    this->m_container.SetEntry(0, new CValueBool(false));
    this->m_container.SetEntry(1, new CValueLong(1));
    this->m_container.SetEntry(2, new CValueDouble(1.5));
    this->m_container.SetEntry(3, new CValueString("text"));

    EXPECT_FALSE(this->m_container.EntryBool(0, true));
    EXPECT_EQ(this->m_container.EntryLong(1, 5), 1);
    EXPECT_EQ(this->m_container.EntryDouble(2, 0.5), 1.5);
    EXPECT_EQ(this->m_container.GetString(3, "default"), "text");
    EXPECT_EQ(this->m_container.EntryString(3), "text");
}

TYPED_TEST(CValueContainerBaseTest, EntryStringThrowsForAMissingEntryAndAnotherKind) {
    this->m_container.SetEntry(0, new CValueLong(1));

    EXPECT_THROW(this->m_container.EntryString(0), CException);
    EXPECT_THROW(this->m_container.EntryString(1), CException);
}
