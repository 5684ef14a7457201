#include "ImageFiles.h"
#include "RawTiff.h"

#include <NotOnWindows.h>

#include <ruqlib2image/COrunHeaderTools.h>

#include <cstdio>
#include <random>

using namespace TEVU;
using namespace image_files;
using testing::AnyOf;
using testing::HasSubstr;

namespace {

using Type = IImage::CType;

/// A file with everything in it, in one of the layouts.
struct StVictim {
    const char* name;
    std::string command; ///< Makes b.tif from a.tif, which CImageFile has written.
};

void PrintTo(const StVictim& row, std::ostream* out) {
    *out << row.name;
}

/// Damaged and hostile files: an exception or an image, never a crash, and nothing printed.
class CImageFileDamagedTest : public CImageFiles {
protected:
    std::string writtenFile() const {
        CImage image = patterned(Type::eUInt16, CSize(20, 17, 2));
        COrunHeaderTools::SetSpacing(image, 1e-6, 1e-6, 2e-6);
        COrunHeaderTools::SetCreator(image, "Ada", 3);
        COrunHeaderTools::SetDescription(image, "Cells", 5);
        COrunHeaderTools::ReplaceHistory(image, "Load\nCrop", 9);
        write(image, "a.tif");
        return dir.read("a.tif");
    }

    /// Whether it was read.
    bool reads(const std::string& content) const {
        // A new file each time: the disk is made to wait when an old one is written over.
        std::remove(dir.path("damaged.tif").c_str());
        dir.writeFile("damaged.tif", content);
        try {
            read("damaged.tif");
            return true;
        } catch (const CException&) {
            return false;
        }
    }

    std::string refusalOf(const std::string& content) const {
        return refusal(dir.writeFile("damaged.tif", content));
    }
};

class CImageFileVictimTest : public CImageFileDamagedTest,
                             public testing::WithParamInterface<StVictim> {
protected:
    std::string victim() const {
        writtenFile();
        run(GetParam().command);
        return dir.read("b.tif");
    }

    static bool isJpeg() { return std::string(GetParam().name) == "Jpeg"; }
};

using namespace raw_tiff;

} // namespace

