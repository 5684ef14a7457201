#include <windows.h>

#include <ruqlib2core/ReplaceFile.h>

#include "TestFolder.h"

#include <Share.h>
#include <ruqlib2core/CException.h>

#include <system_error>

// The read-only attribute, both separators, and the system's words.

using namespace TEVU;

namespace {

using Names = std::vector<std::string>;

class ReplaceFileWindowsTest : public testing::Test {
protected:
    /// The message of the exception, or a text that says that there was none.
    std::string Refusal(const std::string& path) const {
        try {
            ReplaceFile(path, [](const std::string& newFile) { std::ofstream(newFile) << "new"; });
            return "replaced";
        } catch (const CException& failure) {
            return failure.Message();
        }
    }

    TestFolder m_folder;
};

std::string words(DWORD error) {
    return std::system_category().message(static_cast<int>(error));
}

} // namespace

TEST_F(ReplaceFileWindowsTest, ReadOnlyFileIsLeftWithAnException) {
    m_folder.Write("a", "old");
    ::SetFileAttributesA(m_folder.Path("a").c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(Refusal(m_folder.Path("a")), m_folder.Path("a") + ": " + words(ERROR_ACCESS_DENIED));

    EXPECT_EQ(m_folder.Read("a"), "old");
    ::SetFileAttributesA(m_folder.Path("a").c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(m_folder.Names(), Names{"a"});
}

TEST_F(ReplaceFileWindowsTest, MissingFolderIsAnExceptionWithThePathAndTheReason) {
    EXPECT_EQ(Refusal(m_folder.Path("missing/a")),
              m_folder.Path("missing/a") + ": " + words(ERROR_PATH_NOT_FOUND));
}

TEST_F(ReplaceFileWindowsTest, BothSeparatorsLeadToTheFile) {
    std::filesystem::create_directory(m_folder.Path("in"));

    EXPECT_EQ(Refusal(m_folder.Path("in\\a")), "replaced");

    EXPECT_EQ(m_folder.Read("in/a"), "new");
}

TEST_F(ReplaceFileWindowsTest, FileMayBeOnAShare) {
    NEEDS_A_SHARE_OF(m_folder.Path(""));
    m_folder.Write("a", "old");

    EXPECT_EQ(Refusal(support::withBackslashes(support::onShare(m_folder.Path("a")))), "replaced");

    EXPECT_EQ(m_folder.Read("a"), "new");
    EXPECT_EQ(m_folder.Names(), Names{"a"});
}

TEST_F(ReplaceFileWindowsTest, ShareThatIsNotThereIsAnExceptionWithThePath) {
    const std::string path = "//no-such-server.invalid/images/a";

    EXPECT_EQ(Refusal(path).compare(0, path.size() + 2, path + ": "), 0) << Refusal(path);
}
