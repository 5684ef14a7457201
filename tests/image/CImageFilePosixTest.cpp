#include "ImageFiles.h"

#include <OrdinaryUser.h>
#include <OtherLocale.h>
#include <ruqlib2image/COrunHeaderTools.h>

#include <csignal>
#include <sys/resource.h>

// Links, permissions, limits and locales.

using namespace TEVU;
using namespace image_files;
using testing::HasSubstr;

namespace {

using CImageFilePosixTest = CImageFiles;
using Type = IImage::CType;

} // namespace

TEST_F(CImageFilePosixTest, ReplacedFileKeepsItsPermissions) {
    dir.writeFile("a.tif", "old");
    dir.setPermissions("a.tif", 0640);

    write(patterned(Type::eUInt8, CSize(2, 2)), "a.tif");

    EXPECT_EQ(run("stat -c %a a.tif"), "640\n");
}

TEST_F(CImageFilePosixTest, LinkGoesOnPointingToTheFile) {
    dir.makeFolder("images");
    dir.writeFile("images/a.tif", "old");
    dir.makeLink("link.tif", "images/a.tif");

    write(patterned(Type::eUInt8, CSize(2, 2)), "link.tif");

    EXPECT_EQ(run("readlink link.tif"), "images/a.tif\n");
    EXPECT_EQ(read("images/a.tif").Size(), CSize(2, 2));
}

TEST_F(CImageFilePosixTest, WriteProtectedFileIsNotReplaced) {
    RUN_AS_ORDINARY_USER();
    dir.writeFile("a.tif", "old");
    dir.setPermissions("a.tif", 0444);

    EXPECT_THROW(write(patterned(Type::eUInt8, CSize(2, 2)), "a.tif"), CException);

    EXPECT_EQ(dir.read("a.tif"), "old");
}

TEST_F(CImageFilePosixTest, UnreadableFileIsReported) {
    RUN_AS_ORDINARY_USER();
    write(patterned(Type::eUInt8, CSize(2, 2)), "a.tif");
    dir.setPermissions("a.tif", 0000);

    EXPECT_THAT(refusal(dir.path("a.tif")), HasSubstr("Permission denied"));
}

TEST_F(CImageFilePosixTest, FullDiskLeavesTheOldFileAsItWas) {
    dir.writeFile("a.tif", "old");
    const CImage image = patterned(Type::eUInt8, CSize(1000, 1000));
    rlimit limits{};
    getrlimit(RLIMIT_FSIZE, &limits);
    const rlimit small{300000, limits.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);

    setrlimit(RLIMIT_FSIZE, &small);
    std::string message;
    try {
        write(image, "a.tif");
    } catch (const CException& exception) {
        message = exception.Message();
    }
    setrlimit(RLIMIT_FSIZE, &limits);

    EXPECT_THAT(message, HasSubstr("cannot write"));
    EXPECT_EQ(dir.read("a.tif"), "old");
    EXPECT_EQ(run("ls -A"), "a.tif\n");
}

// What a letter is depends on the locale. What a line for programs begins with does not.
TEST_F(CImageFilePosixTest, LineForPeopleBeginsAtTheSamePlaceInEveryLocale) {
    const std::string line = "Gr\366\337e=3";
    dir.writeFile("description", "ImageJ=1.53t\nunit=mm\n" + line);
    run("convert -size 4x3 gradient: a.tif && tiffset -sf 270 description a.tif");
    const support::OtherLocale german("de_DE.ISO-8859-1");
    ASSERT_TRUE(german.IsThere());

    const CImage image = read("a.tif");

    std::string text;
    ASSERT_TRUE(COrunHeaderTools::GetDescription(image, text));
    EXPECT_EQ(text, line);
}
