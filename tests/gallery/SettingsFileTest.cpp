#include "SettingsFile.h"

#include "TempDir.h"

#include <gtest/gtest.h>
#include <ruqlib2core/CException.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueString.h>

using TEVU::CException;
using TEVU::CValueMap;

namespace {

template <class Read>
std::string complaint(const Read& read) {
    try {
        read();
    } catch (const CException& error) {
        return error.Message();
    }
    return "";
}

} // namespace

TEST(SettingsFileTest, EntriesAreLinesInTheOrderOfTheirKeys) {
    CValueMap map;
    map.SetEntry("name", new TEVU::CValueString("a \"b\" \\ c\nd"));
    map.SetEntry("check", new TEVU::CValueBool(true));
    map.SetEntry("count", new TEVU::CValueLong(-3));
    EXPECT_EQ(SettingsFile::toText(map), "check = true\n"
                                         "count = -3\n"
                                         "name = \"a \\\"b\\\" \\\\ c\\nd\"\n");
}

TEST(SettingsFileTest, WhatWasWrittenIsReadAgain) {
    const std::string text = "a b = false\nempty = \"\"\nn = 12\ntext = \" = \\\"\\\\n\\n\"\n";
    const CValueMap map = SettingsFile::fromText(text);
    EXPECT_EQ(map.EntryString("text"), " = \"\\n\n");
    EXPECT_EQ(map.EntryString("empty"), "");
    EXPECT_FALSE(map.EntryBool("a b", true));
    EXPECT_EQ(SettingsFile::toText(map), text);
}

TEST(SettingsFileTest, CommentsAndEmptyLinesAreSkipped) {
    EXPECT_EQ(SettingsFile::toText(SettingsFile::fromText("# a = 1\n\nb = 2")), "b = 2\n");
    EXPECT_EQ(SettingsFile::fromText("").Size(), 0u);
}

TEST(SettingsFileTest, LineThatIsNoEntryIsNamed) {
    for (const char* line : {"a", "a =", "a=1", " = 1", "a = yes", "a = 1.5", "a = \"b",
                             "a = \"b\"c", "a = ", "a = \"b\\"})
        EXPECT_EQ(complaint([=] { SettingsFile::fromText(std::string("b = 1\n") + line + '\n'); }),
                  std::string("this is no entry: ") + line);
}

TEST(SettingsFileTest, WhatCannotBeReadAgainIsNotWritten) {
    CValueMap number;
    number.SetEntry("a", new TEVU::CValueDouble(1.5));
    EXPECT_THROW(SettingsFile::toText(number), CException);
    for (const char* key : {"", "#a", "a = b", "a\nb"}) {
        CValueMap map;
        map.SetEntry(key, new TEVU::CValueLong(1));
        EXPECT_THROW(SettingsFile::toText(map), CException) << key;
    }
}

TEST(SettingsFileTest, FilesKeepAMap) {
    const support::TempDir dir;
    const CValueMap map = SettingsFile::fromText("a = 1\n");
    SettingsFile::write(map, dir.path("a.settings"));
    EXPECT_EQ(dir.read("a.settings"), "a = 1\n");
    EXPECT_EQ(SettingsFile::toText(SettingsFile::read(dir.path("a.settings"))), "a = 1\n");
}

TEST(SettingsFileTest, FileThatCannotBeReadOrWrittenIsNamed) {
    const support::TempDir dir;
    const std::string missing = dir.path("missing/a.settings");
    EXPECT_EQ(complaint([&] { SettingsFile::read(missing); }), "cannot read " + missing);
    EXPECT_EQ(complaint([&] { SettingsFile::read(dir.path()); }), "cannot read " + dir.path());
    EXPECT_EQ(complaint([&] { SettingsFile::write(CValueMap(), missing); }),
              "cannot write " + missing);

    const std::string broken = dir.writeFile("broken.settings", "nonsense\n");
    EXPECT_EQ(complaint([&] { SettingsFile::read(broken); }),
              broken + ": this is no entry: nonsense");
}

TEST(SettingsFileTest, FileStaysWhenTheMapCannotBeWritten) {
    const support::TempDir dir;
    const std::string path = dir.writeFile("a.settings", "a = 1\n");
    CValueMap map;
    map.SetEntry("a", new TEVU::CValueDouble(1.5));
    EXPECT_THROW(SettingsFile::write(map, path), CException);
    EXPECT_EQ(dir.read("a.settings"), "a = 1\n");
}
