#include "MessageText.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

namespace {

struct StFilling {
    const char* name;
    const char* pattern;
    std::vector<std::string> arguments;
    const char* text;
};

void PrintTo(const StFilling& row, std::ostream* out) {
    *out << row.name;
}

class MessageTextTest : public testing::TestWithParam<StFilling> {};

TEST_P(MessageTextTest, IsThePatternWithItsArguments) {
    EXPECT_EQ(TEVU::filledIn(GetParam().pattern, GetParam().arguments), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MessageTextTest,
    testing::Values(StFilling{"WithoutAMarker", "plain", {"a"}, "plain"},
                    StFilling{"Empty", "", {"a"}, ""},
                    StFilling{"OneMarker", "File %1!", {"a.rek"}, "File a.rek!"},
                    StFilling{"MarkerAlone", "%1", {"a"}, "a"},
                    StFilling{"EachItsOwn", "%1-%2-%3", {"a", "b", "c"}, "a-b-c"},
                    StFilling{"InAnyOrder", "%3%1%2", {"a", "b", "c"}, "cab"},
                    StFilling{"EveryOccurrence", "%1 %1", {"a"}, "a a"},
                    StFilling{
                        "NinthIsTheLast", "%9", {"a", "b", "c", "d", "e", "f", "g", "h", "i"}, "i"},
                    StFilling{"OneDigitOnly", "%12", {"a"}, "a2"},
                    StFilling{"ArgumentThatLooksLikeAMarkerStays", "%1 %2", {"%2", "%1"}, "%2 %1"},
                    StFilling{"EmptyArgument", "<%1>", {""}, "<>"},
                    StFilling{"MarkerWithoutItsArgumentStays", "%1 %2", {"a"}, "a %2"},
                    StFilling{"MarkersWithoutArgumentsStay", "%1", {}, "%1"},
                    StFilling{"ZeroIsNoMarker", "%0", {"a"}, "%0"},
                    StFilling{"LetterIsNoMarker", "%a%1", {"b"}, "%ab"},
                    StFilling{"PercentSignAtTheEndStays", "100%", {"a"}, "100%"},
                    StFilling{"PercentSignBeforeAMarkerStays", "%%1", {"a"}, "%a"},
                    StFilling{"DigitAloneStays", "x1 %1", {"a"}, "x1 a"}),
    [](const testing::TestParamInfo<StFilling>& row) { return std::string(row.param.name); });

} // namespace
