#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValuePointer.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <memory>

using namespace TEVU;

TEST(CValueTest, NumbersOfTheGenericTypesAreFixed) {
    EXPECT_EQ(CValueBool(true).GenericType(), 0);
    EXPECT_EQ(CValueLong(1).GenericType(), 1);
    EXPECT_EQ(CValueDouble(1.0).GenericType(), 2);
    EXPECT_EQ(CValueString("").GenericType(), 3);
    EXPECT_EQ(CValuePointer<int>(nullptr).GenericType(), 4);
    EXPECT_EQ(CValueVector().GenericType(), 5);
    EXPECT_EQ(CValueMap().GenericType(), 6);
}

TEST(CValueTest, ScalarsHoldWhatTheyWereGiven) {
    EXPECT_TRUE(CValueBool(true).Bool());
    EXPECT_FALSE(CValueBool(false).Bool());
    EXPECT_EQ(CValueLong(LONG_MIN).Long(), LONG_MIN);
    EXPECT_EQ(CValueDouble(0.1).Double(), 0.1);
    EXPECT_TRUE(std::signbit(CValueDouble(-0.0).Double()));
    EXPECT_TRUE(std::isnan(CValueDouble(std::numeric_limits<double>::quiet_NaN()).Double()));
}

TEST(CValueTest, ClonesHaveTheSameClassAndValue) {
    const CValueString text("x");
    const CValueLong number(7);
    const CValueDouble real(7.5);
    const CValueBool truth(true);

    const std::unique_ptr<CValue> textClone(static_cast<const CValue&>(text).Clone());
    const std::unique_ptr<CValueLong> numberClone(number.Clone());
    const std::unique_ptr<CValueDouble> realClone(real.Clone());
    const std::unique_ptr<CValueBool> truthClone(truth.Clone());

    EXPECT_EQ(dynamic_cast<CValueString&>(*textClone).String(), "x");
    EXPECT_EQ(numberClone->Long(), 7);
    EXPECT_EQ(realClone->Double(), 7.5);
    EXPECT_TRUE(truthClone->Bool());
}
