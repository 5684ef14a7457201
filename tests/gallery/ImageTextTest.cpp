#include "ImageText.h"

#include <gtest/gtest.h>
#include <ruqlib2image/CImage.h>
#include <set>

using Lines = std::vector<std::string>;
using TEVU::CSize;

TEST(ImageTextTest, EachTypeHasATextOfItsOwn) {
    std::set<std::string> texts;
    for (const TEVU::IImage::CType& type : allTypes())
        texts.insert(textOf(type));
    EXPECT_EQ(texts, (std::set<std::string>{"8-bit", "16-bit", "16-bit signed", "32-bit signed",
                                            "32-bit float", "RGB"}));
}

TEST(ImageTextTest, SizesAreWrittenAndReadInOneToThreeDimensions) {
    for (const CSize& size : {CSize(7), CSize(640, 480), CSize(96, 96, 9), CSize(0, 1)})
        EXPECT_EQ(sizeFrom(textOf(size)), size) << textOf(size);
    EXPECT_EQ(textOf(CSize(96, 96, 9)), "96 x 96 x 9");
}

TEST(ImageTextTest, BlanksInASizeDoNotMatter) {
    EXPECT_EQ(sizeFrom("640x480"), CSize(640, 480));
    EXPECT_EQ(sizeFrom("  640  x 480 "), CSize(640, 480));
}

TEST(ImageTextTest, AnythingElseIsNoSize) {
    for (const char* text : {"", " ", "x", "640 x", "x 480", "640 480", "1 x 2 x 3 x 4", "-1 x 2",
                             "1.5", "99999999999", "a", "640 * 480"})
        EXPECT_FALSE(sizeFrom(text).has_value()) << text;
}

TEST(ImageTextTest, ListIsCutAtCommas) {
    EXPECT_EQ(listFrom("a, b c ,,  ,d"), (Lines{"a", "b c", "d"}));
    EXPECT_EQ(listFrom(""), Lines{});
}

TEST(ImageTextTest, CaptionIsSizeAndType) {
    EXPECT_EQ(captionOf(TEVU::CImage(TEVU::IImage::CType::eRGB8, CSize(4, 3))), "4 x 3, RGB");
}
