#include "ImageFiles.h"

#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValuePointer.h>
#include <ruqlib2core/CValueVector.h>
#include <ruqlib2image/COrunHeaderTools.h>

#include <climits>
#include <cmath>
#include <limits>
#include <system_error>

using namespace TEVU;
using namespace image_files;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

using CImageFileTest = CImageFiles;

void setDescription(CImage& image, const std::string& text) {
    COrunHeaderTools::SetDescription(image, text.data(), static_cast<unsigned>(text.size()));
}

std::string descriptionOf(const CImage& image) {
    std::string text = "none";
    COrunHeaderTools::GetDescription(image, text);
    return text;
}

std::vector<double> spacingOf(const CImage& image) {
    double x = 0, y = 0, z = 0;
    if (!COrunHeaderTools::GetSpacing(image, x, y, z))
        return {};
    return {x, y, z};
}

CImage stack() {
    CImage image = patterned(IImage::CType::eUInt8, CSize(4, 3, 2));
    COrunHeaderTools::SetSpacing(image, 1e-6, 1.5e-6, 2e-6);
    return image;
}

struct StFormat {
    const char* name;
    IImage::CType::EnType type;
    CSize size;
    CSize readAs;
};

void PrintTo(const StFormat& format, std::ostream* out) {
    *out << format.name;
}

class CImageFileFormatTest : public CImageFiles, public testing::WithParamInterface<StFormat> {};

struct StText {
    const char* name;
    std::string text;
};

void PrintTo(const StText& row, std::ostream* out) {
    *out << row.name;
}

class CImageFileTextTest : public CImageFiles, public testing::WithParamInterface<StText> {};

struct StSpacing {
    const char* name;
    double x, y, z;
};

void PrintTo(const StSpacing& row, std::ostream* out) {
    *out << row.name;
}

class CImageFileSpacingTest : public CImageFiles, public testing::WithParamInterface<StSpacing> {};

/// As the system words it.
std::string reasonForAMissingFolder() {
#ifdef _WIN32
    return std::system_category().message(3);
#else
    return "No such file";
#endif
}

const double c_dInfinity = std::numeric_limits<double>::infinity();
const double c_dNan = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST_P(CImageFileFormatTest, PixelsComeBackUntouched) {
    const CImage image = patterned(GetParam().type, GetParam().size);

    write(image, "a.tif");
    const CImage back = read("a.tif");

    EXPECT_EQ(back.Type(), image.Type());
    EXPECT_EQ(back.Size(), GetParam().readAs);
    EXPECT_EQ(pixelsOf<unsigned char>(back), pixelsOf<unsigned char>(image));
}

TEST_P(CImageFileFormatTest, OtherProgramsReadItWithoutWarnings) {
    write(patterned(GetParam().type, GetParam().size), "a.tif");

    EXPECT_THAT(run("tiffinfo -D a.tif"), HasSubstr("Compression Scheme: None"));
    EXPECT_EQ(run("identify -format '%wx%h\\n' a.tif | sort -u"),
              std::to_string(GetParam().readAs[0]) + "x" + std::to_string(GetParam().readAs[1]) +
                  "\n");
    EXPECT_EQ(run("identify -format 'p' a.tif").size(), std::size_t(GetParam().readAs[2]));
}

using Type = IImage::CType;

