#include <ruqlib2image/IImage.h>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

using namespace TEVU;

TEST(IImageTest, TypesEqualOnlyThemselves) {
    const IImage::CType type = IImage::CType::eInt16;

    EXPECT_TRUE(type == IImage::CType::eInt16);
    EXPECT_TRUE(IImage::CType::eInt16 == type);
    EXPECT_FALSE(type != IImage::CType::eInt16);
    EXPECT_TRUE(type != IImage::CType::eUInt16);
}

TEST(IImageTest, TypesCanBeKeptInAList) {
    std::vector<IImage::CType> allowed;

    allowed.push_back(IImage::CType::eUInt8);
    allowed.push_back(IImage::CType::eRGB8);

    EXPECT_EQ(allowed[1], IImage::CType(IImage::CType::eRGB8));
}

namespace {

struct StTypeCase {
    IImage::CType::EnType type;
    std::size_t bytes;
    std::string name;
};

void PrintTo(const StTypeCase& row, std::ostream* out) {
    *out << row.name;
}

class IImageTypeTest : public testing::TestWithParam<StTypeCase> {};

} // namespace

TEST_P(IImageTypeTest, KnowsItsNameAndBytes) {
    const IImage::CType type = GetParam().type;

    EXPECT_EQ(type.Enumerator(), GetParam().type);
    EXPECT_EQ(type.BytesPerPixel(), GetParam().bytes);
    EXPECT_EQ(type.Name(), GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(AllTypes, IImageTypeTest,
                         testing::Values(StTypeCase{IImage::CType::eUInt8, 1, "UInt8"},
                                         StTypeCase{IImage::CType::eUInt16, 2, "UInt16"},
                                         StTypeCase{IImage::CType::eInt16, 2, "Int16"},
                                         StTypeCase{IImage::CType::eInt32, 4, "Int32"},
                                         StTypeCase{IImage::CType::eFloat32, 4, "Float32"},
                                         StTypeCase{IImage::CType::eRGB8, 3, "RGB8"}),
                         [](const auto& row) { return row.param.name; });
