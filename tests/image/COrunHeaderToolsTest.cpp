#include <ruqlib2image/COrunHeaderTools.h>

#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueVector.h>
#include <ruqlib2image/CImage.h>

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <string>

using namespace TEVU;

namespace {

class COrunHeaderToolsTest : public testing::Test {
protected:
    CImage image{IImage::CType::eUInt8, CSize(2, 2)};

    std::string historyAfter(const std::string& entry) {
        COrunHeaderTools::AddToHistory(image, CValueString(entry));
        std::string history;
        EXPECT_TRUE(COrunHeaderTools::GetHistory(image, history));
        return history;
    }
};

using TextGetter = bool (*)(const IImage&, std::string&);
using TextSetter = void (*)(IImage&, const char*, unsigned int);

struct StTextCase {
    const char* name;
    TextGetter get;
    TextSetter set;
};

void PrintTo(const StTextCase& row, std::ostream* out) {
    *out << row.name;
}

class COrunHeaderToolsTextTest : public testing::TestWithParam<StTextCase> {
protected:
    CImage image{IImage::CType::eUInt8, CSize(2, 2)};
    std::string text = "as it was";
};

} // namespace

TEST_F(COrunHeaderToolsTest, SpacingComesBackExactlyOnAllAxes) {
    const double tiny = std::numeric_limits<double>::denorm_min();

    COrunHeaderTools::SetSpacing(image, 1e-6, tiny, -3);

    double x = 0, y = 0, z = 0;
    ASSERT_TRUE(COrunHeaderTools::GetSpacing(image, x, y, z));
    EXPECT_EQ(x, 1e-6);
    EXPECT_EQ(y, tiny);
    EXPECT_EQ(z, -3);
}

TEST_F(COrunHeaderToolsTest, MissingSpacingLeavesTheArgumentsAlone) {
    double x = 7, y = 8, z = 9;

    EXPECT_FALSE(COrunHeaderTools::GetSpacing(image, x, y, z));

    EXPECT_EQ(x, 7);
    EXPECT_EQ(y, 8);
    EXPECT_EQ(z, 9);
}

TEST_F(COrunHeaderToolsTest, SpacingWithoutThreeNumbersIsNone) {
    COrunHeaderTools::SetSpacing(image, 1, 2, 3);
    auto* spacing = dynamic_cast<CValueVector*>(image.Header().Entry("spacing", true));
    ASSERT_TRUE(spacing);
    spacing->SetEntry(2, new CValueLong(3));
    double x = 7, y = 8, z = 9;

    EXPECT_FALSE(COrunHeaderTools::GetSpacing(image, x, y, z));

    EXPECT_EQ(x, 7);
}

TEST_F(COrunHeaderToolsTest, FeaturesHaveAKeyOfTheirOwn) {
    COrunHeaderTools::SetSpacing(image, 1, 2, 3);
    COrunHeaderTools::SetCreator(image, "c", 1);
    COrunHeaderTools::SetDescription(image, "d", 1);
    COrunHeaderTools::ReplaceHistory(image, "h", 1);

    EXPECT_FALSE(image.Header().HasEntry(COrunHeaderTools::c_sTagFeatures));
    image.Header().SetEntry(COrunHeaderTools::c_sTagFeatures, new CValueMap);
    EXPECT_TRUE(image.Header().HasEntry(COrunHeaderTools::c_sTagFeatures, typeid(CValueMap)));
    EXPECT_EQ(image.Header().Size(), 5u);
}

TEST_F(COrunHeaderToolsTest, FirstHistoryEntryStandsAlone) {
    EXPECT_EQ(historyAfter("ChangeSpacing((1)->(2))"), "ChangeSpacing((1)->(2))");
}

TEST_F(COrunHeaderToolsTest, HistoryEntriesStandOnLinesOfTheirOwn) {
    historyAfter("Load");
    historyAfter("Crop");

    EXPECT_EQ(historyAfter("Save"), "Load\nCrop\nSave");
}

TEST_F(COrunHeaderToolsTest, EntryAfterAFinishedLineBeginsNoSecondOne) {
    COrunHeaderTools::ReplaceHistory(image, "Load\n", 5);

    EXPECT_EQ(historyAfter("Crop"), "Load\nCrop");
}

TEST_F(COrunHeaderToolsTest, LineBreaksInAnEntryBecomeBlanks) {
    EXPECT_EQ(historyAfter("a\nb\r\nc"), "a b  c");
}

TEST_F(COrunHeaderToolsTest, ReplacedHistoryLeavesNothingOfTheOldOne) {
    historyAfter("Load");

    COrunHeaderTools::ReplaceHistory(image, "New", 3);

    std::string history;
    ASSERT_TRUE(COrunHeaderTools::GetHistory(image, history));
    EXPECT_EQ(history, "New");
}

TEST_P(COrunHeaderToolsTextTest, ComesBackWithTheGivenLength) {
    GetParam().set(image, "abcdef", 3);

    ASSERT_TRUE(GetParam().get(image, text));
    EXPECT_EQ(text, "abc");
}

TEST_P(COrunHeaderToolsTextTest, HoldsAnyBytes) {
    const std::string bytes("a\0\xff\n", 4);

    GetParam().set(image, bytes.data(), static_cast<unsigned>(bytes.size()));

    ASSERT_TRUE(GetParam().get(image, text));
    EXPECT_EQ(text, bytes);
}

TEST_P(COrunHeaderToolsTextTest, EmptyTextIsAText) {
    GetParam().set(image, nullptr, 0);

    ASSERT_TRUE(GetParam().get(image, text));
    EXPECT_EQ(text, "");
}

TEST_P(COrunHeaderToolsTextTest, MissingTextLeavesTheArgumentAlone) {
    EXPECT_FALSE(GetParam().get(image, text));
    EXPECT_EQ(text, "as it was");
}

TEST_P(COrunHeaderToolsTextTest, EntryOfAnotherTypeIsNoText) {
    GetParam().set(image, "a", 1);
    image.Header().SetEntry(image.Header().Keys().front(), new CValueLong(1));

    EXPECT_FALSE(GetParam().get(image, text));
    EXPECT_EQ(text, "as it was");
}

INSTANTIATE_TEST_SUITE_P(AllTexts, COrunHeaderToolsTextTest,
                         testing::Values(StTextCase{"Creator", COrunHeaderTools::GetCreator,
                                                    COrunHeaderTools::SetCreator},
                                         StTextCase{"Description", COrunHeaderTools::GetDescription,
                                                    COrunHeaderTools::SetDescription},
                                         StTextCase{"History", COrunHeaderTools::GetHistory,
                                                    COrunHeaderTools::ReplaceHistory}),
                         [](const auto& row) { return std::string(row.param.name); });
