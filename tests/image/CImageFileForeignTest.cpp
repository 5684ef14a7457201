#include "ImageFiles.h"
#include "RawTiff.h"

#include <NotOnWindows.h>
#include <ruqlib2image/COrunHeaderTools.h>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace TEVU;
using namespace image_files;
using testing::HasSubstr;

namespace {

using Type = IImage::CType;

/// Files that other programs have written or changed.
class CImageFileForeignTest : public CImageFiles {
protected:
    /// Three pages with a description.
    CImage stackWith(const std::string& description, const std::string& changes = "true") {
        run("convert -size 4x3 xc:black xc:gray xc:white -depth 8 s.tif");
        dir.writeFile("description", description);
        run("tiffset -d 0 -sf 270 description s.tif && " + changes);
        return read("s.tif");
    }
};

std::vector<double> spacingOf(const CImage& image) {
    double x = 0, y = 0, z = 0;
    if (!COrunHeaderTools::GetSpacing(image, x, y, z))
        return {};
    return {x, y, z};
}

std::string descriptionOf(const CImage& image) {
    std::string text = "none";
    COrunHeaderTools::GetDescription(image, text);
    return text;
}

void expectSpacing(const CImage& image, const std::vector<double>& expected) {
    const std::vector<double> spacing = spacingOf(image);
    ASSERT_EQ(spacing.size(), expected.size());
    for (std::size_t axis = 0; axis < spacing.size(); ++axis)
        EXPECT_NEAR(spacing[axis], expected[axis], expected[axis] * 1e-6) << "axis " << axis;
}

const char* const c_sGrey8 = "-depth 8 gray:";
const char* const c_sGrey16 = "-depth 16 -endian LSB gray:";
const char* const c_sColours = "-depth 8 rgb:";

/// A file by ImageMagick, which then tells its pixels.
struct StMagick {
    const char* name;
    std::string source;
    std::string options;
    Type::EnType type;
    const char* raw;
};

void PrintTo(const StMagick& row, std::ostream* out) {
    *out << row.name;
}

class CImageFileMagickTest : public CImageFiles, public testing::WithParamInterface<StMagick> {};

/// A change of the layout by libtiff's own tool.
struct StCopy {
    const char* name;
    std::string options;
};

void PrintTo(const StCopy& row, std::ostream* out) {
    *out << row.name;
}

class CImageFileCopyTest : public CImageFiles, public testing::WithParamInterface<StCopy> {};

struct StUnitName {
    const char* name;
    std::string text;
    double metres;
};

void PrintTo(const StUnitName& row, std::ostream* out) {
    *out << row.name;
}

class CImageFileUnitTest : public CImageFileForeignTest,
                           public testing::WithParamInterface<StUnitName> {};

struct StRefused {
    const char* name;
    std::string command; ///< Makes a.tif.
    std::string cause;
};

void PrintTo(const StRefused& row, std::ostream* out) {
    *out << row.name;
}

class CImageFileRefusedTest : public CImageFiles, public testing::WithParamInterface<StRefused> {};

} // namespace

TEST_P(CImageFileMagickTest, HasThePixelsThatImageMagickTells) {
    if (std::string(GetParam().options).find("jpeg") != std::string::npos)
        NOT_ON_WINDOWS(noJpeg);
    run("convert -size 37x29 " + GetParam().source + " " + GetParam().options + " a.tif");
    run("convert a.tif -alpha off " + std::string(GetParam().raw) + "a.raw");

    const CImage image = read("a.tif");

    EXPECT_EQ(image.Type(), Type(GetParam().type)) << image.Type().Name();
    EXPECT_EQ(image.Size(), CSize(37, 29));
    EXPECT_EQ(pixelsOf<unsigned char>(image), bytesOf(dir.read("a.raw")));
}

const std::string c_sGradient = "gradient:";
const std::string c_sRainbow = "gradient:red-blue";
const std::string c_sSeeThrough = "-channel A -evaluate set 40% +channel ";

