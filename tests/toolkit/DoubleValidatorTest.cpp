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

const double c_largest = std::numeric_limits<double>::max();

const int Invalid = QValidator::Invalid;
const int Intermediate = QValidator::Intermediate;
const int Acceptable = QValidator::Acceptable;

struct StVerdict {
    const char* name;
    const char* text;
    int free;     ///< with the default limits
    int positive; ///< with 0 up to the largest double and ten decimals
};

void PrintTo(const StVerdict& row, std::ostream* stream) {
    *stream << '"' << row.text << '"';
}

class DoubleValidatorTest : public testing::TestWithParam<StVerdict> {};

int verdict(const QValidator& validator, const std::string& text) {
    QString input = fromAscii(text);
    int position = 0;
    return validator.validate(input, position);
}

} // namespace

TEST_P(DoubleValidatorTest, JudgesAsQt3WithoutLimits) {
    const qt3::DoubleValidator validator(nullptr);
    EXPECT_EQ(verdict(validator, GetParam().text), GetParam().free);
}

TEST_P(DoubleValidatorTest, JudgesAsQt3ForPositiveNumbers) {
    const qt3::DoubleValidator validator(0.0, c_largest, 10, nullptr);
    EXPECT_EQ(verdict(validator, GetParam().text), GetParam().positive);
}

INSTANTIATE_TEST_SUITE_P(
    Validator, DoubleValidatorTest,
    testing::Values(StVerdict{"Number", "1.5", Acceptable, Acceptable},
                    StVerdict{"Empty", "", Intermediate, Intermediate},
                    StVerdict{"OnlyMinus", "-", Intermediate, Invalid},
                    StVerdict{"MinusAndPoint", "-.", Intermediate, Invalid},
                    StVerdict{"OnlyPlus", "+", Invalid, Invalid},
                    StVerdict{"PlusAndPoint", "+.", Invalid, Invalid},
                    StVerdict{"OnlyBlank", " ", Intermediate, Intermediate},
                    StVerdict{"PointBetweenBlanks", "  .  ", Intermediate, Intermediate},
                    StVerdict{"LeadingBlank", " 1.5", Acceptable, Acceptable},
                    StVerdict{"TrailingBlank", "1.5 ", Invalid, Invalid},
                    StVerdict{"UnfinishedExponent", "1e", Acceptable, Acceptable},
                    StVerdict{"UnfinishedSignedExponent", "1e+", Acceptable, Acceptable},
                    StVerdict{"OnlyExponentSign", "e", Intermediate, Intermediate},
                    StVerdict{"ExponentWithoutNumber", "e5", Intermediate, Intermediate},
                    StVerdict{"TwoExponents", "1e2e3", Invalid, Invalid},
                    StVerdict{"ExponentAfterNoNumber", "xe5", Invalid, Invalid},
                    StVerdict{"Overflow", "1e400", Acceptable, Acceptable},
                    StVerdict{"Underflow", "1e-400", Acceptable, Acceptable},
                    StVerdict{"Infinity", "inf", Acceptable, Intermediate},
                    StVerdict{"NotANumber", "nan", Acceptable, Acceptable},
                    StVerdict{"DecimalComma", "1,5", Invalid, Invalid},
                    StVerdict{"Grouping", "1,234.5", Invalid, Invalid},
                    StVerdict{"Negative", "-1.5", Acceptable, Invalid},
                    StVerdict{"BlankAndNegative", " -1.5", Acceptable, Invalid},
                    StVerdict{"ElevenDecimals", "0.12345678901", Acceptable, Intermediate},
                    StVerdict{"TenDecimals", "0.1234567890", Acceptable, Acceptable},
                    StVerdict{"ElevenDecimalsWithExponent", "0.12345678901e1", Acceptable,
                              Acceptable},
                    StVerdict{"Letters", "auto", Invalid, Invalid},
                    StVerdict{"Unit", "1 mm", Invalid, Invalid}),
    [](const testing::TestParamInfo<StVerdict>& row) { return row.param.name; });

TEST(DoubleValidatorTest, OutsideTheLimitsIsIntermediate) {
    const qt3::DoubleValidator validator(-1.0, 1.0, 3, nullptr);
    EXPECT_EQ(verdict(validator, "1.001"), Intermediate);
    EXPECT_EQ(verdict(validator, "-1.001"), Intermediate);
    EXPECT_EQ(verdict(validator, "1"), Acceptable);
    EXPECT_EQ(verdict(validator, "-1"), Acceptable);
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
