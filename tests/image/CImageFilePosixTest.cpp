#include "ImageFiles.h"

#include <OrdinaryUser.h>

#include <csignal>
#include <sys/resource.h>

// Links, permissions and limits.

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
