#include "RegistryText.h"

#include <ruqlib2core/CException.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValueString.h>

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <ostream>

using namespace TEVU;
using RegistryText::Scalar;
using RegistryText::Settings;

namespace {

struct StScalarCase {
    std::string name;
    Scalar scalar;
};

void PrintTo(const StScalarCase& row, std::ostream* stream) {
    *stream << row.name;
}

class RegistryTextScalarTest : public testing::TestWithParam<StScalarCase> {};

struct StTextCase {
    std::string name;
    std::string text;
};

void PrintTo(const StTextCase& row, std::ostream* stream) {
    *stream << row.name;
}

class RegistryTextRefusalTest : public testing::TestWithParam<StTextCase> {};

std::string repeated(const std::string& part, int count) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += part;
    return text;
}

using Limits = std::numeric_limits<double>;

} // namespace

TEST_P(RegistryTextScalarTest, SurvivesWritingAndReading) {
    const Scalar& scalar = GetParam().scalar;

    const Settings settings = RegistryText::read(RegistryText::write({{"key", scalar}}));

    ASSERT_EQ(settings.size(), 1u);
    EXPECT_TRUE(RegistryText::areSame(settings.at("key"), scalar));
    EXPECT_EQ(settings.at("key").index(), scalar.index());
}

TEST_P(RegistryTextScalarTest, SurvivesAsAValue) {
    const Scalar& scalar = GetParam().scalar;

    const std::unique_ptr<CValue> value = RegistryText::valueOf(scalar);

    EXPECT_TRUE(RegistryText::areSame(RegistryText::scalarOf(*value).value(), scalar));
}

INSTANTIATE_TEST_SUITE_P(
    RegistryTextTest, RegistryTextScalarTest,
    testing::Values(
        StScalarCase{"True", true}, StScalarCase{"False", false}, StScalarCase{"Zero", 0L},
        StScalarCase{"SmallestLong", LONG_MIN}, StScalarCase{"LargestLong", LONG_MAX},
        StScalarCase{"WholeDouble", 3.0}, StScalarCase{"HugeWholeDouble", 1e300},
        StScalarCase{"Tenth", 0.1}, StScalarCase{"Third", 1.0 / 3.0},
        StScalarCase{"MinusZero", -0.0}, StScalarCase{"SmallestDouble", Limits::denorm_min()},
        StScalarCase{"LargestDouble", Limits::max()}, StScalarCase{"Infinity", Limits::infinity()},
        StScalarCase{"MinusInfinity", -Limits::infinity()},
        StScalarCase{"NotANumber", Limits::quiet_NaN()}, StScalarCase{"Empty", std::string()},
        StScalarCase{"Ascii", std::string("/data/scan.tif")},
        StScalarCase{"QuotesAndEscapes", std::string("\"\\\n\t\x01\x7f")},
        StScalarCase{"Nul", std::string("a\0b\0", 4)},
        StScalarCase{"Utf8", std::string("\xc3\xa4\xf0\x9f\x98\x80")},
        StScalarCase{"Latin1", std::string("\xe4\xff")},
        StScalarCase{"OverlongUtf8", std::string("\xc0\xaf")},
        StScalarCase{"Surrogate", std::string("\xed\xa0\x80")},
        StScalarCase{"LooksLikeBytes", std::string("bytes:00ff")},
        StScalarCase{"LooksLikeMalformedBytes", std::string("bytes:zz")},
        StScalarCase{"LooksLikeInfinity", std::string("double:inf")},
        StScalarCase{"LooksLikeTrue", std::string("true")},
        StScalarCase{"LooksLikeANumber", std::string("3")}),
    [](const testing::TestParamInfo<StScalarCase>& row) { return row.param.name; });

TEST(RegistryTextTest, EveryByteSurvivesInStringsAndKeys) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    const Settings settings = {{bytes, bytes}, {"", std::string("x")}, {"bytes:", 1L}};

    EXPECT_EQ(RegistryText::read(RegistryText::write(settings)), settings);
}