INSTANTIATE_TEST_SUITE_P(
    AllTypes, CImageFileFormatTest,
    testing::Values(StFormat{"UInt8", Type::eUInt8, CSize(7, 5), CSize(7, 5)},
                    StFormat{"UInt16", Type::eUInt16, CSize(7, 5), CSize(7, 5)},
                    StFormat{"Int16", Type::eInt16, CSize(7, 5), CSize(7, 5)},
                    StFormat{"Int32", Type::eInt32, CSize(7, 5), CSize(7, 5)},
                    StFormat{"Float32", Type::eFloat32, CSize(7, 5), CSize(7, 5)},
                    StFormat{"RGB8", Type::eRGB8, CSize(7, 5), CSize(7, 5)},
                    StFormat{"OneRow", Type::eUInt16, CSize(7), CSize(7, 1)},
                    StFormat{"OneSlice", Type::eUInt8, CSize(7, 5, 1), CSize(7, 5)},
                    StFormat{"Slices", Type::eUInt16, CSize(7, 5, 3), CSize(7, 5, 3)},
                    StFormat{"ColourSlices", Type::eRGB8, CSize(2, 3, 4), CSize(2, 3, 4)},
                    StFormat{"ManyStrips", Type::eInt32, CSize(300, 1000), CSize(300, 1000)},
                    StFormat{"LongRows", Type::eFloat32, CSize(10000, 3), CSize(10000, 3)},
                    StFormat{"OnePixel", Type::eFloat32, CSize(1), CSize(1, 1)}),
    [](const auto& row) { return row.param.name; });

TEST_F(CImageFileTest, ImageMagickSeesTheSameGreys) {
    const CImage image = patterned(Type::eUInt16, CSize(7, 5));

    write(image, "a.tif");
    run("convert a.tif -depth 16 -endian LSB gray:a.raw");

    EXPECT_EQ(bytesOf(dir.read("a.raw")), pixelsOf<unsigned char>(image));
}

TEST_F(CImageFileTest, ImageMagickSeesTheSameColours) {
    const CImage image = patterned(Type::eRGB8, CSize(7, 5));

    write(image, "a.tif");
    run("convert a.tif -depth 8 rgb:a.raw");

    EXPECT_EQ(bytesOf(dir.read("a.raw")), pixelsOf<unsigned char>(image));
}

TEST_F(CImageFileTest, ImageWithoutHeaderComesBackWithoutOne) {
    write(CImage(Type::eUInt8, CSize(2, 2, 2)), "a.tif");

    EXPECT_EQ(read("a.tif").Header().Size(), 0u);
}

TEST_F(CImageFileTest, ManyPagesAreWrittenAndRead) {
    const CImage image = patterned(Type::eUInt8, CSize(2, 2, 3000));

    write(image, "a.tif");

    const CImage back = read("a.tif");
    EXPECT_EQ(back.Size(), image.Size());
    EXPECT_EQ(pixelsOf<unsigned char>(back), pixelsOf<unsigned char>(image));
}

TEST_F(CImageFileTest, ImageWithoutPixelsIsRefused) {
    try {
        write(CImage(Type::eUInt8, CSize(3, 0)), "a.tif");
        FAIL() << "it was written";
    } catch (const CException& exception) {
        EXPECT_EQ(exception.Place(), "CImageFile::Write");
        EXPECT_EQ(exception.Message(), "cannot write \"" + dir.path("a.tif") +
                                           "\": an image without pixels cannot be stored");
    }
    EXPECT_FALSE(dir.exists("a.tif"));
}

TEST_P(CImageFileSpacingTest, ComesBackExactly) {
    CImage image = patterned(Type::eUInt8, CSize(4, 3, 2));
    COrunHeaderTools::SetSpacing(image, GetParam().x, GetParam().y, GetParam().z);

    write(image, "a.tif");

    const std::vector<double> back = spacingOf(read("a.tif"));
    ASSERT_EQ(back.size(), 3u);
    EXPECT_EQ(std::memcmp(&back[0], &GetParam().x, sizeof(double)), 0) << back[0];
    EXPECT_EQ(std::memcmp(&back[1], &GetParam().y, sizeof(double)), 0) << back[1];
    EXPECT_EQ(std::memcmp(&back[2], &GetParam().z, sizeof(double)), 0) << back[2];
    run("tiffinfo a.tif");
    run("identify a.tif");
}

