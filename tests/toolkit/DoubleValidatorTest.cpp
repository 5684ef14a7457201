#include <qt3/DoubleValidator.h>

#include <qt3/LineEdit.h>
#include <qt3/Text.h>
#include <qt3/WidgetFunctions.h>

#include "Events.h"

#include <gtest/gtest.h>

#include <limits>

using qt3::ascii;
using qt3::fromAscii;

namespace {

const int Invalid = QValidator::Invalid;
const int Intermediate = QValidator::Intermediate;
const int Acceptable = QValidator::Acceptable;

int verdict(const QValidator& validator, const std::string& text) {
    QString input = fromAscii(text);
    int position = 0;
    return validator.validate(input, position);
}

} // namespace

TEST(DoubleValidatorTest, OutsideTheLimitsIsIntermediate) {
    const qt3::DoubleValidator validator(-1.0, 1.0, 3, nullptr);
    EXPECT_EQ(verdict(validator, "1.001"), Intermediate);
    EXPECT_EQ(verdict(validator, "-1.001"), Intermediate);
    EXPECT_EQ(verdict(validator, "1"), Acceptable);
    EXPECT_EQ(verdict(validator, "-1"), Acceptable);
}

TEST(DoubleValidatorTest, JudgesUnfinishedNumbersByItsLimits) {
    const qt3::DoubleValidator anyNumber(nullptr);
    const qt3::DoubleValidator positive(0.0, std::numeric_limits<double>::max(), 10, nullptr);
    EXPECT_EQ(verdict(anyNumber, "-"), Intermediate);
    EXPECT_EQ(verdict(positive, "-"), Invalid);
    EXPECT_EQ(verdict(anyNumber, "0.12345678901"), Acceptable);
    EXPECT_EQ(verdict(positive, "0.12345678901"), Intermediate);
}

TEST(DoubleValidatorTest, StartsWithoutLimits) {
    const qt3::DoubleValidator validator(nullptr, "limits");
    EXPECT_EQ(validator.bottom(), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(validator.top(), std::numeric_limits<double>::infinity());
    EXPECT_EQ(validator.decimals(), 1000);
    EXPECT_EQ(qt3::name(&validator), "limits");
}

TEST(DoubleValidatorTest, RangeWithoutDecimalsAllowsNone) {
    qt3::DoubleValidator validator(nullptr);
    validator.setRange(0.0, 10.0);
    EXPECT_EQ(validator.decimals(), 0);
    EXPECT_EQ(verdict(validator, "1.5"), Intermediate);
}

TEST(DoubleValidatorTest, TextAndPositionStay) {
    const qt3::DoubleValidator validator(0.0, 1.0, 2, nullptr);
    QString text = fromAscii(" 1,234.567 ");
    int position = 3;
    validator.validate(text, position);
    validator.fixup(text);
    EXPECT_EQ(ascii(text), " 1,234.567 ");
    EXPECT_EQ(position, 3);
}

TEST(DoubleValidatorTest, FieldTakesTypedNumberAndRefusesLetters) {
    qt3::LineEdit field(nullptr);
    qt3::DoubleValidator validator(&field);
    field.setValidator(&validator);
    support::show(&field);
    support::giveFocus(&field);

    support::typeText(&field, "1x.5e");

    EXPECT_EQ(ascii(field.text()), "1.5e");
}
