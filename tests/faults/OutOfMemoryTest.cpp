// Short scenarios in which the first, the second, ... allocation fails: each ends with an exception or
// with the right result, loses no block, and leaves what it worked on in the old state or in the new.

#include "FailingAllocator.h"
#include "TestFolder.h"

#include <data/FormatRules.h>
#include <files/FileExtension.h>
#include <header/Spacing.h>
#include <ruqlib2core/CException.h>
#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CString.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>
#include <ruqlib2core/ReplaceFile.h>
#include <ruqlib2image/CImage.h>
#include <ruqlib2image/CImageFile.h>
#include <ruqlib2image/COrunHeaderTools.h>

#include <functional>
#include <gtest/gtest.h>
#include <iostream>
#include <new>

using namespace TEVU;

namespace {

const std::string c_long(200, 'x'); // longer than any string holds without an allocation

/// Runs \a scenario with each of its allocations failing once, and without. \a check is called after
/// each run with whether it ended without an exception, and brings back the state before it. The number of failed allocations.
int failEach(const std::function<void()>& scenario, const std::function<void(bool)>& check) {
    scenario(); // what is made once and kept is made now
    check(true);
    for (int number = 1;; ++number) {
        const long before = failing_allocator::blocksInUse();
        bool ended = true;
        failing_allocator::failAt(number);
        try {
            scenario();
        } catch (const std::bad_alloc&) {
            ended = false;
        } catch (const CException&) { // image files promise no other
            ended = false;
        }
        const bool failed = failing_allocator::hasFailed();
        failing_allocator::failAt(0);
        check(ended);
        EXPECT_EQ(failing_allocator::blocksInUse(), before) << "allocation " << number;
        if (!failed) {
            EXPECT_TRUE(ended);
            std::cout << number - 1 << " allocations failed" << std::endl;
            return number - 1;
        }
        if (testing::Test::HasFailure())
            return number;
    }
}

void ignore(bool) {}

/// A text that a scenario makes is the right one, or there is none.
int failEachOfText(const std::function<std::string()>& make, const std::string& right) {
    return failEach([&] { EXPECT_EQ(make() == right, true); }, ignore);
}

CValueMap sampleMap() {
    CValueMap map;
    map.SetEntry("text " + c_long, new CValueString(c_long));
    map.SetEntry(7, new CValueLong(7));
    auto* const vector = new CValueVector;
    map.SetEntry("vector", vector);
    vector->SetEntry(0, new CValueString(c_long));
    return map;
}

void setCreator(IImage& image) {
    COrunHeaderTools::SetCreator(image, c_long.data(), static_cast<unsigned>(c_long.size()));
}

std::string creatorOf(const IImage& image) {
    std::string creator;
    COrunHeaderTools::GetCreator(image, creator);
    return creator;
}

} // namespace

TEST(OutOfMemory, ArgumentOfAText) {
    const CString text("%1 and %2, " + c_long);
    const std::string right = c_long + " and y, " + c_long;
    EXPECT_GT(failEachOfText([&] { return text.Arg(c_long).Arg("y"); }, right), 2);
}

TEST(OutOfMemory, MissingExtension) {
    const std::string filter = "Images (*." + c_long + " *.tif)";
    EXPECT_GT(failEachOfText([&] { return missingExtension(c_long, filter); }, "." + c_long), 0);
}

TEST(OutOfMemory, IdentifierAndVersion) {
    EXPECT_GT(
        failEachOfText([] { return splitIdentifier(c_long + ":b:c").sFamily; }, c_long.substr(1)),
        1);
}

TEST(OutOfMemory, VersionsAreComparedRightlyOrNotAtAll) {
    failEach([] { EXPECT_TRUE(isFutureVersion("2" + std::string(40, '0'), "1")); }, ignore);
}

TEST(OutOfMemory, EntryOfTheHistory) {
    failEachOfText(
        [] {
            return spacingChangeEntry({0.125, 0.25, 0.5}, {1.125, 1.25, 1.5}, 3);
        },
        "ChangeSpacing((0.125,0.25,0.5)->(1.125,1.25,1.5))");
}