INSTANTIATE_TEST_SUITE_P(
    AllLayouts, CImageFileMagickTest,
    testing::Values(
        StMagick{"Grey8", c_sGradient, "-depth 8 -compress none", Type::eUInt8, c_sGrey8},
        StMagick{"Grey16", c_sGradient, "-depth 16 -compress none", Type::eUInt16, c_sGrey16},
        StMagick{"Grey16BigEndian", c_sGradient, "-depth 16 -endian msb", Type::eUInt16, c_sGrey16},
        StMagick{"Grey16LittleEndian", c_sGradient, "-depth 16 -endian lsb", Type::eUInt16,
                 c_sGrey16},
        StMagick{"Grey4", c_sGradient, "-depth 4", Type::eUInt8, c_sGrey8},
        StMagick{"Grey2", c_sGradient, "-depth 2", Type::eUInt8, c_sGrey8},
        StMagick{"Lzw", c_sGradient, "-depth 16 -compress lzw", Type::eUInt16, c_sGrey16},
        StMagick{"Zip", c_sRainbow, "-depth 8 -compress zip", Type::eRGB8, c_sColours},
        StMagick{"RunLengths", c_sRainbow, "-depth 8 -compress rle", Type::eRGB8, c_sColours},
        StMagick{"Jpeg", c_sGradient, "-depth 8 -compress jpeg", Type::eUInt8, c_sGrey8},
        StMagick{"JpegColours", c_sRainbow, "-depth 8 -compress jpeg", Type::eRGB8, c_sColours},
        StMagick{"Bilevel", c_sGradient, "-monochrome -depth 1", Type::eUInt8, c_sGrey8},
        StMagick{"Group4", c_sGradient, "-monochrome -compress group4", Type::eUInt8, c_sGrey8},
        StMagick{"Fax", c_sGradient, "-monochrome -compress fax", Type::eUInt8, c_sGrey8},
        StMagick{"WhiteIsZero8", c_sGradient, "-depth 8 -define quantum:polarity=min-is-white",
                 Type::eUInt8, c_sGrey8},
        StMagick{"WhiteIsZero16", c_sGradient, "-depth 16 -define quantum:polarity=min-is-white",
                 Type::eUInt16, c_sGrey16},
        StMagick{"Palette4", c_sRainbow, "-colors 9 -depth 8 -type Palette", Type::eRGB8,
                 c_sColours},
        StMagick{"Palette8", c_sRainbow, "-resize 41x37! -type Palette -depth 8 -extent 37x29",
                 Type::eRGB8, c_sColours},
        StMagick{"Colours", c_sRainbow, "-depth 8", Type::eRGB8, c_sColours},
        StMagick{"Planes", c_sRainbow, "-depth 8 -interlace plane", Type::eRGB8, c_sColours},
        StMagick{"Tiles", c_sGradient, "-depth 16 -define tiff:tile-geometry=16x16", Type::eUInt16,
                 c_sGrey16},
        StMagick{"TilesOfColours", c_sRainbow,
                 "-depth 8 -compress zip -define tiff:tile-geometry=16x32", Type::eRGB8,
                 c_sColours},
        StMagick{"ColoursWithAlpha", c_sRainbow, c_sSeeThrough + "-depth 8", Type::eRGB8,
                 c_sColours},
        StMagick{"GreyWithAlpha", c_sGradient, c_sSeeThrough + "-depth 16", Type::eUInt16,
                 c_sGrey16},
        StMagick{"OneRowAStrip", c_sGradient, "-depth 8 -define tiff:rows-per-strip=1",
                 Type::eUInt8, c_sGrey8}),
    [](const auto& row) { return row.param.name; });

TEST_P(CImageFileCopyTest, HasTheSamePixelsInEveryType) {
    for (const Type::EnType type :
         {Type::eUInt8, Type::eUInt16, Type::eInt16, Type::eInt32, Type::eFloat32, Type::eRGB8}) {
        SCOPED_TRACE(Type(type).Name());
        const CImage image = patterned(type, CSize(37, 29, 2));
        write(image, "a.tif");

        run("tiffcp " + GetParam().options + " a.tif b.tif");

        const CImage copy = read("b.tif");
        EXPECT_EQ(copy.Type(), Type(type));
        EXPECT_EQ(copy.Size(), image.Size());
        EXPECT_EQ(pixelsOf<unsigned char>(copy), pixelsOf<unsigned char>(image));
    }
}

