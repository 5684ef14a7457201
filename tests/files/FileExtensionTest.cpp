#include "FileExtension.h"

#include <gtest/gtest.h>
#include <ostream>
#include <qt3/Text.h>
#include <random>
#include <string>

namespace {

struct Row {
    const char* name;
    const char* path;
    const char* extension;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

class FileExtensionTest : public testing::TestWithParam<Row> {};

TEST_P(FileExtensionTest, Is) {
    EXPECT_EQ(TEVU::fileExtension(GetParam().path), GetParam().extension);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FileExtensionTest,
    testing::Values(
        Row{"BehindTheOnlyDot", "a.tif", "tif"},
        Row{"BehindTheLastOfSeveralDots", "a.b.tif", "tif"}, Row{"LowerCase", "A.TiF", "tif"},
        Row{"TwoSectionsForGz", "a.stl.gz", "stl.gz"},
        Row{"TwoSectionsForGzOfThree", "/d/a.b.stl.gz", "stl.gz"},
        Row{"GzInAnyCase", "a.STL.Gz", "stl.gz"},
        Row{"WholePathInLowerCaseForGzBehindTheOnlyDot", "/D/x.GZ", "/d/x.gz"},
        Row{"WholePathInLowerCaseWithoutADot", "/Data/No Dot", "/data/no dot"},
        Row{"NameWithoutADot", "nodot", "nodot"}, Row{"NameThatIsGzWithoutADot", "gz", "gz"},
        Row{"NameThatIsADotAndGz", ".gz", ".gz"}, Row{"EmptySectionBeforeGz", "a..gz", ".gz"},
        Row{"GzTwice", "a.gz.gz", "gz.gz"}, Row{"GzBeforeAnotherExtension", "a.gz.tif", "tif"},
        Row{"OnlyAtTheEndIsGz", "a.tgz", "tgz"},
        Row{"GzWithABlankBehindIsAnotherExtension", "a.stl.gz ", "gz "},
        Row{"GzWithABlankBeforeIsAnotherExtension", "a.stl. gz", " gz"},
        Row{"NothingBehindADotAtTheEnd", "a.", ""},
        Row{"NothingBehindADotAtTheEndThoughGzComesBefore", "a.stl.gz.", ""},
        Row{"HiddenFile", ".profile", "profile"}, Row{"DotInTheFolderOnly", "/d.e/Name", "e/name"},
        Row{"DotInTheFolderAndGz", "/d.e/name.gz", "e/name.gz"},
        Row{"BlanksAreKept", "my file.t i f", "t i f"}, Row{"Blank", " ", " "},
        Row{"Nothing", "", ""}, Row{"Dot", ".", ""}, Row{"Dots", "...", ""}),
    [](const testing::TestParamInfo<Row>& row) { return std::string(row.param.name); });

// The rule in the toolkit's own terms.
std::string bySections(const std::string& path) {
    const QString text = qt3::fromAscii(path);
    const QString last = qt3::lower(text.section('.', -1, -1));
    return qt3::ascii(last == "gz" ? qt3::lower(text.section('.', -2, -1)) : last);
}

TEST(FileExtensionRuleTest, IsThatOfTheToolkitsSectionsForAnyPath) {
    const std::string letters = "..ggzzGZ/aB ";
    std::mt19937 random(31);
    for (int i = 0; i < 20000; ++i) {
        std::string path(random() % 9, ' ');
        for (char& letter : path)
            letter = letters[random() % letters.size()];
        ASSERT_EQ(TEVU::fileExtension(path), bySections(path)) << path;
    }
}

} // namespace
