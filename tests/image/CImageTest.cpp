#include <ruqlib2image/CImage.h>

#include <ruqlib2core/CException.h>
#include <ruqlib2core/CValueLong.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <climits>
#include <utility>

using namespace TEVU;
using testing::HasSubstr;

/// Read by the address sanitizer, which otherwise ends the process when an allocation fails.
extern "C" __attribute__((visibility("default"))) const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "allocator_may_return_null=1";
}

namespace {

CImage numbered() {
    CImage image(IImage::CType::eUInt8, CSize(3, 2));
    for (std::size_t at = 0; at < image.ByteCount(); ++at)
        image.Data()[at] = static_cast<unsigned char>(at);
    image.Header().SetEntry("count", new CValueLong(6));
    return image;
}

std::string refusal(const IImage::CType& type, const CSize& size) {
    try {
        CImage image(type, size);
    } catch (const CException& exception) {
        return exception.Message();
    }
    return "no exception";
}

} // namespace

TEST(CImageTest, BeginsWithZeroPixelsAndAnEmptyHeader) {
    const CImage image(IImage::CType::eUInt16, CSize(5, 4, 3));

    EXPECT_EQ(image.Type(), IImage::CType(IImage::CType::eUInt16));
    EXPECT_EQ(image.Size(), CSize(5, 4, 3));
    ASSERT_EQ(image.ByteCount(), 5u * 4u * 3u * 2u);
    EXPECT_EQ(std::count(image.Data(), image.Data() + image.ByteCount(), 0), 120);
    EXPECT_EQ(image.Header().Size(), 0u);
}

TEST(CImageTest, ARowIsAnImageToo) {
    const CImage image(IImage::CType::eRGB8, CSize(7));

    EXPECT_EQ(image.Size(), CSize(7));
    EXPECT_EQ(image.ByteCount(), 21u);
}

TEST(CImageTest, CopyIsDeep) {
    CImage image = numbered();

    CImage copy(image);
    image.Data()[5] = 99;
    image.Header().SetEntry("count", new CValueLong(7));

    EXPECT_EQ(copy.Size(), CSize(3, 2));
    EXPECT_EQ(copy.Data()[4], 4);
    EXPECT_EQ(copy.Data()[5], 5);
    EXPECT_EQ(copy.Header().EntryLong("count", 0), 6);
}

TEST(CImageTest, AssignmentTakesOverEverything) {
    const CImage image = numbered();
    CImage other(IImage::CType::eFloat32, CSize(2, 2, 2));
    other.Header().SetEntry("old", new CValueLong(1));

    other = image;

    EXPECT_EQ(other.Type(), image.Type());
    EXPECT_EQ(other.Size(), image.Size());
    ASSERT_EQ(other.ByteCount(), image.ByteCount());
    EXPECT_NE(other.Data(), image.Data());
    EXPECT_TRUE(std::equal(image.Data(), image.Data() + 6, other.Data()));
    EXPECT_EQ(other.Header().Keys(), std::vector<CValue_Key>{"count"});
}

TEST(CImageTest, AssignmentToItselfChangesNothing) {
    CImage image = numbered();
    const CImage& same = image;

    image = same;

    EXPECT_EQ(image.Data()[5], 5);
    EXPECT_EQ(image.Header().EntryLong("count", 0), 6);
}

TEST(CImageTest, MovedFromImageIsEmpty) {
    CImage image = numbered();

    const CImage taken(std::move(image));

    EXPECT_EQ(taken.Data()[5], 5);
    EXPECT_EQ(taken.Header().EntryLong("count", 0), 6);
    EXPECT_EQ(image.ByteCount(), 0u);
    EXPECT_EQ(image.Data(), nullptr);
    EXPECT_EQ(image.Size(), CSize(0));
    EXPECT_EQ(image.Header().Size(), 0u);
}

TEST(CImageTest, AnExtentOfZeroGivesAnImageWithoutPixels) {
    const CImage image(IImage::CType::eUInt8, CSize(INT_MAX, INT_MAX, 0));

    EXPECT_EQ(image.ByteCount(), 0u);
    EXPECT_EQ(image.Data(), nullptr);
    EXPECT_EQ(CImage(image).Size(), image.Size());
}

TEST(CImageTest, NegativeExtentIsRefusedByName) {
    EXPECT_EQ(refusal(IImage::CType::eUInt8, CSize(4, -1)),
              "an image of 4 x -1 pixels of type UInt8 cannot be: an extent is negative");
    EXPECT_THAT(refusal(IImage::CType::eUInt8, CSize(0, -1)), HasSubstr("negative"));
}

TEST(CImageTest, SizeBeyondTheAddressSpaceIsRefused) {
    EXPECT_EQ(refusal(IImage::CType::eFloat32, CSize(INT_MAX, INT_MAX, INT_MAX)),
              "an image of 2147483647 x 2147483647 x 2147483647 pixels of type Float32 is too "
              "large for the memory");
}

TEST(CImageTest, SizeThatOverflowsToASmallNumberIsRefused) {
    // 2^64 bytes in all.
    EXPECT_THAT(refusal(IImage::CType::eInt32, CSize(1 << 30, 1 << 30, 4)), HasSubstr("too large"));
}

TEST(CImageTest, SizeBeyondTheMemoryIsRefused) {
    EXPECT_THAT(refusal(IImage::CType::eUInt8, CSize(1 << 30, 1 << 20)), HasSubstr("too large"));
}