INSTANTIATE_TEST_SUITE_P(
    AllLayouts, CImageFileCopyTest,
    testing::Values(StCopy{"BigEndian", "-B"}, StCopy{"LittleEndian", "-L"},
                    StCopy{"BigTiff", "-8"}, StCopy{"BigEndianBigTiff", "-8 -B"},
                    StCopy{"Tiles", "-t -w 16 -l 32"},
                    StCopy{"BigEndianTiles", "-B -t -w 16 -l 16"}, StCopy{"Lzw", "-c lzw"},
                    StCopy{"LzwWithPredictor", "-c lzw:2"}, StCopy{"ZipBigEndian", "-c zip -B"},
                    StCopy{"Packbits", "-c packbits"}, StCopy{"ShortStrips", "-r 3"},
                    StCopy{"OtherBitOrder", "-f lsb2msb -c lzw"}),
    [](const auto& row) { return row.param.name; });

TEST_F(CImageFileForeignTest, PlanesHaveTheSamePixels) {
    const CImage image = patterned(Type::eRGB8, CSize(37, 29));
    write(image, "a.tif");

    run("tiffcp -p separate a.tif planes.tif");
    run("tiffcp -p separate -t -w 16 -l 16 -c lzw a.tif tiles.tif");

    EXPECT_EQ(pixelsOf<unsigned char>(read("planes.tif")), pixelsOf<unsigned char>(image));
    EXPECT_EQ(pixelsOf<unsigned char>(read("tiles.tif")), pixelsOf<unsigned char>(image));
}

TEST_F(CImageFileForeignTest, TwelveBitsKeepTheirNumbers) {
    run("convert -size 37x29 gradient: -depth 12 a.tif");
    run("convert a.tif -depth 16 -endian LSB gray:a.raw");
    const std::string raw = dir.read("a.raw");
    std::vector<std::uint16_t> expected(raw.size() / 2);
    std::memcpy(expected.data(), raw.data(), raw.size());
    for (std::uint16_t& number : expected)
        number = static_cast<std::uint16_t>(std::lround(number * 4095.0 / 65535.0));

    const CImage image = read("a.tif");

    EXPECT_EQ(image.Type(), Type(Type::eUInt16));
    EXPECT_EQ(pixelsOf<std::uint16_t>(image), expected);
    EXPECT_EQ(*std::max_element(expected.begin(), expected.end()), 4095);
}

TEST_F(CImageFileForeignTest, SignedBytesKeepTheirNumbers) {
    raw_tiff::StPage page;
    page.width = 4;
    page.height = 1;
    page.bytes = 4;
    page.format = 2;
    dir.writeFile("a.tif", raw_tiff::page(page).content(0, std::string("\0\x7f\x80\xff", 4)));

    EXPECT_EQ(read("a.tif").Type(), Type(Type::eInt16));
    EXPECT_EQ(pixelsOf<std::int16_t>(read("a.tif")), (std::vector<std::int16_t>{0, 127, -128, -1}));
}

TEST_F(CImageFileForeignTest, DoublesBecomeTheNearestFloats) {
    const double numbers[] = {0.1, -1e-300, 1e10, 1e300};
    raw_tiff::StPage page;
    page.width = 2;
    page.height = 2;
    page.bits = 64;
    page.bytes = sizeof numbers;
    page.format = 3;
    dir.writeFile("a.tif",
                  raw_tiff::page(page).content(
                      0, std::string(reinterpret_cast<const char*>(numbers), sizeof numbers)));

    EXPECT_EQ(read("a.tif").Type(), Type(Type::eFloat32));
    EXPECT_EQ(pixelsOf<float>(read("a.tif")),
              (std::vector<float>{0.1f, -0.0f, 1e10f, std::numeric_limits<float>::infinity()}));
}