INSTANTIATE_TEST_SUITE_P(
    AllMagnitudes, CImageFileSpacingTest,
    testing::Values(StSpacing{"Micrometres", 1e-6, 1.5e-6, 2e-6}, StSpacing{"Unknown", 1, 1, 1},
                    StSpacing{"Thirds", 1. / 3, 2. / 3, 1e-3 / 3},
                    StSpacing{"Atoms", 1.23456789e-10, 1e-11, 3e-12},
                    StSpacing{"Planets", 1.2e6, 3.4e7, 5.6e7},
                    StSpacing{"BeyondWhatAFractionHolds", 1e-30, 1e30, 1e300},
                    StSpacing{"OneAxisBeyond", 1e-6, 1e-30, 2e-6}, StSpacing{"Zero", 0, 0, 0},
                    StSpacing{"MinusZero", 1e-6, 1e-6, -0.0},
                    StSpacing{"Negative", -1e-6, -2e-6, -3e-6},
                    StSpacing{"Infinite", c_dInfinity, -c_dInfinity, c_dInfinity},
                    StSpacing{"InfiniteBetweenPages", 1e-6, 1e-6, c_dInfinity},
                    StSpacing{"NoNumber", c_dNan, c_dNan, c_dNan},
                    StSpacing{"NoNumberBetweenPages", 1e-6, 1e-6, c_dNan},
                    StSpacing{"SmallestBetweenPages", 1e-6, 1e-6, 5e-324},
                    StSpacing{"GreatestBetweenPages", 1e-6, 1e-6, 1.7e308}),
    [](const auto& row) { return row.param.name; });

TEST_F(CImageFileTest, SpacingIsTheResolutionThatOthersSee) {
    CImage image = patterned(Type::eUInt8, CSize(4, 3));
    COrunHeaderTools::SetSpacing(image, 1e-6, 2e-6, 3e-6);

    write(image, "a.tif");

    EXPECT_THAT(run("tiffinfo a.tif"), HasSubstr("Resolution: 10000, 5000 pixels/cm"));
    EXPECT_EQ(run("identify -format '%x %y %U' a.tif"), "10000 5000 PixelsPerCentimeter");
}

TEST_F(CImageFileTest, EveryPageHasTheResolution) {
    write(stack(), "a.tif");

    EXPECT_EQ(run("identify -format '%x,' a.tif"), "10000,10000,");
}

TEST_F(CImageFileTest, SpacingOfASinglePageHasNoZ) {
    CImage image = patterned(Type::eUInt8, CSize(4, 3));
    COrunHeaderTools::SetSpacing(image, 1e-6, 2e-6, 3e-6);

    write(image, "a.tif");

    EXPECT_EQ(spacingOf(read("a.tif")), (std::vector<double>{1e-6, 2e-6, 1}));
    EXPECT_EQ(run("identify -format '%c' a.tif"), "");
}

TEST_F(CImageFileTest, DistanceBetweenPagesIsInTheLinesThatImageJReads) {
    write(stack(), "a.tif");

    EXPECT_THAT(run("identify -format '%c' 'a.tif[0]'"),
                AllOf(StartsWith("ImageJ="), HasSubstr("\nimages=2\nslices=2\nunit=cm\n"),
                      HasSubstr("\nspacing=0.0002\n")));
}

TEST_F(CImageFileTest, PagesLieOneBehindTheOtherAsImageJExpects) {
    const CImage image = stack();

    write(image, "a.tif");

    const std::vector<unsigned char> pixels = pixelsOf<unsigned char>(image);
    EXPECT_THAT(dir.read("a.tif"), HasSubstr(std::string(pixels.begin(), pixels.end())));
}

TEST_F(CImageFileTest, ChangedResolutionWinsOverWhatWasWritten) {
    write(stack(), "a.tif");

    run("tiffset -d 0 -s 282 5000 a.tif");

    const std::vector<double> back = spacingOf(read("a.tif"));
    ASSERT_EQ(back.size(), 3u);
    EXPECT_DOUBLE_EQ(back[0], 2e-6);
    EXPECT_NEAR(back[1], 1.5e-6, 1e-12);
    EXPECT_DOUBLE_EQ(back[2], 2e-6);
}

TEST_F(CImageFileTest, ChangedUnitOfTheResolutionWinsToo) {
    CImage image = patterned(Type::eUInt8, CSize(4, 3));
    COrunHeaderTools::SetSpacing(image, 1e-6, 1e-6, 1);
    write(image, "a.tif");

    run("tiffset -s 296 2 a.tif");

    EXPECT_NEAR(spacingOf(read("a.tif"))[0], 2.54e-6, 1e-12);
}

