#include <qt3/Text.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using qt3::ascii;
using qt3::fromAscii;

namespace {

const double c_infinity = std::numeric_limits<double>::infinity();

struct StReading {
    const char* name;
    const char* text;
    bool ok;
    double value;
};

void PrintTo(const StReading& row, std::ostream* stream) {
    *stream << '"' << row.text << '"';
}

class ToDoubleTest : public testing::TestWithParam<StReading> {};

struct StWriting {
    const char* name;
    double value;
    char format;
    int precision;
    const char* text;
};

void PrintTo(const StWriting& row, std::ostream* stream) {
    *stream << row.value << ' ' << row.format << row.precision;
}

class NumberTest : public testing::TestWithParam<StWriting> {};

template <class Row>
std::string rowName(const testing::TestParamInfo<Row>& info) {
    return info.param.name;
}

std::string textOf(double value, char format, int precision) {
    return ascii(qt3::number(value, format, precision));
}

} // namespace

TEST_P(ToDoubleTest, ReadsAsQt3InTheCLocale) {
    bool ok = !GetParam().ok;
    const double value = qt3::toDouble(fromAscii(GetParam().text), &ok);
    EXPECT_EQ(ok, GetParam().ok);
    if (std::isnan(GetParam().value))
        EXPECT_TRUE(std::isnan(value));
    else
        EXPECT_EQ(value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Text, ToDoubleTest,
    testing::Values(
        StReading{"Plain", "1.5", true, 1.5}, StReading{"PlusSign", "+1.5", true, 1.5},
        StReading{"MinusSign", "-1.5", true, -1.5}, StReading{"NoIntegerPart", ".5", true, 0.5},
        StReading{"NoDecimals", "5.", true, 5.0}, StReading{"Exponent", "1e3", true, 1000.0},
        StReading{"UpperCaseSignedExponent", "1E+3", true, 1000.0},
        StReading{"PointBeforeExponent", "1.e3", true, 1000.0},
        StReading{"LeadingZerosAreNotOctal", "0010", true, 10.0},
        StReading{"LeadingZero", "017", true, 17.0}, StReading{"LeadingBlank", " 1.5", true, 1.5},
        StReading{"LeadingTab", "\t1.5", true, 1.5},
        StReading{"LeadingNoBreakSpace",
                  "\xa0"
                  "1.5",
                  true, 1.5},
        StReading{"TrailingBlankGivesTheNumberButNotOk", "1.5 ", false, 1.5},
        StReading{"BlanksAroundGiveTheNumberButNotOk", " 1.5 ", false, 1.5},
        StReading{"TabAndNewlineAroundGiveTheNumberButNotOk", "\t1.5\n", false, 1.5},
        StReading{"Empty", "", false, 0.0}, StReading{"OnlyBlank", " ", false, 0.0},
        StReading{"OnlyPoint", ".", false, 0.0}, StReading{"OnlyMinus", "-", false, 0.0},
        StReading{"OnlyPlus", "+", false, 0.0}, StReading{"OnlyExponent", "e3", false, 0.0},
        StReading{"ExponentWithoutDigits", "1e", false, 0.0},
        StReading{"ExponentSignWithoutDigits", "1e+", false, 0.0},
        StReading{"TwoSigns", "--1", false, 0.0}, StReading{"BlankAfterSign", "- 1.5", false, 0.0},
        StReading{"Unit", "1.5mm", false, 0.0}, StReading{"FloatSuffix", "1f", false, 0.0},
        StReading{"Hexadecimal", "0x10", false, 0.0},
        StReading{"HexadecimalFloat", "0x1p3", false, 0.0},
        StReading{"Underscore", "1_000", false, 0.0}, StReading{"BlankInside", "1 000", false, 0.0},
        StReading{"Apostrophe", "1'000", false, 0.0}, StReading{"DecimalComma", "1,5", false, 0.0},
        StReading{"EnglishGrouping", "1,234.5", false, 0.0},
        StReading{"GermanGrouping", "1.234,5", false, 0.0},
        StReading{"Infinity", "inf", true, c_infinity},
        StReading{"UpperCaseInfinity", "INF", true, c_infinity},
        StReading{"PlusInfinity", "+inf", true, c_infinity},
        StReading{"MinusInfinity", "-inf", true, -c_infinity},
        StReading{"NotANumber", "nan", true, std::nan("")},
        StReading{"MixedCaseNotANumber", "NaN", true, std::nan("")},
        StReading{"UpperCaseNotANumber", "NAN", true, std::nan("")},
        StReading{"LongInfinity", "infinity", false, 0.0},
        StReading{"MinusNotANumber", "-nan", false, 0.0},
        StReading{"PlusNotANumber", "+nan", false, 0.0}, StReading{"Overflow", "1e400", false, 0.0},
        StReading{"Largest", "1.7976931348623157e308", true, std::numeric_limits<double>::max()},
        StReading{"Underflow", "1e-400", false, 0.0},
        StReading{"BelowHalfOfTheSmallest", "2e-324", false, 0.0},
        StReading{"Smallest", "4.9e-324", true, std::numeric_limits<double>::denorm_min()},
        StReading{"ZeroWithAnyExponent", "0e-400", true, 0.0}),
    rowName<StReading>);

TEST(ToDoubleTest, ForeignDigitsAreNoNumber) {
    bool ok = true;
    const QString arabicOne(QChar(0x0661));
    EXPECT_EQ(qt3::toDouble(arabicOne, &ok), 0.0);
    EXPECT_FALSE(ok);
}

TEST(ToDoubleTest, NullTextIsNoNumber) {
    bool ok = true;
    EXPECT_EQ(qt3::toDouble(QString(), &ok), 0.0);
    EXPECT_FALSE(ok);
}

TEST(ToDoubleTest, WorksWithoutAskingForOk) {
    EXPECT_EQ(qt3::toDouble(fromAscii("2.5")), 2.5);
}

TEST_P(NumberTest, WritesAsPrintfInTheCLocale) {
    EXPECT_EQ(textOf(GetParam().value, GetParam().format, GetParam().precision), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Text, NumberTest,
    testing::Values(StWriting{"HalfGoesToZero", 0.5, 'f', 0, "0"},
                    StWriting{"OneAndAHalfGoesToTwo", 1.5, 'f', 0, "2"},
                    StWriting{"TwoAndAHalfGoesToTwo", 2.5, 'f', 0, "2"},
                    StWriting{"TieAtTwoDecimals", 0.125, 'f', 2, "0.12"},
                    StWriting{"TieAtOneDecimal", 0.25, 'f', 1, "0.2"},
                    StWriting{"TieAtSixDigits", 100000.5, 'g', 6, "100000"},
                    StWriting{"TieAtTenDigits", 1234567890.5, 'g', 10, "1234567890"},
                    StWriting{"MinusHalfKeepsItsSign", -0.5, 'f', 0, "-0"},
                    StWriting{"MinusZeroHasNoSign", -0.0, 'g', 6, "0"},
                    StWriting{"MinusZeroWithDecimalsHasNoSign", -0.0, 'f', 2, "0.00"},
                    StWriting{"NotANumber", std::nan(""), 'g', 6, "nan"},
                    StWriting{"NegativeNotANumber", -std::nan(""), 'f', 2, "nan"},
                    StWriting{"Infinity", c_infinity, 'g', 6, "inf"},
                    StWriting{"MinusInfinity", -c_infinity, 'f', 2, "-inf"},
                    StWriting{"ShortForm", 0.1 + 0.2, 'g', 6, "0.3"},
                    StWriting{"TenDigits", 0.1 + 0.2, 'g', 10, "0.3"},
                    StWriting{"LargeValueTakesAnExponent", 1234567.0, 'g', 6, "1.23457e+06"},
                    StWriting{"Million", 1000000.0, 'g', 6, "1e+06"},
                    StWriting{"SmallValueTakesAnExponent", 0.00001, 'g', 6, "1e-05"},
                    StWriting{"ThreeDigitExponent", 1e100, 'g', 6, "1e+100"},
                    StWriting{"NoTrailingZeros", 2.5, 'g', 10, "2.5"},
                    StWriting{"FixedKeepsTrailingZeros", 14.44, 'f', 4, "14.4400"},
                    StWriting{"Scientific", 1.5, 'e', 3, "1.500e+00"},
                    StWriting{"UpperCase", 1000000.0, 'G', 6, "1E+06"},
                    StWriting{"UpperCaseScientific", 1.5, 'E', 3, "1.500E+00"},
                    StWriting{"NegativePrecisionMeansSix", 1.0 / 3.0, 'g', -1, "0.333333"},
                    StWriting{"ZeroDigitsMeansOne", 26.0, 'g', 0, "3e+01"},
                    StWriting{"LargestFixed", 1e22, 'f', 1, "10000000000000000000000.0"}),
    rowName<StWriting>);

TEST(NumberTest, DecimalsEndAt32767) {
    EXPECT_EQ(textOf(1.0, 'f', 32766).size(), 32766u + 2u);
    EXPECT_EQ(textOf(1.0, 'f', 32767).size(), 32767u + 2u);
    EXPECT_EQ(textOf(1.0, 'f', 32768).size(), 32767u + 2u);
}

TEST(NumberTest, LargestDoubleHas309DigitsBeforeThePoint) {
    const std::string text = textOf(std::numeric_limits<double>::max(), 'f', 2);
    EXPECT_EQ(text.size(), 309u + 3u);
    EXPECT_EQ(text.substr(0, 5), "17976");
    EXPECT_EQ(textOf(std::numeric_limits<double>::max(), 'f', 100).size(), 309u + 101u);
}

TEST(TextTest, AsciiOfNullIsEmpty) {
    EXPECT_EQ(ascii(QString()), "");
}

TEST(TextTest, AsciiKeepsLatin1AndMarksTheRest) {
    QString text = fromAscii("a\xe4");
    text += QChar(0x20ac);
    text += QChar(0x00ff);
    text += QChar(0x0100);
    EXPECT_EQ(ascii(text), "a\xe4?\xff?");
}

TEST(TextTest, EveryByteSurvivesTheWayThroughAText) {
    std::string bytes;
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    const QString text = fromAscii(bytes);
    EXPECT_EQ(qt3::length(text), 256);
    EXPECT_EQ(ascii(text), bytes);
}

TEST(TextTest, IsAsciiUpToCode127) {
    EXPECT_TRUE(qt3::isAscii(fromAscii("/data/image~1.rek\x7f")));
    EXPECT_FALSE(qt3::isAscii(fromAscii("/data/\x80.rek")));
    EXPECT_FALSE(qt3::isAscii(QString(QChar(0x0161))));
    EXPECT_TRUE(qt3::isAscii(QString()));
}

TEST(TextTest, IsLatin1UpToCode255) {
    EXPECT_TRUE(qt3::isLatin1(fromAscii("/data/\x80\xff.rek")));
    EXPECT_FALSE(qt3::isLatin1(fromAscii("a") + QChar(0x0100)));
    EXPECT_FALSE(qt3::isLatin1(QString(QChar(0x20ac))));
    EXPECT_TRUE(qt3::isLatin1(QString()));
}

TEST(TextTest, StripsAllWhiteSpaceAtBothEndsOnly) {
    EXPECT_EQ(ascii(qt3::stripWhiteSpace(fromAscii("\t \xa0"
                                                   "a b\r\n"))),
              "a b");
    EXPECT_EQ(ascii(qt3::stripWhiteSpace(QString())), "");
}

TEST(TextTest, LowerChangesLetters) {
    EXPECT_EQ(ascii(qt3::lower(fromAscii("Ab1\xc4."))), "ab1\xe4.");
}

TEST(TextTest, PlainMarkupShowsWhatLooksLikeMarkup) {
    EXPECT_EQ(ascii(qt3::plainMarkup(fromAscii("a <b>&amp;\nc"))),
              "<qt>a &lt;b>&amp;amp;<br>c</qt>");
    EXPECT_EQ(ascii(qt3::plainMarkup(QString())), "<qt></qt>");
}

TEST(TextTest, LowerKeepsTheLength) {
    const QString capitalDottedI(QChar(0x0130));
    EXPECT_EQ(qt3::length(qt3::lower(capitalDottedI)), 1);
}