TEST_F(CImageFileForeignTest, TenBitsAreUnpackedOverTheirBytes) {
    raw_tiff::StPage page;
    page.width = 3;
    page.height = 2;
    page.bits = 10;
    page.bytes = 8;
    // A row is 30 bits and begins on a byte: 1, 1023, 512 and 0, 1, 2.
    dir.writeFile("a.tif", raw_tiff::page(page).content(
                               0, std::string("\x00\x7f\xf8\x00\x00\x00\x10\x08", 8)));

    EXPECT_EQ(pixelsOf<std::uint16_t>(read("a.tif")),
              (std::vector<std::uint16_t>{1, 1023, 512, 0, 1, 2}));
}

TEST_F(CImageFileForeignTest, SignedSamplesWithWhiteAsTheSmallestAreRefused) {
    raw_tiff::StPage page;
    page.photometric = 0;
    page.format = 2;
    dir.writeFile("a.tif", raw_tiff::page(page).content());

    EXPECT_THAT(refusal(dir.path("a.tif")), HasSubstr("white as the smallest value"));
}

TEST_F(CImageFileForeignTest, HalfFloatsAreRefused) {
    raw_tiff::StPage page;
    page.width = 4;
    page.bits = 16;
    page.format = 3;
    dir.writeFile("a.tif", raw_tiff::page(page).content());

    EXPECT_THAT(refusal(dir.path("a.tif")),
                HasSubstr("floating-point samples of 16 bits are not supported"));
}

TEST_F(CImageFileForeignTest, SeveralPagesAreOneStack) {
    run("convert -size 4x3 xc:black xc:white -depth 8 a.tif");

    const CImage image = read("a.tif");

    EXPECT_EQ(image.Size(), CSize(4, 3, 2));
    EXPECT_EQ(image.Data()[11], 0);
    EXPECT_EQ(image.Data()[12], 255);
}

TEST_F(CImageFileForeignTest, PreviewsAndMasksAreSkipped) {
    run("convert -size 2x2 xc:red -depth 8 preview.tif");
    run("convert -size 4x3 xc:gray -depth 8 page.tif");
    run("tiffcp preview.tif page.tif preview.tif page.tif a.tif");

    run("tiffset -d 0 -s 254 1 a.tif && tiffset -d 2 -s 254 4 a.tif");

    EXPECT_EQ(read("a.tif").Size(), CSize(4, 3, 2));
    EXPECT_EQ(read("a.tif").Type(), Type(Type::eUInt8));
}

TEST_F(CImageFileForeignTest, FileOfPreviewsIsRefused) {
    run("convert -size 2x2 xc:gray -depth 8 a.tif && tiffset -s 254 1 a.tif");

    EXPECT_THAT(refusal(dir.path("a.tif")), HasSubstr("only previews and masks"));
}

TEST_F(CImageFileForeignTest, PagesOfDifferentSizesAreRefused) {
    run("convert -size 4x3 xc:gray -size 3x4 xc:gray -depth 8 a.tif");

    EXPECT_EQ(refusal(dir.path("a.tif")),
              "cannot read \"" + dir.path("a.tif") +
                  "\": its pages differ: page 1 has 4 x 3 UInt8 pixels, page 2 has 3 x 4 UInt8");
}

TEST_F(CImageFileForeignTest, PagesOfDifferentTypesAreRefused) {
    run("convert -size 4x3 xc:gray -depth 8 a.tif && convert -size 4x3 xc:red -depth 8 b.tif");
    run("tiffcp a.tif b.tif c.tif");

    EXPECT_THAT(refusal(dir.path("c.tif")), HasSubstr("page 2 has 4 x 3 RGB8"));
}

TEST_P(CImageFileRefusedTest, IsRefusedByName) {
    if (std::string(GetParam().command).find("mkfifo") != std::string::npos)
        NOT_ON_WINDOWS(noPipes);
    if (std::string(GetParam().command).find("ln -s") != std::string::npos)
        NOT_ON_WINDOWS(noLinks);
    run(GetParam().command);

    EXPECT_EQ(refusal(dir.path("a.tif")),
              "cannot read \"" + dir.path("a.tif") + "\": " + GetParam().cause);
}