TEST_F(CImageFileTest, RemovedResolutionRemovesTheSpacing) {
    CImage image = patterned(Type::eUInt8, CSize(4, 3));
    COrunHeaderTools::SetSpacing(image, 1e-6, 1e-6, 1);
    write(image, "a.tif");

    run("tiffset -u 282 a.tif && tiffset -u 283 a.tif");

    EXPECT_EQ(spacingOf(read("a.tif")), std::vector<double>());
}

TEST_F(CImageFileTest, CreatorIsTheArtistThatOthersSee) {
    CImage image = patterned(Type::eUInt8, CSize(4, 3));
    COrunHeaderTools::SetCreator(image, "Ada", 3);

    write(image, "a.tif");

    EXPECT_THAT(run("tiffinfo a.tif"), HasSubstr("Artist: Ada\n"));
}

TEST_F(CImageFileTest, ChangedArtistWinsOverWhatWasWritten) {
    CImage image = patterned(Type::eUInt8, CSize(4, 3));
    COrunHeaderTools::SetCreator(image, "Ada", 3);
    COrunHeaderTools::ReplaceHistory(image, "Load", 4);
    write(image, "a.tif");

    run("tiffset -s 315 Grace a.tif");

    const CImage back = read("a.tif");
    std::string creator, history;
    EXPECT_TRUE(COrunHeaderTools::GetCreator(back, creator));
    EXPECT_TRUE(COrunHeaderTools::GetHistory(back, history));
    EXPECT_EQ(creator, "Grace");
    EXPECT_EQ(history, "Load");
}

TEST_F(CImageFileTest, RemovedArtistRemovesTheCreator) {
    CImage image = patterned(Type::eUInt8, CSize(4, 3));
    COrunHeaderTools::SetCreator(image, "Ada", 3);
    write(image, "a.tif");

    run("tiffset -u 315 a.tif");

    std::string creator;
    EXPECT_FALSE(COrunHeaderTools::GetCreator(read("a.tif"), creator));
}

TEST_F(CImageFileTest, DescriptionOfASinglePageIsTheOneThatOthersSee) {
    CImage image = patterned(Type::eUInt8, CSize(4, 3));
    setDescription(image, "A cell.\nStained.");

    write(image, "a.tif");

    EXPECT_EQ(run("identify -format '%c' a.tif"), "A cell.\nStained.");
}

TEST_F(CImageFileTest, ChangedDescriptionWinsOverWhatWasWritten) {
    CImage image = stack();
    setDescription(image, "Mine");
    write(image, "a.tif");

    run("tiffset -d 0 -s 270 Theirs a.tif");

    const CImage back = read("a.tif");
    EXPECT_EQ(descriptionOf(back), "Theirs");
    // The lines with the distance between pages are gone with the old description.
    EXPECT_EQ(spacingOf(back)[2], 1);
}

TEST_P(CImageFileTextTest, ComesBackExactlyInEveryPlaceForTexts) {
    const std::string& text = GetParam().text;
    const auto length = static_cast<unsigned>(text.size());
    CImage image = stack();
    COrunHeaderTools::SetCreator(image, text.data(), length);
    setDescription(image, text);
    COrunHeaderTools::ReplaceHistory(image, text.data(), length);

    write(image, "a.tif");

    const CImage back = read("a.tif");
    std::string creator = "none", history = "none";
    COrunHeaderTools::GetCreator(back, creator);
    COrunHeaderTools::GetHistory(back, history);
    EXPECT_EQ(creator, text);
    EXPECT_EQ(descriptionOf(back), text);
    EXPECT_EQ(history, text);
    EXPECT_EQ(spacingOf(back), (std::vector<double>{1e-6, 1.5e-6, 2e-6}));
}

