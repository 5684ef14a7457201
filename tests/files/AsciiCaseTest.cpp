#include "AsciiCase.h"

#include "FileExtension.h"
#include "OtherLocale.h"

#include <gtest/gtest.h>
#include <string>

namespace {

const char* const c_capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
const char* const c_smallLetters = "abcdefghijklmnopqrstuvwxyz";

/// Every byte but the 26 letters of \a letters.
std::string allBut(const std::string& letters) {
    std::string bytes;
    for (int code = 0; code < 256; ++code) {
        if (letters.find(static_cast<char>(code)) == std::string::npos)
            bytes += static_cast<char>(code);
    }
    return bytes;
}

class AsciiCaseTest : public testing::TestWithParam<const char*> {};

TEST_P(AsciiCaseTest, ChangesTheLettersOfAsciiAndNothingElse) {
    const support::OtherLocale locale(GetParam());
    ASSERT_TRUE(locale.IsThere());

    EXPECT_EQ(TEVU::lowerCase(std::string(c_capitals)), c_smallLetters);
    EXPECT_EQ(TEVU::upperCase(std::string(c_smallLetters)), c_capitals);
    EXPECT_EQ(TEVU::lowerCase(allBut(c_capitals)), allBut(c_capitals));
    EXPECT_EQ(TEVU::upperCase(allBut(c_smallLetters)), allBut(c_smallLetters));
}

TEST_P(AsciiCaseTest, ExtensionsInCapitalsAreTheListedOnes) {
    const support::OtherLocale locale(GetParam());
    ASSERT_TRUE(locale.IsThere());

    EXPECT_EQ(TEVU::fileExtension("SCAN.TIFF"), "tiff");
    EXPECT_EQ(TEVU::missingExtension("SCAN.TIFF", "Images (*.tiff)"), "");
    EXPECT_EQ(TEVU::missingExtension("SCAN.IASS.GZ", "Volumes (*.iass.gz)"), "");
}

INSTANTIATE_TEST_SUITE_P(Locales, AsciiCaseTest, testing::Values("C", "de_DE.UTF-8", "tr_TR.UTF-8"),
                         [](const testing::TestParamInfo<const char*>& row) {
                             return std::string(row.param).substr(0, 2);
                         });

} // namespace