INSTANTIATE_TEST_SUITE_P(
    AllCauses, CImageFileRefusedTest,
    testing::Values(
        StRefused{"Colours16", "convert -size 4x3 gradient:red-blue -depth 16 a.tif",
                  "unsigned samples of 16 bits are not supported for colours"},
        StRefused{"Grey32", "convert -size 4x3 gradient: -depth 32 a.tif",
                  "unsigned samples of 32 bits are not supported"},
        StRefused{"Cmyk", "convert -size 4x3 gradient: -colorspace CMYK -depth 8 a.tif",
                  "CMYK colours are not supported"},
        StRefused{"Lab", "convert -size 4x3 gradient:red-blue -colorspace Lab -depth 8 a.tif",
                  "L*a*b* colours are not supported"},
        StRefused{"MoreSamples",
                  "convert -size 4x3 gradient:red-blue -depth 8 a.tif && tiffset -s 262 1 a.tif",
                  "pixels of 3 samples are not supported here"},
        StRefused{"NoTiff", "echo 'This is a text.' >a.tif",
                  "Not a TIFF or MDI file, bad magic number 26708 (0x6854)"},
        StRefused{"Empty", "touch a.tif", "Cannot read TIFF header"},
        StRefused{"Folder", "mkdir a.tif", "it is no ordinary file"},
        StRefused{"Pipe", "mkfifo a.tif", "it is no ordinary file"},
        StRefused{"Missing", "true", "there is no such file"},
        StRefused{"BelowAFile", "ln -s /dev/null/none a.tif", "there is no such file"},
        StRefused{"LinkToItself", "ln -s a.tif a.tif", "Too many levels of symbolic links"}),
    [](const auto& row) { return row.param.name; });

TEST_F(CImageFileForeignTest, FailureIsAnExceptionOfTheReader) {
    try {
        read("none.tif");
        FAIL() << "it was read";
    } catch (const CException& exception) {
        EXPECT_EQ(exception.Place(), "CImageFile::Read");
        ASSERT_TRUE(exception.Cause());
        EXPECT_EQ(exception.Cause()->Message(), "there is no such file");
    }
}

TEST_F(CImageFileForeignTest, PixelsPerInchAreTheSpacing) {
    run("convert -size 4x3 gradient: -density 300x150 -units PixelsPerInch a.tif");

    expectSpacing(read("a.tif"), {0.0254 / 300, 0.0254 / 150, 1});
}

TEST_F(CImageFileForeignTest, PixelsPerCentimetreAreTheSpacing) {
    run("convert -size 4x3 gradient: -density 200 -units PixelsPerCentimeter a.tif");

    expectSpacing(read("a.tif"), {5e-5, 5e-5, 1});
}

TEST_F(CImageFileForeignTest, ResolutionWithoutUnitIsNoSpacing) {
    run("convert -size 4x3 gradient: -density 200 a.tif && tiffset -s 296 1 a.tif");

    EXPECT_EQ(spacingOf(read("a.tif")), std::vector<double>());
}

TEST_F(CImageFileForeignTest, FileWithoutResolutionHasNoSpacing) {
    run("convert -size 4x3 gradient: a.tif");

    EXPECT_EQ(spacingOf(read("a.tif")), std::vector<double>());
}

TEST_F(CImageFileForeignTest, ResolutionOfZeroIsNoSpacing) {
    run("convert -size 4x3 gradient: -density 200 a.tif && tiffset -s 282 0 a.tif && "
        "tiffset -s 283 0 a.tif");

    EXPECT_EQ(spacingOf(read("a.tif")), std::vector<double>());
}

TEST_F(CImageFileForeignTest, PagesWithoutLinesAreOneMetreApart) {
    run("convert -size 4x3 xc:gray xc:gray -density 200 -units PixelsPerCentimeter a.tif");

    expectSpacing(read("a.tif"), {5e-5, 5e-5, 1});
}

TEST_F(CImageFileForeignTest, ArtistIsTheCreator) {
    run("convert -size 4x3 gradient: a.tif && tiffset -s 315 'Ada Lovelace' a.tif");

    std::string creator;
    ASSERT_TRUE(COrunHeaderTools::GetCreator(read("a.tif"), creator));
    EXPECT_EQ(creator, "Ada Lovelace");
}

