#include "StUnit.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>

namespace {

using TEVU::StUnit;

TEST(StUnit, KeepsWhatItIsMadeOf) {
    const StUnit unit(0.001, 0.01, "mm");

    EXPECT_EQ(unit.m_dLower, 0.001);
    EXPECT_EQ(unit.m_dUpper, 0.01);
    EXPECT_EQ(unit.m_sName, "mm");
}

struct StBound {
    const char* sRow;
    double dValue;
    bool bNatural;
};

void PrintTo(const StBound& row, std::ostream* out) {
    *out << row.sRow;
}

class StUnitBounds : public testing::TestWithParam<StBound> {};

TEST_P(StUnitBounds, AcceptWhatIsNeitherTooSmallNorTooLarge) {
    StUnit unit(0.5, 2.0, "half");

    EXPECT_EQ(unit(GetParam().dValue), GetParam().bNatural);
}

constexpr double c_dInfinity = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    , StUnitBounds,
    testing::Values(StBound{"JustBelowTheLowerBound", 0.49999999999999994, false},
                    StBound{"TheLowerBoundBelongsToTheUnit", 0.5, true},
                    StBound{"Between", 1.0, true},
                    StBound{"JustBelowTheUpperBound", 1.9999999999999998, true},
                    StBound{"TheUpperBoundIsTooLarge", 2.0, false}, StBound{"Zero", 0.0, false},
                    StBound{"Negative", -1.0, false}, StBound{"Infinite", c_dInfinity, false},
                    StBound{"NoNumber", std::numeric_limits<double>::quiet_NaN(), false}),
    [](const testing::TestParamInfo<StBound>& row) { return row.param.sRow; });

TEST(StUnit, AcceptsNothingWhenItsBoundsMeet) {
    StUnit unit(1.0, 1.0, "empty");

    EXPECT_FALSE(unit(1.0));
}

TEST(StUnit, CopyIsIndependentOfItsOriginal) {
    StUnit original(1e-6, 0.001, "um");

    const StUnit copy(original);
    original.m_dLower = 7.0;
    original.m_dUpper = 8.0;
    original.m_sName = "other";

    EXPECT_EQ(copy.m_dLower, 1e-6);
    EXPECT_EQ(copy.m_dUpper, 0.001);
    EXPECT_EQ(copy.m_sName, "um");
}

TEST(StUnit, AssignmentTakesAllThreeFieldsAndGivesBackTheTarget) {
    const StUnit nanometres(1e-9, 1e-6, "nm");
    StUnit target(1.0, 100000.0, "m");

    StUnit& result = (target = nanometres);

    EXPECT_EQ(&result, &target);
    EXPECT_EQ(target.m_dLower, 1e-9);
    EXPECT_EQ(target.m_dUpper, 1e-6);
    EXPECT_EQ(target.m_sName, "nm");
}

TEST(StUnit, TakesItsFieldsOnlyTogether) {
    EXPECT_FALSE(std::is_default_constructible<StUnit>::value);
    EXPECT_TRUE((std::is_constructible<StUnit, double, double, std::string>::value));
}

} // namespace