TEST(RegistryTextTest, TextIsWhatAPersonWouldWrite) {
    const Settings settings = {{"a/b", std::string("x")}, {"n", 3L}, {"d", 3.0}, {"t", true}};

    EXPECT_EQ(RegistryText::write(settings),
              "{\n    \"a/b\": \"x\",\n    \"d\": 3.0,\n    \"n\": 3,\n    \"t\": true\n}\n");
}

TEST(RegistryTextTest, NoSettingsAreAnEmptyObject) {
    EXPECT_EQ(RegistryText::write({}), "{}\n");
    EXPECT_TRUE(RegistryText::read("{}").empty());
}

TEST(RegistryTextTest, SameMeansSameKindAndValue) {
    EXPECT_FALSE(RegistryText::areSame(1L, 1.0));
    EXPECT_FALSE(RegistryText::areSame(1L, true));
    EXPECT_FALSE(RegistryText::areSame(0.0, -0.0));
    EXPECT_FALSE(RegistryText::areSame(std::string("double:nan"), Limits::quiet_NaN()));
    EXPECT_TRUE(RegistryText::areSame(Limits::quiet_NaN(), Limits::quiet_NaN()));
    EXPECT_TRUE(RegistryText::areSame(std::string("x"), std::string("x")));
}

TEST(RegistryTextTest, MapsAreNoScalars) {
    EXPECT_FALSE(RegistryText::scalarOf(CValueMap()).has_value());
}

TEST_P(RegistryTextRefusalTest, IsRefusedWithAReason) {
    try {
        RegistryText::read(GetParam().text);
        FAIL() << "no exception";
    } catch (const CException& failure) {
        EXPECT_FALSE(failure.Message().empty());
        EXPECT_LE(failure.Message().size(), 200u);
    }
}

INSTANTIATE_TEST_SUITE_P(
    RegistryTextTest, RegistryTextRefusalTest,
    testing::Values(StTextCase{"Empty", ""}, StTextCase{"Blank", " \n"},
                    StTextCase{"Garbage", "\x80\x01"}, StTextCase{"CutOff", "{\"a\": 1, \"b\""},
                    StTextCase{"TextBehind", "{} {}"}, StTextCase{"Array", "[]"},
                    StTextCase{"BareNumber", "1"}, StTextCase{"BareString", "\"a\""},
                    StTextCase{"Null", "{\"a\": null}"}, StTextCase{"NestedObject", "{\"a\": {}}"},
                    StTextCase{"NestedArray", "{\"a\": [1]}"},
                    StTextCase{"OddBytes", "{\"a\": \"bytes:0\"}"},
                    StTextCase{"NoHexadecimal", "{\"a\": \"bytes:0g\"}"},
                    StTextCase{"UnknownDouble", "{\"a\": \"double:1\"}"},
                    StTextCase{"KeyOfNoBytes", "{\"double:inf\": 1}"},
                    StTextCase{"LongTooLarge", "{\"a\": 9223372036854775808}"},
                    StTextCase{"LongTooSmall", "{\"a\": -9223372036854775809}"},
                    StTextCase{"LongFarTooLarge", "{\"a\": 18446744073709551616}"},
                    StTextCase{"DoubleTooLarge", "{\"a\": 1e999}"},
                    StTextCase{"BrokenUtf8", "{\"a\": \"\xff\"}"},
                    StTextCase{"MillionArrays", repeated("[", 1000000)},
                    StTextCase{"MillionObjects", repeated("{\"a\":", 1000000)},
                    StTextCase{"MillionArraysInside", "{\"a\":" + repeated("[", 1000000)},
                    StTextCase{"EndlessString", "{\"a\": \"" + std::string(10000000, 'x')}),
    [](const testing::TestParamInfo<StTextCase>& row) { return row.param.name; });
