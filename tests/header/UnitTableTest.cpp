#include "header/UnitTable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace {

using namespace TEVU;

const int c_nMillimetres = 1;
const int c_nMicrometres = 2;
const int c_nNanometres = 3;

struct StRow {
    const char* sName;
    int nIndex;
    double dLower;
    double dUpper;
};

void PrintTo(const StRow& row, std::ostream* out) {
    *out << row.sName;
}

class UnitTableRows : public testing::TestWithParam<StRow> {};

TEST_P(UnitTableRows, StandAtTheirPlaceWithTheirBounds) {
    const StUnit& row = unitTable()[static_cast<std::size_t>(GetParam().nIndex)];

    EXPECT_EQ(row.m_sName, GetParam().sName);
    EXPECT_EQ(row.m_dLower, GetParam().dLower);
    EXPECT_EQ(row.m_dUpper, GetParam().dUpper);
}

TEST_P(UnitTableRows, AreFoundByTheirName) {
    EXPECT_EQ(unitIndex(GetParam().sName), GetParam().nIndex);
}

TEST_P(UnitTableRows, HaveTheirLowerBoundAsTheirSizeInMetres) {
    EXPECT_EQ(metresPer(GetParam().nIndex), GetParam().dLower);
}

INSTANTIATE_TEST_SUITE_P(, UnitTableRows,
                         testing::Values(StRow{"m", 0, 1.0, 100000.0}, StRow{"mm", 1, 0.001, 0.01},
                                         StRow{"um", 2, 1e-6, 0.001}, StRow{"nm", 3, 1e-9, 1e-6}),
                         [](const testing::TestParamInfo<StRow>& row) { return row.param.sName; });

TEST(UnitTable, HasFourRows) {
    EXPECT_EQ(unitTable().size(), 4u);
}

TEST(UnitTable, IsOneAndTheSameAtEachLook) {
    EXPECT_EQ(&unitTable(), &unitTable());
}

TEST(UnitTable, FindsNoRowForAnythingButTheExactName) {
    for (const char* sName : {"", "cm", "M", "MM", " mm", "mm ", "\xB5m", "m\n"})
        EXPECT_EQ(unitIndex(sName), -1) << '"' << sName << '"';
    EXPECT_EQ(unitIndex(std::string("m\0", 2)), -1);
}

struct StChoice {
    const char* sRow;
    double dSpacing;
    int nUnit;
};

void PrintTo(const StChoice& row, std::ostream* out) {
    *out << row.sRow;
}

class NaturalUnit : public testing::TestWithParam<StChoice> {};

TEST_P(NaturalUnit, IsTheFirstThatAcceptsTheSpacing) {
    EXPECT_EQ(naturalUnit(GetParam().dSpacing), GetParam().nUnit);
}

double justBelow(double value) {
    return std::nextafter(value, 0.0);
}

INSTANTIATE_TEST_SUITE_P(
    , NaturalUnit,
    testing::Values(StChoice{"OneMetre", 1.0, 0},
                    StChoice{"JustBelow100000Metres", justBelow(100000.0), 0},
                    StChoice{"From100000MetresNoneSoMetres", 100000.0, 0},
                    StChoice{"200000MetresNoneSoMetres", 200000.0, 0},
                    StChoice{"InfiniteNoneSoMetres", std::numeric_limits<double>::infinity(), 0},
                    StChoice{"JustBelowOneMetreIsInTheGap", justBelow(1.0), 0},
                    StChoice{"FiveCentimetresAreInTheGap", 0.05, 0},
                    StChoice{"TheMillimetresEndBeforeTheGap", 0.01, 0},
                    StChoice{"JustBelowTheGap", justBelow(0.01), c_nMillimetres},
                    StChoice{"OneMillimetreBelongsToTheMillimetres", 0.001, c_nMillimetres},
                    StChoice{"JustBelowOneMillimetre", justBelow(0.001), c_nMicrometres},
                    StChoice{"OneMicrometre", 1e-6, c_nMicrometres},
                    StChoice{"JustBelowOneMicrometre", justBelow(1e-6), c_nNanometres},
                    StChoice{"OneNanometre", 1e-9, c_nNanometres},
                    StChoice{"BelowOneNanometreNoneSoMetres", justBelow(1e-9), 0},
                    StChoice{"ZeroNoneSoMetres", 0.0, 0},
                    StChoice{"NegativeNoneSoMetres", -1e-6, 0},
                    StChoice{"NoNumberNoneSoMetres", std::numeric_limits<double>::quiet_NaN(), 0}),
    [](const testing::TestParamInfo<StChoice>& row) { return row.param.sRow; });

TEST(NaturalUnitOfTwo, IsThatOfTheLarger) {
    EXPECT_EQ(naturalUnit(1e-9, 1e-6), c_nMicrometres);
    EXPECT_EQ(naturalUnit(1e-6, 1e-9), c_nMicrometres);
    EXPECT_EQ(naturalUnit(1e-6, 0.05), c_nMetres);
}

TEST(NaturalUnitOfThree, IsThatOfTheLargest) {
    EXPECT_EQ(naturalUnit(0.002, 1e-6, 1e-9), c_nMillimetres);
    EXPECT_EQ(naturalUnit(1e-9, 0.002, 1e-6), c_nMillimetres);
    EXPECT_EQ(naturalUnit(1e-6, 1e-9, 0.002), c_nMillimetres);
}

TEST(NaturalUnitOfThree, IsNotHeldBackByUnknownSpacings) {
    EXPECT_EQ(naturalUnit(-1.0, -1.0, 1e-9), c_nNanometres);
}

TEST(MetresPer, IsOneForAnUnknownUnit) {
    EXPECT_EQ(metresPer(-1), 1.0);
}

TEST(ConversionFactor, IsTheOldSizeDividedByTheNew) {
    EXPECT_EQ(conversionFactor(c_nMillimetres, c_nMicrometres), 0.001 / 1e-6);
    EXPECT_EQ(conversionFactor(c_nMillimetres, c_nMetres), 0.001);
    EXPECT_EQ(conversionFactor(c_nNanometres, c_nMetres), 1e-9);
    EXPECT_EQ(conversionFactor(c_nMetres, c_nNanometres), 1.0 / 1e-9);
}

TEST(ConversionFactor, IsOneWithinAUnit) {
    for (int nUnit = 0; nUnit < 4; ++nUnit)
        EXPECT_EQ(conversionFactor(nUnit, nUnit), 1.0);
}

TEST(ConversionFactor, IsOneFromAnUnknownUnitToAny) {
    for (int nUnit = 0; nUnit < 4; ++nUnit)
        EXPECT_EQ(conversionFactor(-1, nUnit), 1.0);
}

} // namespace
