#include "OpenImages.h"

#include <CAvailableImages.h>
#include <gtest/gtest.h>
#include <vector>

using TEVU::CImage;
using TEVU::CSize;
using Type = TEVU::IImage::CType;

namespace {

std::vector<std::string> names(const OpenImages& images) {
    std::vector<std::string> names;
    for (const auto& entry : TEVU::CAvailableImages(false, false)(images.Input()))
        names.push_back(entry.first);
    return names;
}

} // namespace

TEST(OpenImagesTest, NothingIsOpenAtFirst) {
    const OpenImages images;
    EXPECT_EQ(images.Count(), 0u);
    EXPECT_TRUE(names(images).empty());
}

TEST(OpenImagesTest, ImagesOfOneLabelAreNumberedFromTheSecondOn) {
    OpenImages images;
    for (const char* label : {"a.tif", "b.tif", "a.tif", "a.tif"})
        images.Add(label, CImage(Type::eUInt8, CSize(2, 2)));
    EXPECT_EQ(images.Count(), 4u);
    EXPECT_EQ(names(images), (std::vector<std::string>{"a.tif", "a.tif 2", "a.tif 3", "b.tif"}));
}

TEST(OpenImagesTest, EachNameLeadsToItsImageHoweverManyFollow) {
    OpenImages images;
    for (int i = 0; i < 1000; ++i)
        images.Add("image", CImage(Type::eUInt8, CSize(1 + i)));
    const auto available = TEVU::CAvailableImages(false, false)(images.Input());
    EXPECT_EQ(available.at("image")->Size(), CSize(1));
    EXPECT_EQ(available.at("image 2")->Size(), CSize(2));
    EXPECT_EQ(available.at("image 1000")->Size(), CSize(1000));
}