TEST_P(CImageFileTextTest, DescriptionSurvivesProgramsThatKeepOnlyTheTagsTheyKnow) {
    CImage image = stack();
    const std::string text = GetParam().text.substr(0, GetParam().text.find('\0'));
    setDescription(image, text);
    write(image, "a.tif");

    run("tiffset -d 0 -u 700 a.tif");

    const CImage back = read("a.tif");
    EXPECT_EQ(descriptionOf(back), text.empty() ? "none" : text);
    EXPECT_NEAR(spacingOf(back)[2], 2e-6, 1e-18);
}

INSTANTIATE_TEST_SUITE_P(
    AllTexts, CImageFileTextTest,
    testing::Values(StText{"Plain", "A cell"}, StText{"Lines", "a\nb\n\nc\n"},
                    StText{"OnlyAnEndOfLine", "\n"}, StText{"EndsOfLineInFront", "\n\na"},
                    StText{"MachineLines", "spacing=5\nunit=mm\nmine"},
                    StText{"AWholeBlock", "ImageJ=1.1\nimages=7\nunit=nm\nspacing=5\n\nmine"},
                    StText{"ABlockWithoutEnd", "ImageJ=1.1\nspacing=5"},
                    StText{"Markup", "<ruq:Header>m()</ruq:Header> & \"%41\""},
                    StText{"AllBytes", std::string("\x01\x7f\x80\xff\t\r\n%", 8)},
                    StText{"Nul", std::string("a\0b", 3)}, StText{"NulInFront", std::string(1, 0)},
                    StText{"Empty", ""}, StText{"Long", std::string(100000, 'x')}),
    [](const auto& row) { return row.param.name; });

TEST_F(CImageFileTest, HistoryAndFeaturesComeBack) {
    CImage image = patterned(Type::eFloat32, CSize(4, 3));
    COrunHeaderTools::AddToHistory(image, CValueString("Load"));
    COrunHeaderTools::AddToHistory(image, CValueString("Crop(1,2)"));
    auto* features = new CValueMap;
    auto* list = new CValueVector;
    list->SetEntry(0, new CValueLong(LONG_MIN));
    list->SetEntry(2, new CValueLong(LONG_MAX));
    auto* inner = new CValueMap;
    inner->SetEntry("a key/with=all,(sorts)\n", new CValueString(std::string("\0\xff", 2)));
    inner->SetEntry("", new CValueBool(false));
    features->SetEntry("flag", new CValueBool(true));
    features->SetEntry("area", new CValueDouble(0.1));
    features->SetEntry("list", list);
    features->SetEntry("inner", inner);
    features->SetEntry("nothing", new CValueMap);
    image.Header().SetEntry(COrunHeaderTools::c_sTagFeatures, features);

    write(image, "a.tif");

    const CImage back = read("a.tif");
    std::string history;
    EXPECT_TRUE(COrunHeaderTools::GetHistory(back, history));
    EXPECT_EQ(history, "Load\nCrop(1,2)");
    ASSERT_TRUE(back.Header().HasEntry(COrunHeaderTools::c_sTagFeatures, typeid(CValueMap)));
    const auto& map = dynamic_cast<const CValueMap&>(
        *back.Header().Entry(COrunHeaderTools::c_sTagFeatures, true));
    EXPECT_EQ(map.Keys(), features->Keys());
    EXPECT_TRUE(map.EntryBool("flag", false));
    EXPECT_EQ(map.EntryDouble("area", 0), 0.1);
    const auto& backList = dynamic_cast<const CValueVector&>(*map.Entry("list", true));
    EXPECT_EQ(backList.Keys(), (std::vector<CValue_Key>{0, 2}));
    EXPECT_EQ(backList.EntryLong(0, 0), LONG_MIN);
    EXPECT_EQ(backList.EntryLong(2, 0), LONG_MAX);
    const auto& backInner = dynamic_cast<const CValueMap&>(*map.Entry("inner", true));
    EXPECT_EQ(backInner.Keys(), inner->Keys());
    EXPECT_EQ(backInner.EntryString("a key/with=all,(sorts)\n"), std::string("\0\xff", 2));
    EXPECT_FALSE(backInner.EntryBool("", true));
    EXPECT_EQ(dynamic_cast<const CValueMap&>(*map.Entry("nothing", true)).Size(), 0u);
}