TEST_P(CImageFileVictimTest, TruncatedAnywhereItIsRefused) {
    if (isJpeg())
        NOT_ON_WINDOWS(noJpeg);
    const std::string whole = victim();
    ASSERT_TRUE(reads(whole));

    testing::internal::CaptureStderr();
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(reads(whole.substr(0, length))) << length << " of " << whole.size();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_P(CImageFileVictimTest, FlippedBitsDoNoHarm) {
    if (isJpeg())
        NOT_ON_WINDOWS(noJpeg);
    const std::string whole = victim();
    std::mt19937 random(20260101);
    int refused = 0;

    testing::internal::CaptureStderr();
    for (int round = 0; round < 2000; ++round) {
        std::string damaged = whole;
        for (unsigned flips = 1 + random() % 8; flips > 0; --flips)
            damaged[random() % damaged.size()] ^= static_cast<char>(1u << random() % 8);
        refused += reads(damaged) ? 0 : 1;
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_GT(refused, 0);
}

TEST_P(CImageFileVictimTest, DamagedDirectoriesDoNoHarm) {
    if (isJpeg())
        NOT_ON_WINDOWS(noJpeg);
    const std::string whole = victim();
    std::mt19937 random(20260102);
    int refused = 0;

    testing::internal::CaptureStderr();
    for (int round = 0; round < 2000; ++round) {
        // Pixels are in the middle of the file; the header and the directories are at its ends.
        std::string damaged = whole;
        const std::size_t from = whole.size() - std::min<std::size_t>(whole.size(), 700);
        for (unsigned changes = 1 + random() % 3; changes > 0; --changes)
            damaged[from + random() % (whole.size() - from)] = static_cast<char>(random());
        refused += reads(damaged) ? 0 : 1;
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_GT(refused, 0);
}

INSTANTIATE_TEST_SUITE_P(
    AllLayouts, CImageFileVictimTest,
    testing::Values(StVictim{"AsWritten", "cp a.tif b.tif"},
                    StVictim{"BigTiff", "tiffcp -8 a.tif b.tif"},
                    StVictim{"BigEndianTiles", "tiffcp -B -t -w 16 -l 16 a.tif b.tif"},
                    StVictim{"Lzw", "tiffcp -c lzw:2 a.tif b.tif"},
                    StVictim{"Zip", "tiffcp -c zip a.tif b.tif"},
                    StVictim{"Jpeg", "convert a.tif -depth 8 -compress jpeg b.tif"},
                    StVictim{"Palette", "convert a.tif -depth 8 -colors 5 -type Palette b.tif"},
                    StVictim{"Group4", "convert a.tif -monochrome -compress group4 b.tif"},
                    StVictim{"Planes", "convert a.tif -fill red -tint 50 -depth 8 -interlace plane "
                                       "b.tif"}),
    [](const auto& row) { return row.param.name; });

TEST_F(CImageFileDamagedTest, HandmadePageIsRead) {
    EXPECT_TRUE(reads(page(8, 8, c_nPlain, 64).content()));
}

TEST_F(CImageFileDamagedTest, PagesInACircleAreRefused) {
    // The directory follows the header of eight bytes.
    EXPECT_THAT(refusalOf(page(8, 8, c_nPlain, 64).content(8)), HasSubstr("list of pages"));
}

TEST_F(CImageFileDamagedTest, NextPageOutsideTheFileIsRefused) {
    EXPECT_FALSE(reads(page(8, 8, c_nPlain, 64).content(0x7FFFFFFF)));
}

TEST_F(CImageFileDamagedTest, HugePlainPageIsRefused) {
    EXPECT_FALSE(reads(page(60000, 60000, c_nPlain, 0xFFFFFFFF).content()));
}

TEST_F(CImageFileDamagedTest, HugeCompressedPageIsRefusedBeforeItIsAllocated) {
    EXPECT_THAT(refusalOf(page(0x7FFFFFFF, 0x7FFFFFFF, c_nZip, 64).content()),
                AnyOf(HasSubstr("claims more pixels"), HasSubstr("large")));
}

TEST_F(CImageFileDamagedTest, EmptyPagesAreRefused) {
    EXPECT_FALSE(reads(page(0, 8, c_nPlain, 64).content()));
    EXPECT_FALSE(reads(page(8, 0, c_nPlain, 64).content()));
    EXPECT_FALSE(reads(page(0, 0, c_nPlain, 64).content()));
}

TEST_F(CImageFileDamagedTest, PixelDataOutsideTheFileIsRefused) {
    EXPECT_FALSE(reads(page(80, 80, c_nPlain, 6400).content()));
    EXPECT_THAT(refusalOf(page(8, 8, c_nZip, 6400).content()), HasSubstr("outside the file"));
}

TEST_F(CImageFileDamagedTest, DataThatIsNotCompressedAsItSaysIsRefused) {
    EXPECT_FALSE(reads(page(8, 8, c_nZip, 64).content()));
}

TEST_F(CImageFileDamagedTest, TinyTilesOfAHugePageAreRefused) {
    CRawTiff tiff;
    tiff.add(256, c_nLong, 1, 8000);
    tiff.add(257, c_nLong, 1, 8000);
    tiff.add(258, c_nShort, 1, 8);
    tiff.add(259, c_nShort, 1, c_nZip);
    tiff.add(262, c_nShort, 1, 1);
    tiff.add(277, c_nShort, 1, 1);
    tiff.add(322, c_nLong, 1, 1);
    tiff.add(323, c_nLong, 1, 1);
    tiff.add(324, c_nLong, 1, 8);
    tiff.add(325, c_nLong, 1, 64);
    EXPECT_FALSE(reads(tiff.content()));
}

TEST_F(CImageFileDamagedTest, HugeTileOfATinyPageIsRefused) {
    CRawTiff tiff;
    tiff.add(256, c_nLong, 1, 8);
    tiff.add(257, c_nLong, 1, 8);
    tiff.add(258, c_nShort, 1, 8);
    tiff.add(259, c_nShort, 1, c_nZip);
    tiff.add(262, c_nShort, 1, 1);
    tiff.add(277, c_nShort, 1, 1);
    tiff.add(322, c_nLong, 1, 0x7FFFFFF0);
    tiff.add(323, c_nLong, 1, 0x7FFFFFF0);
    tiff.add(324, c_nLong, 1, 8);
    tiff.add(325, c_nLong, 1, 64);
    EXPECT_FALSE(reads(tiff.content()));
}

TEST_F(CImageFileDamagedTest, DirectoryOfNothingIsRefused) {
    EXPECT_FALSE(reads(CRawTiff().content()));
}

TEST_F(CImageFileDamagedTest, BlankFacsimilePageIsRead) {
    // All white: a bit for a row, the greatest expansion that is meant seriously.
    run("(printf 'P4 4000 4000\n'; head -c 2000000 /dev/zero) >a.pbm");
    run("convert a.pbm -compress group4 a.tif");

    const CImage image = read("a.tif");

    EXPECT_EQ(image.Size(), CSize(4000, 4000));
    EXPECT_EQ(image.Data()[image.ByteCount() - 1], 255);
}