TEST_F(CImageFileForeignTest, DescriptionIsTakenAsItIs) {
    run("convert -size 4x3 gradient: -set comment 'A cell.\nspacing=5' a.tif");

    EXPECT_EQ(descriptionOf(read("a.tif")), "A cell.\nspacing=5");
}

TEST_F(CImageFileForeignTest, CalibratedImageJStack) {
    const CImage image = stackWith("ImageJ=1.53t\nimages=3\nslices=3\nunit=micron\nspacing=2.0\n"
                                   "loop=false\nmin=0.0\nmax=255.0\n",
                                   "for page in 0 1 2; do tiffset -d $page -s 282 4 s.tif; "
                                   "tiffset -d $page -s 283 2 s.tif; "
                                   "tiffset -d $page -s 296 1 s.tif; done");

    EXPECT_EQ(image.Size(), CSize(4, 3, 3));
    expectSpacing(image, {0.25e-6, 0.5e-6, 2e-6});
    EXPECT_EQ(descriptionOf(image), "none");
}

TEST_F(CImageFileForeignTest, ImageJStackInInches) {
    const CImage image = stackWith("ImageJ=1.53t\nimages=3\nunit=inch\nspacing=0.5\n",
                                   "tiffset -s 282 100 s.tif && tiffset -s 283 100 s.tif && "
                                   "tiffset -s 296 2 s.tif");

    expectSpacing(image, {0.000254, 0.000254, 0.0127});
}

TEST_F(CImageFileForeignTest, LinesWithoutResolutionMeanOnePixelAUnit) {
    expectSpacing(stackWith("ImageJ=1.53t\nimages=3\nunit=mm\nspacing=2.5\n"),
                  {1e-3, 1e-3, 2.5e-3});
}

TEST_F(CImageFileForeignTest, LinesCountWithoutABlockAndStayInTheDescription) {
    const CImage image = stackWith("Cells\r\nspacing=2.5\r\nunit=um\r\n");

    expectSpacing(image, {1e-6, 1e-6, 2.5e-6});
    EXPECT_EQ(descriptionOf(image), "Cells\r\nspacing=2.5\r\nunit=um\r\n");
}

TEST_F(CImageFileForeignTest, TextBehindTheBlockIsTheDescription) {
    const CImage image = stackWith("ImageJ=1.53t\nunit=mm\nspacing=2.5\nSome cells.\nmin=3\n");

    EXPECT_EQ(descriptionOf(image), "Some cells.\nmin=3\n");
}

TEST_F(CImageFileForeignTest, UnitOfPixelsIsNoSpacing) {
    EXPECT_EQ(spacingOf(stackWith("ImageJ=1.53t\nunit=pixel\nspacing=2.5\n")),
              std::vector<double>());
}

TEST_F(CImageFileForeignTest, SpacingThatIsNoNumberIsIgnored) {
    EXPECT_EQ(spacingOf(stackWith("ImageJ=1.53t\nunit=mm\nspacing=far\n")), std::vector<double>());
}

TEST_F(CImageFileForeignTest, NegativeSpacingIsADistance) {
    expectSpacing(stackWith("ImageJ=1.53t\nunit=mm\nspacing=-2.5\n"), {1e-3, 1e-3, 2.5e-3});
}

TEST_P(CImageFileUnitTest, IsUnderstood) {
    const double unit = GetParam().metres;

    expectSpacing(stackWith("ImageJ=1.53t\nunit=" + GetParam().text + "\nspacing=2e0\n"),
                  {unit, unit, 2 * unit});
}

INSTANTIATE_TEST_SUITE_P(
    AllUnits, CImageFileUnitTest,
    testing::Values(StUnitName{"Metre", "m", 1}, StUnitName{"Centimetre", "cm", 1e-2},
                    StUnitName{"Millimetre", "mm", 1e-3}, StUnitName{"Micrometre", "um", 1e-6},
                    StUnitName{"Micron", "micron", 1e-6},
                    StUnitName{"MicroSign", "\xC2\xB5m", 1e-6}, StUnitName{"Mu", "\xCE\xBCm", 1e-6},
                    StUnitName{"Latin1MicroSign", "\xB5m", 1e-6},
                    StUnitName{"EscapedMicroSign", "\\u00B5m", 1e-6},
                    StUnitName{"Nanometre", "nm", 1e-9}, StUnitName{"Inch", "inch", 0.0254}),
    [](const auto& row) { return row.param.name; });