TEST_F(CImageFileTest, DoublesComeBackBitByBit) {
    const std::vector<double> numbers{0.1,         -0.0,         5e-324, 1.7976931348623157e308,
                                      c_dInfinity, -c_dInfinity, c_dNan, -c_dNan};
    CImage image = patterned(Type::eUInt8, CSize(4, 3));
    for (std::size_t at = 0; at < numbers.size(); ++at)
        image.Header().SetEntry(static_cast<int>(at), new CValueDouble(numbers[at]));

    write(image, "a.tif");

    const CImage back = read("a.tif");
    for (std::size_t at = 0; at < numbers.size(); ++at) {
        const double number = back.Header().EntryDouble(static_cast<int>(at), 7);
        EXPECT_EQ(std::memcmp(&number, &numbers[at], sizeof number), 0) << numbers[at];
    }
}

TEST_F(CImageFileTest, PointersAreLeftOut) {
    CImage image = patterned(Type::eUInt8, CSize(4, 3));
    image.Header().SetEntry("self", new CValuePointer<CImage>(&image));
    image.Header().SetEntry("mine", new CValueLong(1));

    write(image, "a.tif");

    EXPECT_EQ(read("a.tif").Header().Keys(), std::vector<CValue_Key>{"mine"});
}

TEST_F(CImageFileTest, HeaderNestedTooDeeplyIsRefusedAndNothingIsWritten) {
    CImage image = patterned(Type::eUInt8, CSize(4, 3));
    for (int depth = 0; depth < 200; ++depth) {
        CValueMap deeper;
        deeper.SetEntry("in", image.Header().Clone());
        image.Header() = deeper;
    }

    EXPECT_THROW(write(image, "a.tif"), CException);

    EXPECT_FALSE(dir.exists("a.tif"));
}

TEST_F(CImageFileTest, HistorySurvivesImageMagick) {
    CImage image = patterned(Type::eUInt8, CSize(4, 3));
    COrunHeaderTools::ReplaceHistory(image, "Load", 4);
    COrunHeaderTools::SetSpacing(image, 1e-6, 1e-6, 1);
    write(image, "a.tif");

    run("convert a.tif -negate -compress lzw b.tif");

    std::string history;
    EXPECT_TRUE(COrunHeaderTools::GetHistory(read("b.tif"), history));
    EXPECT_EQ(history, "Load");
    EXPECT_EQ(spacingOf(read("b.tif"))[0], 1e-6);
}

TEST_F(CImageFileTest, PacketThatIsNotOursIsIgnored) {
    write(patterned(Type::eUInt8, CSize(4, 3)), "a.tif");
    dir.writeFile("xmp", "<x:xmpmeta><ruq:Header>m(a=</ruq:Header></x:xmpmeta>");

    run("convert a.tif -profile xmp:xmp b.tif");

    EXPECT_EQ(read("b.tif").Header().Size(), 0u);
}

TEST_F(CImageFileTest, WrittenFileReplacesTheOldOne) {
    write(patterned(Type::eUInt16, CSize(40, 30)), "a.tif");

    write(patterned(Type::eUInt8, CSize(2, 2)), "a.tif");

    EXPECT_EQ(read("a.tif").Size(), CSize(2, 2));
    EXPECT_EQ(run("ls -A"), "a.tif\n");
}

TEST_F(CImageFileTest, MissingFolderIsReportedWithThePath) {
    try {
        write(patterned(Type::eUInt8, CSize(2, 2)), "none/a.tif");
        FAIL() << "it was written";
    } catch (const CException& exception) {
        EXPECT_THAT(exception.Message(),
                    AllOf(StartsWith("cannot write \"" + dir.path("none/a.tif")),
                          HasSubstr(reasonForAMissingFolder())));
    }
}

TEST_F(CImageFileTest, FolderIsNotReplaced) {
    dir.makeFolder("a.tif");

    EXPECT_THROW(write(patterned(Type::eUInt8, CSize(2, 2)), "a.tif"), CException);

    EXPECT_EQ(run("stat -c %F a.tif"), "directory\n");
}
