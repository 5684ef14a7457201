#include "VirtualPlaces.h"

#include <gtest/gtest.h>

using support::placeOf;
using support::standInARow;

namespace {

struct StBase {
    virtual ~StBase() = default;
    virtual void first() {}
    void alone() {}
    virtual int second(int number) const { return number; }
};

struct StDerived : StBase {
    int second(int) const override { return 0; }
    virtual void third() {}
    void first() override {}
};

} // namespace

TEST(VirtualPlacesTest, FunctionsStandAsTheyAreDeclared) {
    EXPECT_TRUE(standInARow({placeOf(&StBase::first), placeOf(&StBase::second)}));
    EXPECT_FALSE(standInARow({placeOf(&StBase::second), placeOf(&StBase::first)}));
}

TEST(VirtualPlacesTest, OverridesStandInThePlacesOfTheBase) {
    EXPECT_EQ(placeOf(&StDerived::second), placeOf(&StBase::second));
    EXPECT_TRUE(standInARow(
        {placeOf(&StDerived::first), placeOf(&StDerived::second), placeOf(&StDerived::third)}));
}

TEST(VirtualPlacesTest, OtherFunctionsHaveNoPlaceBesideTheVirtualOnes) {
    EXPECT_FALSE(standInARow({placeOf(&StBase::first), placeOf(&StBase::alone)}));
    EXPECT_FALSE(standInARow({placeOf(&StBase::alone), placeOf(&StBase::second)}));
    EXPECT_FALSE(standInARow({placeOf(&StBase::first), placeOf(&StDerived::third)}));
}
