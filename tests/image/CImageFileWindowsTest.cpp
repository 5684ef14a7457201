#include "ImageFiles.h"

#include <Share.h>
#include <windows.h>

// The read-only attribute, and files that others hold open.

using namespace TEVU;
using namespace image_files;
using testing::HasSubstr;

namespace {

using CImageFileWindowsTest = CImageFiles;
using Type = IImage::CType;

} // namespace

TEST_F(CImageFileWindowsTest, WriteProtectedFileIsNotReplaced) {
    dir.writeFile("a.tif", "old");
    dir.setPermissions("a.tif", 0444);

    EXPECT_THROW(write(patterned(Type::eUInt8, CSize(2, 2)), "a.tif"), CException);

    EXPECT_EQ(dir.read("a.tif"), "old");
    dir.setPermissions("a.tif", 0644);
}

TEST_F(CImageFileWindowsTest, FileThatAnotherProgramHoldsIsReported) {
    write(patterned(Type::eUInt8, CSize(2, 2)), "a.tif");
    const HANDLE held = ::CreateFileA(dir.path("a.tif").c_str(), GENERIC_READ, 0, nullptr,
                                      OPEN_EXISTING, 0, nullptr);

    EXPECT_THAT(refusal(dir.path("a.tif")), HasSubstr("cannot read"));

    ::CloseHandle(held);
}

TEST_F(CImageFileWindowsTest, BothSeparatorsLeadToTheFile) {
    dir.makeFolder("in");

    write(patterned(Type::eUInt8, CSize(2, 3)), "in\\a.tif");

    EXPECT_EQ(read("in/a.tif").Size(), CSize(2, 3));
}

TEST_F(CImageFileWindowsTest, FileMayBeOnAShare) {
    NEEDS_A_SHARE_OF(dir.path());
    const std::string path = support::withBackslashes(support::onShare(dir.path("a.tif")));

    CImageFile::Write(patterned(Type::eUInt8, CSize(2, 3)), path);

    EXPECT_EQ(CImageFile::Read(path).Size(), CSize(2, 3));
    EXPECT_EQ(read("a.tif").Size(), CSize(2, 3));
}
