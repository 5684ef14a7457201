#include "PathList.h"

#include <gtest/gtest.h>
#include <ostream>
#include <set>

using autodlg::joinedPaths;
using autodlg::splitPaths;
using autodlg::Texts;

namespace {

struct SplitRow {
    const char* name;
    const char* text;
    std::set<std::string> files;
    Texts paths;
};

void PrintTo(const SplitRow& row, std::ostream* out) {
    *out << row.name;
}

class PathListSplit : public testing::TestWithParam<SplitRow> {};

} // namespace

TEST_P(PathListSplit, GivesThePaths) {
    const auto isFile = [](const std::string& path) { return GetParam().files.count(path) > 0; };
    EXPECT_EQ(splitPaths(GetParam().text, isFile), GetParam().paths);
}

INSTANTIATE_TEST_SUITE_P(
    All, PathListSplit,
    testing::Values(SplitRow{"Nothing", "", {}, {}},
                    SplitRow{"One", "/a.tif", {"/a.tif"}, {"/a.tif"}},
                    SplitRow{"OneThatIsNotThere", "/a.tif", {}, {"/a.tif"}},
                    SplitRow{"Several", "/a,/b,/c", {"/a", "/b", "/c"}, {"/a", "/b", "/c"}},
                    SplitRow{"SeveralThatAreNotThere", "/a,/b", {}, {"/a", "/b"}},
                    SplitRow{"CommaInAName", "/a,b,/c", {"/a,b", "/c"}, {"/a,b", "/c"}},
                    SplitRow{
                        "CommasInTheLastName", "/a,/b,c,d", {"/a", "/b,c,d"}, {"/a", "/b,c,d"}},
                    SplitRow{"ShortestNameFirst", "/a,b", {"/a", "/a,b"}, {"/a", "b"}},
                    SplitRow{"MissingBetweenOthers", "/a,/x,/b", {"/a", "/b"}, {"/a", "/x", "/b"}},
                    SplitRow{"CommaAtTheEndOfAName", "/a,,/b", {"/a,", "/b"}, {"/a,", "/b"}},
                    SplitRow{"EmptyPieces", ",/a,,/b,", {"/a", "/b"}, {"/a", "/b"}},
                    SplitRow{"OnlyCommas", ",,,", {}, {}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(PathListTest, JoinedPathsAreSeparatedByCommas) {
    EXPECT_EQ(joinedPaths({}), "");
    EXPECT_EQ(joinedPaths({"/a"}), "/a");
    EXPECT_EQ(joinedPaths({"/a", "/b,c"}), "/a,/b,c");
}

TEST(PathListTest, ManyFilesAreLookedForOnce) {
    Texts paths;
    for (int i = 0; i < 10000; ++i)
        paths.push_back("/folder/" + std::to_string(i));
    int looks = 0;
    EXPECT_EQ(splitPaths(joinedPaths(paths),
                         [&](const std::string&) {
                             ++looks;
                             return true;
                         }),
              paths);
    EXPECT_EQ(looks, 10000);
}

TEST(PathListTest, NamesThatAreTooLongForAPathAreNotLookedFor) {
    const std::string piece(99, 'x');
    Texts paths(1000, piece);
    std::size_t looks = 0;
    EXPECT_EQ(splitPaths(joinedPaths(paths),
                         [&](const std::string& path) {
                             EXPECT_LE(path.size(), 4096u);
                             ++looks;
                             return false;
                         }),
              paths);
    EXPECT_LE(looks, 41000u);
}
