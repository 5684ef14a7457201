#include "CRegistryTest.h"

#include <Share.h>
#include <ruqlib2core/CValueLong.h>

#include <windows.h>

// The user's folder for settings, the read-only attribute, and files that others hold open.

using namespace TEVU;
using namespace registry_tests;
using support::inChild;

namespace {

using CRegistryWindowsTest = CRegistryTest;

std::string storedText() {
    return setAndGet("text");
}

/// A file that is open, and closed with this object.
class HeldFile {
public:
    HeldFile(const std::string& path, DWORD shared)
        : m_handle(::CreateFileA(path.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, 0,
                                 nullptr)) {
        EXPECT_NE(m_handle, INVALID_HANDLE_VALUE) << path;
    }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;
    ~HeldFile() { ::CloseHandle(m_handle); }

private:
    HANDLE m_handle;
};

} // namespace

TEST_F(CRegistryWindowsTest, FileIsInTheUsersApplicationData) {
    support::unsetVariable("RUQ_REGISTRY");
    support::setVariable("APPDATA", m_folder.Path("data of the user"));

    const auto outcome = inChild([] { return setAndGet("text") + CRegistry::Obj().FilePath(); });

    EXPECT_EQ(outcome.output, "text" + m_folder.Path("data of the user") + "/ruq/registry.json");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_TRUE(std::filesystem::exists(m_folder.Path("data of the user/ruq/registry.json")));
}

TEST_F(CRegistryWindowsTest, UserWhoseNameIsBeyondTheCodePageHasSettingsToo) {
    const std::wstring folder =
        std::filesystem::path(m_folder.Path("")).wstring() + L"\x0141\x4e2d";
    support::unsetVariable("RUQ_REGISTRY");
    ::_wputenv_s(L"APPDATA", folder.c_str());

    const auto outcome = inChild(storedText);

    EXPECT_EQ(outcome.output, "text");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_TRUE(std::filesystem::exists(folder + L"/ruq/registry.json"));
}

TEST_F(CRegistryWindowsTest, FileMayBeNamedByAVariableBeyondTheCodePage) {
    const std::wstring file =
        std::filesystem::path(m_folder.Path("")).wstring() + L"\x0141\x4e2d.json";
    ::_wputenv_s(L"RUQ_REGISTRY", file.c_str());

    const auto outcome = inChild(storedText);

    EXPECT_EQ(outcome.output, "text");
    EXPECT_TRUE(std::filesystem::exists(file));
}

TEST_F(CRegistryWindowsTest, BothSeparatorsLeadToTheFile) {
    std::string path = m_folder.Path("some\\folder/registry.json");
    support::setVariable("RUQ_REGISTRY", path);

    EXPECT_EQ(inChild(storedText).output, "text");
    EXPECT_TRUE(std::filesystem::exists(m_folder.Path("some/folder/registry.json")));
}

TEST_F(CRegistryWindowsTest, FileMayBeOnAShare) {
    NEEDS_A_SHARE_OF(m_folder.Path(""));
    const std::string path = support::onShare(m_folder.Path("some/folder/registry.json"));
    support::setVariable("RUQ_REGISTRY", support::withBackslashes(path));

    const auto outcome = inChild([] { return setAndGet("text") + CRegistry::Obj().FilePath(); });

    EXPECT_EQ(outcome.output, "text" + path);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_TRUE(std::filesystem::exists(m_folder.Path("some/folder/registry.json")));
    EXPECT_TRUE(std::filesystem::exists(m_folder.Path("some/folder/registry.json.lock")));
}

TEST_F(CRegistryWindowsTest, ReadOnlyFileCostsALineAndTheValueHolds) {
    m_folder.Write("registry.json", "{\"old\": 1}");
    ::SetFileAttributesA(m_folder.Path("registry.json").c_str(), FILE_ATTRIBUTE_READONLY);

    const auto outcome = inChild([] {
        return setAndGet("text") + " " + std::to_string(CRegistry::Obj().EntryLong("old", 0));
    });

    EXPECT_EQ(outcome.output, "text 1");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(linesIn(outcome.errors), 1u) << outcome.errors;
    EXPECT_EQ(m_folder.Read("registry.json"), "{\"old\": 1}");
    ::SetFileAttributesA(m_folder.Path("registry.json").c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(m_folder.Names(), (Names{"registry.json", "registry.json.lock"}));
}

TEST_F(CRegistryWindowsTest, ChangeThatCouldNotBeWrittenGoesToTheFileWithTheNextThatCan) {
    m_folder.Write("registry.json", "{}");
    const std::string path = m_folder.Path("registry.json");
    ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
    setAndGet("text");
    ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    ASSERT_EQ(SettingsInFile(), RegistryText::Settings{});

    CRegistry::Obj().SetEntry("other", new CValueLong(1));

    EXPECT_EQ(SettingsInFile(),
              (RegistryText::Settings{{"key", std::string("text")}, {"other", 1L}}));
}

TEST_F(CRegistryWindowsTest, FileThatAnotherProgramHoldsIsNotTakenForABrokenOne) {
    m_folder.Write("registry.json", "{\"key\": \"kept\"}");
    {
        const HeldFile held(m_folder.Path("registry.json"), 0);
        const auto outcome =
            inChild([] { return CRegistry::Obj().GetString("key", "unavailable"); });
        EXPECT_EQ(outcome.output, "unavailable");
        EXPECT_EQ(linesIn(outcome.errors), 1u) << outcome.errors;
    }

    EXPECT_EQ(m_folder.Names(), Names{"registry.json"});
    EXPECT_EQ(CRegistry::Obj().GetString("key", "missing"), "kept");
}

TEST_F(CRegistryWindowsTest, FileThatAnotherProgramOnlyReadsIsReplacedAsSoonAsItIsClosed) {
    m_folder.Write("registry.json", "{}");
    support::ChildProcess writer(
        [](support::ChildProcess::Output& output, const support::ChildProcess::Arguments&) {
            output.write("running\n");
            output.write(setAndGet("text"));
        });
    {
        // Without FILE_SHARE_DELETE nobody may rename over it.
        const HeldFile held(m_folder.Path("registry.json"), FILE_SHARE_READ | FILE_SHARE_WRITE);
        ASSERT_EQ(writer.readLine(), "running");
    }

    const auto outcome = writer.wait();

    EXPECT_EQ(outcome.output, "text");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(SettingsInFile(), (RegistryText::Settings{{"key", std::string("text")}}));
}