class CImageFileLargeStackTest : public CImageFiles {
protected:
    /// What ImageJ makes of stacks above 4 GB: one page, and the other slices behind its pixels.
    std::string largeStack(const std::string& pixels,
                           raw_tiff::EnByteOrder order = raw_tiff::eLittleEndian) const {
        const std::string description = "ImageJ=1.54f\nimages=3\nunit=mm\nspacing=2\n";
        raw_tiff::CRawTiff tiff(order);
        const unsigned entries = 10;
        const auto length = static_cast<unsigned>(description.size() + 1);
        const unsigned textBegin = 8 + 2 + entries * 12 + 4;
        tiff.add(256, raw_tiff::c_nLong, 1, 2);
        tiff.add(257, raw_tiff::c_nLong, 1, 1);
        tiff.add(258, raw_tiff::c_nShort, 1, 16);
        tiff.add(259, raw_tiff::c_nShort, 1, raw_tiff::c_nPlain);
        tiff.add(262, raw_tiff::c_nShort, 1, 1);
        tiff.add(270, 2, length, textBegin);
        tiff.add(273, raw_tiff::c_nLong, 1, textBegin + length);
        tiff.add(277, raw_tiff::c_nShort, 1, 1);
        tiff.add(278, raw_tiff::c_nLong, 1, 1);
        tiff.add(279, raw_tiff::c_nLong, 1, 4);
        return tiff.content(0, description + '\0' + pixels);
    }
};

TEST_F(CImageFileLargeStackTest, SlicesBehindTheOnlyPageAreRead) {
    dir.writeFile("a.tif", largeStack("aabbccddeeff"));

    const CImage image = read("a.tif");

    EXPECT_EQ(image.Size(), CSize(2, 1, 3));
    EXPECT_EQ(pixelsOf<unsigned char>(image), bytesOf("aabbccddeeff"));
    expectSpacing(image, {1e-3, 1e-3, 2e-3});
}

TEST_F(CImageFileLargeStackTest, SlicesInTheOtherByteOrderAreRead) {
    dir.writeFile("a.tif", largeStack("abcdefghijkl", raw_tiff::eBigEndian));

    EXPECT_EQ(pixelsOf<unsigned char>(read("a.tif")), bytesOf("badcfehgjilk"));
}

TEST_F(CImageFileLargeStackTest, MissingSlicesAreReported) {
    dir.writeFile("a.tif", largeStack("aabbccddee"));

    EXPECT_THAT(refusal(dir.path("a.tif")), HasSubstr("slices are missing"));
}

TEST_F(CImageFileLargeStackTest, PageTakenOutOfAStackIsAPage) {
    dir.writeFile("a.tif", largeStack("aabb"));

    EXPECT_EQ(read("a.tif").Size(), CSize(2, 1));
}

TEST_F(CImageFileLargeStackTest, PageThatImageMagickTookOutOfAStackIsAPage) {
    write(patterned(Type::eUInt8, CSize(4, 3, 3)), "a.tif");
    dir.writeFile("description", "ImageJ=1.54f\nimages=3\n");
    run("convert 'a.tif[1]' b.tif && tiffset -sf 270 description b.tif");

    EXPECT_EQ(read("b.tif").Size(), CSize(4, 3));
}

TEST_F(CImageFileForeignTest, RewrittenImageJStackKeepsItsSpacing) {
    const CImage image = stackWith("ImageJ=1.53t\nimages=3\nunit=micron\nspacing=2.0\n\nCells",
                                   "tiffset -s 282 4 s.tif && tiffset -s 283 4 s.tif && "
                                   "tiffset -s 296 1 s.tif");

    write(image, "t.tif");

    EXPECT_EQ(spacingOf(read("t.tif")), spacingOf(image));
    EXPECT_EQ(descriptionOf(read("t.tif")), "Cells");
}
