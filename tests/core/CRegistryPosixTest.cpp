#include "CRegistryTest.h"

#include "OrdinaryChild.h"

#include <OtherLocale.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>

#include <sys/stat.h>

// Links, pipes, permissions, locales, and where the settings of a user are.

using namespace TEVU;
using namespace registry_tests;
using support::ChildProcess;
using support::inChild;

using CRegistryPosixTest = CRegistryTest;

TEST_F(CRegistryPosixTest, FileIsInTheUsersConfigurationFolder) {
    support::unsetVariable("RUQ_REGISTRY");
    support::setVariable("XDG_CONFIG_HOME", m_folder.Path("config"));
    const auto configured = inChild([] { return CRegistry::Obj().FilePath(); });
    support::unsetVariable("XDG_CONFIG_HOME");
    support::setVariable("HOME", m_folder.Path("home"));
    support::setVariable("RUQ_REGISTRY", "");
    const auto byDefault = inChild([] { return CRegistry::Obj().FilePath(); });

    EXPECT_EQ(configured.output, m_folder.Path("config/ruq/registry.json"));
    EXPECT_EQ(byDefault.output, m_folder.Path("home/.config/ruq/registry.json"));
}

TEST_F(CRegistryPosixTest, LinkToTheFileStaysALink) {
    m_folder.Write("real.json", "{}");
    std::filesystem::create_symlink("real.json", m_folder.Path("registry.json"));

    inChild([] { return setAndGet("text"); });

    EXPECT_TRUE(std::filesystem::is_symlink(m_folder.Path("registry.json")));
    EXPECT_EQ(SettingsInFile().size(), 1u);
}

TEST_F(CRegistryPosixTest, FileThatMayNotBeReadIsKeptAside) {
    m_folder.Write("registry.json", "{\"key\": \"secret\"}");
    ASSERT_EQ(::chmod(m_folder.Path("registry.json").c_str(), 0), 0);

    const auto outcome =
        asOrdinaryUser([](const ChildProcess::Arguments&) { return setAndGet("text"); }, {});

    EXPECT_EQ(outcome.output, "text");
    EXPECT_EQ(linesIn(outcome.errors), 1u) << outcome.errors;
    EXPECT_EQ(SettingsInFile().size(), 1u);
    EXPECT_TRUE(std::filesystem::exists(m_folder.Path("registry.json.unreadable-1")));
}

TEST_F(CRegistryPosixTest, FileThatMayNeitherBeReadNorMovedStays) {
    m_folder.Write("registry.json", "{\"key\": \"secret\"}");
    ASSERT_EQ(::chmod(m_folder.Path("registry.json").c_str(), 0), 0);
    ASSERT_EQ(::chmod(m_folder.Path("").c_str(), 0555), 0);

    const auto outcome = asOrdinaryUser(
        [](const ChildProcess::Arguments&) {
            const std::string found = CRegistry::Obj().GetString("key", "missing");
            return found + "," + setAndGet("text");
        },
        {});

    EXPECT_EQ(outcome.output, "missing,text");
    EXPECT_EQ(linesIn(outcome.errors), 2u)
        << outcome.errors; // one for the look, one for the change
    EXPECT_EQ(m_folder.Names(), Names{"registry.json"});
    ASSERT_EQ(::chmod(m_folder.Path("registry.json").c_str(), 0600), 0);
    EXPECT_EQ(m_folder.Read("registry.json"), "{\"key\": \"secret\"}");
}

TEST_F(CRegistryPosixTest, PipeInPlaceOfTheFileDoesNotMakeTheProcessWait) {
    ASSERT_EQ(::mkfifo(m_folder.Path("registry.json").c_str(), 0666), 0);

    const auto outcome = inChild([] { return setAndGet("text"); });

    EXPECT_EQ(outcome.output, "text");
    EXPECT_TRUE(std::filesystem::is_fifo(m_folder.Path("registry.json")));
}

TEST_F(CRegistryPosixTest, FolderThatCannotBeWrittenCostsALineAndTheValueHolds) {
    m_folder.Write("registry.json", "{\"old\": 1}");
    ASSERT_EQ(::chmod(m_folder.Path("").c_str(), 0555), 0);

    const auto outcome = asOrdinaryUser(
        [](const ChildProcess::Arguments&) {
            std::ostringstream seen;
            seen << setAndGet("text") << " " << CRegistry::Obj().EntryLong("old", 0);
            seen << " " << CRegistry::Obj().RemoveEntry("old");
            seen << " " << CRegistry::Obj().HasEntry("old");
            return seen.str();
        },
        {});

    EXPECT_EQ(outcome.output, "text 1 1 0");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(linesIn(outcome.errors), 2u) << outcome.errors; // one a change
    EXPECT_NE(outcome.errors.find("Permission denied"), std::string::npos) << outcome.errors;
    EXPECT_EQ(m_folder.Read("registry.json"), "{\"old\": 1}");
}

TEST_F(CRegistryPosixTest, ChangeThatCouldNotBeWrittenGoesToTheFileWithTheNextThatCan) {
    const auto outcome = asOrdinaryUser(
        [](const ChildProcess::Arguments& folder) {
            std::filesystem::permissions(folder[0], std::filesystem::perms(0555));
            setAndGet("text");
            std::filesystem::permissions(folder[0], std::filesystem::perms(0755));
            CRegistry::Obj().SetEntry("other", new CValueLong(1));
            return std::string();
        },
        {m_folder.Path("")});

    EXPECT_EQ(linesIn(outcome.errors), 1u) << outcome.errors;
    EXPECT_EQ(SettingsInFile(),
              (RegistryText::Settings{{"key", std::string("text")}, {"other", 1L}}));
}

TEST_F(CRegistryPosixTest, SameValueIsTriedAgainWhenItCouldNotBeWritten) {
    asOrdinaryUser(
        [](const ChildProcess::Arguments& folder) {
            std::filesystem::permissions(folder[0], std::filesystem::perms(0555));
            setAndGet("text");
            std::filesystem::permissions(folder[0], std::filesystem::perms(0755));
            return setAndGet("text");
        },
        {m_folder.Path("")});

    EXPECT_EQ(SettingsInFile(), (RegistryText::Settings{{"key", std::string("text")}}));
}

TEST_F(CRegistryPosixTest, DecimalPointOfTheLocaleDoesNotMatter) {
    for (const char* locale : {"de_DE.UTF-8", "tr_TR.UTF-8", "C"}) {
        m_folder.Write("registry.json", "{\"half\": 0.5}");

        const auto outcome = inChild(
            [](const ChildProcess::Arguments& name) {
                const support::OtherLocale other(name[0]);
                if (!other.IsThere())
                    return std::string("there is no such locale");
                CRegistry::Obj().SetEntry("quarter", new CValueDouble(0.25));
                return std::to_string(CRegistry::Obj().EntryDouble("half", 0) == 0.5);
            },
            {locale});

        EXPECT_EQ(outcome.output, "1") << locale;
        EXPECT_EQ(outcome.errors, "") << locale;
        EXPECT_EQ(SettingsInFile(), (RegistryText::Settings{{"half", 0.5}, {"quarter", 0.25}}));
    }
}
