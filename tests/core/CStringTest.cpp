#include <ruqlib2core/CString.h>

#include <gtest/gtest.h>

#include <ostream>

using TEVU::CString;

namespace {

struct StArgCase {
    const char* name;
    const char* text;
    const char* value;
    const char* expected;
};

void PrintTo(const StArgCase& row, std::ostream* stream) {
    *stream << row.name;
}

class CStringArgTest : public testing::TestWithParam<StArgCase> {};

} // namespace

TEST_P(CStringArgTest, FillsTheLowestMarker) {
    EXPECT_EQ(CString(GetParam().text).Arg(GetParam().value), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    CStringTest, CStringArgTest,
    testing::Values(StArgCase{"OneMarker", "size %1!", "3", "size 3!"},
                    StArgCase{"LowestFirstWhereverItStands", "%3 %2 %7", "x", "%3 x %7"},
                    StArgCase{"EveryOccurrence", "%1 %2 %1", "x", "x %2 x"},
                    StArgCase{"AdjacentMarkers", "%1%1%2", "x", "xx%2"},
                    StArgCase{"NoMarkerLeavesTheText", "plain", "x", "plain"},
                    StArgCase{"EmptyText", "", "x", ""}, StArgCase{"EmptyValue", "a%1b", "", "ab"},
                    StArgCase{"TwoDigits", "%12 %10", "x", "%12 x"},
                    StArgCase{"TwoDigitsAreNotOneAndADigit", "%12 %1", "x", "%12 x"},
                    StArgCase{"TwentyIsNotNineteen", "%20 %19", "x", "%20 x"},
                    StArgCase{"ThirdDigitIsText", "%123", "x", "x3"},
                    StArgCase{"ZeroIsNoMarker", "%0 %1", "x", "%0 x"},
                    StArgCase{"LeadingZeroIsNoMarker", "%01", "x", "%01"},
                    StArgCase{"PercentSignIsNoEscape", "%%1", "x", "%x"},
                    StArgCase{"PercentAtTheEnd", "100% of %1%", "x", "100% of x%"},
                    StArgCase{"PercentBeforeALetter", "%a%1", "x", "%ax"},
                    StArgCase{"InsertedTextIsNotFilledByTheSameCall", "%1%2", "%1", "%1%2"},
                    StArgCase{"NinetyNineIsTheHighest", "%99", "x", "x"}),
    [](const testing::TestParamInfo<StArgCase>& row) { return std::string(row.param.name); });

TEST(CStringTest, CallsFillOneMarkerAfterTheOther) {
    EXPECT_EQ(CString("ChangeSpacing(%1->%2)").Arg("1 mm").Arg("2 mm"),
              "ChangeSpacing(1 mm->2 mm)");
}

TEST(CStringTest, InsertedMarkerIsTextThatTheNextCallFills) {
    EXPECT_EQ(CString("%1->%2").Arg("%2").Arg("x"), "x->x");
}

TEST(CStringTest, NulBytesAreKept) {
    const std::string nul("\0", 1);
    EXPECT_EQ(CString(nul + "%1" + nul).Arg(nul), nul + nul + nul);
}

TEST(CStringTest, ArgLeavesItsOriginalAlone) {
    const CString text("%1");
    EXPECT_EQ(text.Arg("x"), "x");
    EXPECT_EQ(text, "%1");
}

TEST(CStringTest, ConvertsFromAndToStdString) {
    const std::string plain = CString("a");
    EXPECT_EQ(CString(plain), "a");
    EXPECT_EQ(CString(static_cast<const char*>(nullptr)), "");
    EXPECT_EQ(CString::NPOS, std::string::npos);
}
