#include "FormatRules.h"

#include <gtest/gtest.h>
#include <locale>
#include <string>

namespace {

struct StSplit {
    const char* sName;
    const char* sIdentifier;
    const char* sFamily;
    const char* sRemainder;
};

const StSplit c_splits[] = {
    {"empty", "", "", ""},
    {"no colon", "abc", "abc", ""},
    {"one colon", "abc:x", "abc:x", ""},
    {"one colon in front", ":abc", ":abc", ""},
    {"one colon at the end", "abc:", "abc:", ""},
    {"two colons: the character before the first one is lost", "abc:x:1", "ab", "x:1"},
    {"first colon third: nothing is left of the family", "ab:x:1", "", "x:1"},
    {"first colon second: its character is lost", "a:x:1", "", "x:1"},
    {"first colon first: there is no character to lose", ":x:1", "", "x:1"},
    {"colons side by side", "abc::1", "ab", ":1"},
    {"nothing but colons", "::", "", ":"},
    {"colons at the end", "abcd::", "abc", ":"},
    {"three colons: the first one counts", "abc:x:y:1", "ab", "x:y:1"},
    {"long", "ruq scan:settings:1", "ruq sca", "settings:1"},
    {"blanks stay", " abc : x : 1 ", " abc", " x : 1 "},
};

struct StVersions {
    const char* sName;
    const char* sFile;
    const char* sOwn;
    bool bFuture;
};

const StVersions c_versions[] = {
    {"newer whole part", "2.0", "1.5", true},
    {"older whole part", "1.5", "2.0", false},
    {"newer fraction", "1.5", "1.4", true},
    {"older fraction", "1.4", "1.5", false},
    {"equal texts", "1.5", "1.5", false},
    {"equal numbers", "1.0", "1", false},
    {"equal numbers the other way", "1", "1.0", false},
    {"a decimal number: 1.10 is older than 1.2", "1.10", "1.2", false},
    {"a decimal number: 1.2 is newer than 1.10", "1.2", "1.10", true},
    {"whole part just reached", "3", "2.9", true},
    {"whole part not yet reached", "2.9", "3", false},
    {"whole numbers", "10", "9", true},
    {"below one", "0.5", "0.4", true},
    {"blank in front is skipped", " 2", "1", true},
    {"exponent", "1e1", "9", true},
    {"sign", "+2", "1", true},
    {"only the number in front counts", "2.0beta", "1.9", true},
    {"a third part does not count", "1.2.3", "1.2", false},
    {"the third part of the own version does not count either", "1.2", "1.2.3", false},
    {"beyond an int", "20261121153001", "20261121153000", true},
    {"beyond an int, older", "20261121153000", "20261121153001", false},
    {"beyond an int against a small one", "3000000000", "1", true},
    {"a small one against one beyond an int", "1", "3000000000", false},
    {"less negative", "-0.5", "-0.7", true},
    {"less negative with the same whole part", "-1.2", "-1.5", true},
    {"more negative with the same whole part", "-1.5", "-1.2", false},
    {"more negative", "-1.5", "-0.5", false},
    {"file is no number: 0 is not newer than 1", "abc", "1", false},
    {"file is no number: 0 is newer than -1", "abc", "-1", true},
    {"file is empty: 0", "", "1", false},
    {"own is no number: 1 is newer than 0", "1", "abc", true},
    {"own is no number: 0.5 is newer than 0", "0.5", "abc", true},
    {"own is empty: 0, not the number of the file", "1", "", true},
    {"own is blank: 0, not the number of the file", "1", "  ", true},
    {"neither is a number", "abc", "xyz", false},
    {"a letter in front is no number", "v2", "1", false},
};

/// Decimal numbers as they are written in most of Europe.
class CommaNumbers : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

} // namespace

TEST(FormatRules, IdentifierIsSplitAtItsFirstColonAndLosesTheCharacterBefore) {
    for (const StSplit& row : c_splits) {
        SCOPED_TRACE(row.sName);
        const TEVU::StIdentifier split = TEVU::splitIdentifier(row.sIdentifier);
        EXPECT_EQ(split.sFamily, row.sFamily);
        EXPECT_EQ(split.sRemainder, row.sRemainder);
    }
}

TEST(FormatRules, VersionsCompareAsDecimalNumbers) {
    for (const StVersions& row : c_versions) {
        SCOPED_TRACE(row.sName);
        EXPECT_EQ(TEVU::isFutureVersion(row.sFile, row.sOwn), row.bFuture);
    }
}

TEST(FormatRules, VersionsHaveADecimalPointInEveryLanguage) {
    const std::locale before =
        std::locale::global(std::locale(std::locale::classic(), new CommaNumbers));
    const bool newer = TEVU::isFutureVersion("1.5", "1.4");
    const bool older = TEVU::isFutureVersion("1.10", "1.2");
    std::locale::global(before);

    EXPECT_TRUE(newer);
    EXPECT_FALSE(older);
}
