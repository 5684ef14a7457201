#include <HeaderText.h>

#include <ruqlib2core/CException.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>

#include <gtest/gtest.h>

using namespace TEVU;

namespace {

CValueMap everything() {
    CValueVector list;
    list.SetEntry(2, new CValueDouble(1.5));
    CValueMap header;
    header.SetEntry("flag", new CValueBool(true));
    header.SetEntry("list", list.Clone());
    header.SetEntry("map", new CValueMap);
    header.SetEntry("number", new CValueLong(-3));
    header.SetEntry("text", new CValueString("a=\xff"));
    return header;
}

const char* const c_sEverything =
    "m(flag=b1,list=v(2=d3FF8000000000000),map=m(),number=l-3,text=sa%3D%FF)";

std::string nested(unsigned depth) {
    std::string text = "m()";
    for (unsigned level = 1; level < depth; ++level)
        text = "m(in=" + text + ")";
    return text;
}

} // namespace

TEST(HeaderTextTest, IsThePublishedForm) {
    EXPECT_EQ(headerText(everything()), c_sEverything);
}

TEST(HeaderTextTest, ParsedTextGivesTheSameText) {
    const auto header = parseHeaderText(c_sEverything);

    ASSERT_TRUE(header);
    EXPECT_EQ(headerText(*header), c_sEverything);
}

TEST(HeaderTextTest, CutOffAnywhereIsNoHeader) {
    const std::string text = c_sEverything;
    for (std::size_t length = 0; length < text.size(); ++length)
        EXPECT_FALSE(parseHeaderText(text.substr(0, length))) << length;
}

TEST(HeaderTextTest, WhatIsNotOfTheFormIsNoHeader) {
    for (const char* text : {"",
                             "b1",
                             "v()",
                             "m",
                             "m()x",
                             "m(a)",
                             "m(a=)",
                             "m(a=b2)",
                             "m(a=l)",
                             "m(a=l99999999999999999999)",
                             "m(a=d12)",
                             "m(a=d3FF800000000000G)",
                             "m(a=s%4)",
                             "m(a=s%4G)",
                             "m(a=s )",
                             "m(a=p0)",
                             "m(a=b1,)",
                             "m(,a=b1)",
                             "m(a=v(x=b1))",
                             "m(a=v(-1=b1))",
                             "m(a=b1;b=b1)",
                             "m((a=b1)"})
        EXPECT_FALSE(parseHeaderText(text)) << text;
}

TEST(HeaderTextTest, DepthEndsWhereTheConstantSays) {
    EXPECT_TRUE(parseHeaderText(nested(c_nMaxHeaderDepth)));
    EXPECT_FALSE(parseHeaderText(nested(c_nMaxHeaderDepth + 1)));
    EXPECT_FALSE(parseHeaderText(nested(10000)));
}

TEST(HeaderTextTest, WhatCanBeWrittenCanBeRead) {
    const CValueMap deepest = *parseHeaderText(nested(c_nMaxHeaderDepth));
    CValueMap deeper;
    deeper.SetEntry("in", deepest.Clone());

    EXPECT_EQ(headerText(deepest), nested(c_nMaxHeaderDepth));
    EXPECT_THROW(headerText(deeper), CException);
}
