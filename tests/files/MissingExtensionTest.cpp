#include "FileExtension.h"

#include "ExtensionModel.h"

#include <gtest/gtest.h>
#include <map>
#include <ostream>
#include <random>
#include <ruqlib2core/CException.h>
#include <string>
#include <vector>

namespace {

using TEVU::missingExtension;

struct Row {
    const char* name;
    const char* file;
    const char* filter;
    const char* missing;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

std::string nameOf(const testing::TestParamInfo<Row>& row) {
    return row.param.name;
}

class MissingExtensionTest : public testing::TestWithParam<Row> {};

TEST_P(MissingExtensionTest, IsAsExpected) {
    EXPECT_EQ(missingExtension(GetParam().file, GetParam().filter), GetParam().missing);
}

TEST_P(MissingExtensionTest, IsThatOfTheModel) {
    EXPECT_EQ(extension_model::missing(GetParam().file, GetParam().filter), GetParam().missing);
}

INSTANTIATE_TEST_SUITE_P(
    Case, MissingExtensionTest,
    testing::Values(Row{"NameCountsInLowerCase", "Scan.PNG", "Images (*.png)", ""},
                    Row{"CompoundEndingCountsInLowerCase", "S.REK.Gz", "Volumes (*.rek.gz)", ""},
                    Row{"PatternInUpperCaseMatchesNoLowerName", "a.png", "Images (*.PNG)", ".PNG"},
                    Row{"PatternInUpperCaseMatchesNoUpperName", "a.PNG", "Images (*.PNG)", ".PNG"},
                    Row{"PatternOfBothCasesMatchesNone", "a.Png", "Images (*.Png)", ".Png"},
                    Row{"LettersBeyondAsciiStay", "a.\xc4", "Images (*.\xe4)", ".\xe4"},
                    Row{"LettersBeyondAsciiMatchThemselves", "a.\xc4", "Images (*.\xc4)", ""}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    NameOf, MissingExtensionTest,
    testing::Values(Row{"NoDotAtAll", "scan", "Images (*.png *.tif)", ".png"},
                    Row{"OtherExtension", "scan.jpg", "Images (*.png *.tif)", ".png"},
                    Row{"SeveralDots", "scan.2.png", "Images (*.png)", ""},
                    Row{"SeveralDotsOfWhichTheLastCounts", "scan.png.bak", "Images (*.png)",
                        ".png"},
                    Row{"Nothing", "", "Images (*.png)", ".png"},
                    Row{"Dot", ".", "Images (*.png)", ".png"},
                    Row{"DotThatIsListed", ".", "Plain (*.)", ""},
                    Row{"DotAtTheEnd", "scan.", "Images (*.png)", ".png"},
                    Row{"DotAtTheEndThatIsListed", "scan.", "Plain (*.)", ""},
                    Row{"OnlyAnExtension", ".png", "Images (*.png)", ""},
                    Row{"DotInTheFolderOnly", "/d.e/name", "Images (*.png)", ".png"},
                    Row{"DotInTheFolderToo", "/d.e/name.png", "Images (*.png)", ""},
                    Row{"FolderThatEndsInTheExtension", "/d.png/name", "Images (*.png)", ".png"},
                    Row{"FolderAndNameListedAsTheyStand", "/d.e/name", "Odd (*.e/name)", ""},
                    Row{"BlankInTheExtension", "a.my ext", "Odd (*.my ext)", ""},
                    Row{"BlankAtTheEnd", "a.png ", "Images (*.png)", ".png"},
                    Row{"BlankAtTheEndOfBoth", "a.png ", "Images (*.png )", ""},
                    Row{"ParenthesisAtTheEnd", "a.png)", "Images (*.png)", ".png"},
                    Row{"BlankAndParenthesisAsTheFilterIsRead", "a.png )", "Images (*.png)", ""},
                    Row{"StarAsTheExtension", "a.*", "All (*.*)", ""}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Compound, MissingExtensionTest,
    testing::Values(Row{"Iass", "a.iass.gz", "Volumes (*.iass.gz)", ""},
                    Row{"Svif", "a.svif.gz", "Volumes (*.svif.gz)", ""},
                    Row{"Rek", "a.rek.gz", "Volumes (*.rek.gz)", ""},
                    Row{"Stl", "mesh.stl.gz", "Surfaces (*.stl.gz)", ""},
                    Row{"IassIsNotItsLastSection", "a.iass.gz", "Zipped (*.gz)", ".gz"},
                    Row{"SvifIsNotItsLastSection", "a.svif.gz", "Zipped (*.gz)", ".gz"},
                    Row{"RekIsNotItsLastSection", "a.rek.gz", "Zipped (*.gz)", ".gz"},
                    Row{"StlIsNotItsLastSection", "a.stl.gz", "Zipped (*.gz)", ".gz"},
                    Row{"OthersAreTheirLastSection", "a.tar.gz", "Zipped (*.gz)", ""},
                    Row{"OthersAreNeverTheirLastTwo", "a.tar.gz", "Zipped (*.tar.gz)", ".tar.gz"},
                    Row{"LastSectionAloneIsAnother", "mesh.gz", "Surfaces (*.stl.gz)", ".stl.gz"},
                    Row{"FirstSectionAloneIsAnother", "mesh.stl", "Surfaces (*.stl.gz)", ".stl.gz"},
                    Row{"NeedsItsOwnDot", "rek.gz", "Zipped (*.gz)", ""},
                    Row{"NeedsItsOwnDotAndNothingBetween", "a.xrek.gz", "Zipped (*.gz)", ""},
                    Row{"MayBeTheWholeName", ".rek.gz", "Volumes (*.rek.gz)", ""},
                    Row{"GoesBeforeALaterDot", "x.rek.gz.bak", "Saved (*.bak *.rek.gz)", ".bak"},
                    Row{"GoesOnToTheEndOfTheName", "x.rek.gz.bak", "Saved (*.rek.gz.bak)", ""},
                    Row{"IsFoundInsideALongerOne", "x.rek.gzip", "Zipped (*.gzip)", ".gzip"},
                    Row{"InsideALongerOneGoesOnToTheEnd", "x.rek.gzip", "Zipped (*.rek.gzip)", ""},
                    Row{"IsFoundInTheFolder", "/d.rek.gz/a.png", "Images (*.png)", ".png"},
                    Row{"TwiceIsTheLast", "a.rek.gz.rek.gz", "Volumes (*.rek.gz)", ""},
                    Row{"IassGoesBeforeALaterSvif", "a.iass.gz.svif.gz", "V (*.svif.gz)",
                        ".svif.gz"},
                    Row{"IassGoesBeforeAnEarlierSvif", "a.svif.gz.iass.gz", "V (*.iass.gz)", ""},
                    Row{"SvifGoesBeforeALaterRek", "a.svif.gz.rek.gz", "V (*.rek.gz)", ".rek.gz"},
                    Row{"SvifGoesBeforeAnEarlierRek", "a.rek.gz.svif.gz", "V (*.svif.gz)", ""},
                    Row{"RekGoesBeforeALaterStl", "a.rek.gz.stl.gz", "V (*.stl.gz)", ".stl.gz"},
                    Row{"RekGoesBeforeAnEarlierStl", "a.stl.gz.rek.gz", "V (*.rek.gz)", ""},
                    Row{"RekWithALaterStlIsBoth", "a.rek.gz.stl.gz", "V (*.rek.gz.stl.gz)", ""}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Filter, MissingExtensionTest,
    testing::Values(
        Row{"ListedFirst", "a.png", "Images (*.png *.tif)", ""},
        Row{"ListedLast", "a.tif", "Images (*.png *.tif)", ""},
        Row{"ListedInASecondList", "a.tif", "A (*.png);;B (*.jpg *.tif);;C (*.gif)", ""},
        Row{"FirstOfTheFirstList", "a", "A (*.png *.jpg);;B (*.tif)", ".png"},
        Row{"WithoutParentheses", "a.png", "*.png", ""},
        Row{"WithoutParenthesesMissing", "a", "*.png", ".png"},
        Row{"WithoutParenthesesEndsAtOneBlank", "a.png ", "*.png", ".png"},
        Row{"PatternsWithoutParentheses", "a.tif", "*.png *.tif", ""},
        Row{"WithAParenthesisTooFew", "a", "Images (*.png", ".png"},
        Row{"CompoundEndsAtTheParenthesis", "a", "Surfaces (*.stl.gz)", ".stl.gz"},
        Row{"CompoundEndsAtABlank", "a", "Surfaces (*.stl.gz *.stl)", ".stl.gz"},
        Row{"LongerThanTheName", "a.pn", "Images (*.png)", ".png"},
        Row{"ShorterThanTheName", "a.png", "Images (*.pn)", ".pn"},
        Row{"EndOfALongerPattern", "a.gz", "Volumes (*.rek.gz)", ".rek.gz"},
        Row{"SemicolonsSeparateNoPatterns", "a.png", "Images (*.png;*.tif)", ".png;*.tif"},
        Row{"TabsSeparateNoPatterns", "a.png", "Images (*.png\t*.tif)", ".png\t*.tif"},
        Row{"SeveralBlanksSeparate", "a.tif", "Images (  *.png   *.tif  )", ""},
        Row{"NestedParentheses", "a", "Images ((*.png))", ".png"},
        Row{"TextBeforeTheStar", "a.png", "Scans (scan*.png)", ""},
        Row{"TextBeforeTheStarMissing", "a", "Scans (scan*.png)", ".png"},
        Row{"TextWithADotIsNoPattern", "a.png", "Files like a.png (*.tif)", ".tif"},
        Row{"DotOnlyIsAnExtension", "scan", "Plain (*.)", "."},
        Row{"DoubleDot", "scan", "Odd (*..png)", "..png"},
        Row{"StarIsNoWildcardAsExtension", "a.png", "All (*.*)", ".*"},
        Row{"ListedBehindAMalformedPattern", "a.png", "All (*);;Images (*.png)", ""},
        Row{"ListedBehindTwoStars", "a.png", "Images (**.png)", ""},
        Row{"ListedBehindAPatternWithoutDot", "a.png", "Images (*png *.png)", ""}),
    nameOf);

struct Malformed {
    const char* name;
    const char* file;
    const char* filter;
};

void PrintTo(const Malformed& row, std::ostream* out) {
    *out << row.name;
}

class MalformedTypeListTest : public testing::TestWithParam<Malformed> {};

TEST_P(MalformedTypeListTest, IsThrown) {
    try {
        missingExtension(GetParam().file, GetParam().filter);
        FAIL() << "nothing was thrown";
    } catch (const TEVU::CException& exception) {
        EXPECT_EQ(exception.Place(), "CFileDialog::GetMissingExtension");
        EXPECT_EQ(exception.Message(), "Malformed type list");
        EXPECT_EQ(exception.Cause(), nullptr);
    }
}

TEST_P(MalformedTypeListTest, IsThatOfTheModel) {
    EXPECT_FALSE(extension_model::missing(GetParam().file, GetParam().filter));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MalformedTypeListTest,
    testing::Values(Malformed{"Empty", "a.png", ""}, Malformed{"EmptyForNoName", "", ""},
                    Malformed{"BlankOnly", "a.png", " "},
                    Malformed{"NoStar", "a.png", "Images (png)"},
                    Malformed{"NoStarButTheExtension", "a.png", "Images (.png)"},
                    Malformed{"StarAlone", "a.png", "All (*)"},
                    Malformed{"StarAtTheEnd", "a.png", "All *"},
                    Malformed{"StarBeforeALetter", "a.tif", "Images (*png *.png)"},
                    Malformed{"StarBeforeABlank", "a.png", "Images (* .png)"},
                    Malformed{"TwoStars", "a.tif", "Images (**.png)"},
                    Malformed{"FirstOfTwoPatterns", "a.tif", "All (*);;Images (*.png)"},
                    Malformed{"NameWithoutDotAndNoStar", "a", "Images (png)"}),
    [](const testing::TestParamInfo<Malformed>& row) { return std::string(row.param.name); });

/// Texts of pieces that the rule looks for, and of letters that almost make them.
class Generator {
public:
    std::string name() {
        return text({"a", "Z", "/", ".rek.gz", ".Stl.gz", ".svif.gz", ".iass.gz"});
    }
    std::string filter() {
        return text({"*", "*.", "(", ")", " *.rek.gz", "*.g ", ";;", "*.stl.gz)"});
    }
    /// Often listed: it ends as a pattern of the filter does.
    std::string nameFor(const std::string& filter) {
        const std::size_t star = filter.find('*', below(filter.size() + 1));
        if (star == std::string::npos)
            return name();
        const std::size_t end = filter.find_first_of(" )", star);
        return name() + filter.substr(star + 1, end - star - 1);
    }

    std::size_t below(std::size_t limit) { return m_random() % limit; }

private:
    std::string text(const std::vector<std::string>& pieces) {
        static const std::string letters = "..**  ()gzrekGZ\xe4";
        std::string all;
        for (std::size_t left = below(10); left > 0; --left)
            all += below(3) ? std::string(1, letters[below(letters.size())])
                            : pieces[below(pieces.size())];
        return all;
    }

    std::mt19937 m_random{20};
};

std::string outcome(const std::string& file, const std::string& filter) {
    try {
        return "missing '" + missingExtension(file, filter) + '\'';
    } catch (const TEVU::CException& exception) {
        return exception.Message();
    }
}

std::string modelOutcome(const std::string& file, const std::string& filter) {
    const auto missing = extension_model::missing(file, filter);
    return missing ? "missing '" + *missing + '\'' : "Malformed type list";
}

TEST(MissingExtensionRuleTest, IsThatOfTheModelForAnyNameAndFilter) {
    Generator generator;
    std::map<std::string, int> seen;
    for (int i = 0; i < 100000; ++i) {
        const std::string filter = generator.filter();
        const std::string file = i % 2 ? generator.name() : generator.nameFor(filter);
        const std::string expected = modelOutcome(file, filter);
        ASSERT_EQ(outcome(file, filter), expected) << '\'' << file << "' with '" << filter << '\'';
        ++seen[expected == "missing ''" ? "listed" : expected[0] == 'M' ? "malformed" : "missing"];
    }
    EXPECT_GT(seen["listed"], 5000);
    EXPECT_GT(seen["malformed"], 10000);
    EXPECT_GT(seen["missing"], 10000);
}

TEST(FileExtensionRuleTest, IsThatOfTheModelForAnyPath) {
    Generator generator;
    for (int i = 0; i < 100000; ++i) {
        const std::string path = generator.name();
        ASSERT_EQ(TEVU::fileExtension(path), extension_model::ofFile(path)) << path;
    }
}

} // namespace