TEST(OutOfMemory, EntryOfAMapIsSetOrNot) {
    const CValue_Key key(c_long); // made first: the value belongs to nobody before the call
    CValueMap map;
    EXPECT_GT(failEach(
                  [&] {
                      map.SetEntry(key, new CValueString(c_long));
                      map.RemoveEntry(key);
                  },
                  [&](bool) {
                      if (map.HasEntry(key)) {
                          EXPECT_EQ(map.EntryString(key), c_long);
                          map.RemoveEntry(key);
                      }
                  }),
              2);
}

TEST(OutOfMemory, CopyOfAMap) {
    const CValueMap map = sampleMap();
    EXPECT_GT(failEach(
                  [&] {
                      const CValueMap copy(map);
                      EXPECT_EQ(copy.Size(), 3u);
                  },
                  ignore),
              5);
}

TEST(OutOfMemory, AssignedMapIsTheOldOneOrTheNew) {
    const CValueMap map = sampleMap();
    CValueMap target;
    failEach(
        [&] {
            target = map;
            target = CValueMap();
        },
        [&](bool) {
            EXPECT_TRUE(target.Size() == 0 || target.Size() == 3);
            target = CValueMap();
        });
}

TEST(OutOfMemory, ReplacedFileIsTheOldOneOrTheNew) {
    const TestFolder folder;
    folder.Write("file", "old");
    failEach(
        [&] {
            ReplaceFile(folder.Path("file"),
                        [](const std::string& newFile) { std::ofstream(newFile) << "new"; });
        },
        [&](bool ended) {
            const std::string now = folder.Read("file");
            EXPECT_TRUE(now == "new" || (!ended && now == "old")) << now;
            EXPECT_EQ(folder.Names(), std::vector<std::string>{"file"});
            folder.Write("file", "old");
        });
}

TEST(OutOfMemory, SettingIsTheOldOneOrTheNew) {
    const TestFolder folder;
    ::setenv("RUQ_REGISTRY", folder.Path("registry.json").c_str(), 1);
    const CValue_Key key("key"); // made first: the value belongs to nobody before the call
    CRegistry& registry = CRegistry::Obj();
    registry.SetEntry("key", new CValueString("old"));
    registry.SetEntry("other", new CValueString("old"));
    EXPECT_GT(failEach(
                  [&] {
                      registry.SetEntry(key, new CValueString("new"));
                      registry.SetEntry(key, new CValueString("old"));
                  },
                  [&](bool) {
                      const std::string now = registry.GetString("key", "none");
                      EXPECT_TRUE(now == "old" || now == "new") << now;
                      EXPECT_EQ(registry.GetString("other", "none"), "old");
                      registry.SetEntry("key", new CValueString("old"));
                      EXPECT_EQ(registry.GetString("key", "none"), "old");
                  }),
              10);
}

TEST(OutOfMemory, CopyOfAnImage) {
    CImage image(IImage::CType::eUInt16, CSize(3, 2));
    setCreator(image);
    failEach(
        [&] {
            const CImage copy(image);
            EXPECT_EQ(creatorOf(copy), c_long);
        },
        ignore);
}

TEST(OutOfMemory, ImageFileIsTheOldOneOrTheNew) {
    const TestFolder folder;
    const std::string path = folder.Path("image.tif");
    CImage before(IImage::CType::eUInt8, CSize(2, 2));
    CImage after(IImage::CType::eUInt8, CSize(3, 2));
    setCreator(after);
    CImageFile::Write(before, path);
    EXPECT_GT(failEach([&] { CImageFile::Write(after, path); },
                       [&](bool ended) {
                           const CSize now = CImageFile::Read(path).Size();
                           EXPECT_TRUE(now == after.Size() || (!ended && now == before.Size()));
                           EXPECT_EQ(folder.Names(), std::vector<std::string>{"image.tif"});
                           CImageFile::Write(before, path);
                       }),
              10);
}

TEST(OutOfMemory, ReadImage) {
    const TestFolder folder;
    const std::string path = folder.Path("image.tif");
    CImage image(IImage::CType::eUInt8, CSize(3, 2));
    setCreator(image);
    CImageFile::Write(image, path);
    EXPECT_GT(failEach(
                  [&] {
                      const CImage found = CImageFile::Read(path);
                      EXPECT_EQ(creatorOf(found), c_long);
                  },
                  ignore),
              10);
}
