#include <ruqlib2core/ReplaceFile.h>

#include "OrdinaryChild.h"
#include "TestFolder.h"

#include <ruqlib2core/CException.h>

#include <functional>
#include <sys/stat.h>

// Links, permissions, and what only files of such systems can do while they are open.

using namespace TEVU;

namespace {

using Names = std::vector<std::string>;

std::function<void(const std::string&)> writes(const std::string& text) {
    return [text](const std::string& newFile) { std::ofstream(newFile) << text; };
}

unsigned permissionsOf(const std::string& path) {
    struct stat status = {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 07777;
}

class ReplaceFilePosixTest : public testing::Test {
protected:
    TestFolder m_folder;
};

} // namespace

TEST_F(ReplaceFilePosixTest, WriterMayPutAnotherFileInThePlaceOfTheEmptyOne) {
    m_folder.Write("a", "old");
    ASSERT_EQ(::chmod(m_folder.Path("a").c_str(), 0640), 0);

    ReplaceFile(m_folder.Path("a"), [this](const std::string& newFile) {
        m_folder.Write("own", "new");
        std::filesystem::rename(m_folder.Path("own"), newFile);
    });

    EXPECT_EQ(m_folder.Read("a"), "new");
    EXPECT_EQ(permissionsOf(m_folder.Path("a")), 0640u);
}

TEST_F(ReplaceFilePosixTest, PermissionsOfTheOldFileStay) {
    m_folder.Write("a", "old");
    ASSERT_EQ(::chmod(m_folder.Path("a").c_str(), 0640), 0);

    ReplaceFile(m_folder.Path("a"), writes("new"));

    EXPECT_EQ(permissionsOf(m_folder.Path("a")), 0640u);
}

TEST_F(ReplaceFilePosixTest, NewFileHasThePermissionsThatTheUserGivesNewFiles) {
    const mode_t before = ::umask(027);
    ReplaceFile(m_folder.Path("a"), writes("new"));
    ::umask(before);

    EXPECT_EQ(permissionsOf(m_folder.Path("a")), 0640u);
}

TEST_F(ReplaceFilePosixTest, DanglingLinkStaysALinkAndGetsItsTarget) {
    std::filesystem::create_symlink("target", m_folder.Path("link"));

    ReplaceFile(m_folder.Path("link"), writes("new"));

    EXPECT_TRUE(std::filesystem::is_symlink(m_folder.Path("link")));
    EXPECT_EQ(m_folder.Read("target"), "new");
    EXPECT_EQ(m_folder.Names(), (Names{"link", "target"}));
}

TEST_F(ReplaceFilePosixTest, LinkStaysALink) {
    m_folder.Write("a", "old");
    std::filesystem::create_symlink("a", m_folder.Path("link"));

    ReplaceFile(m_folder.Path("link"), writes("new"));

    EXPECT_TRUE(std::filesystem::is_symlink(m_folder.Path("link")));
    EXPECT_EQ(m_folder.Read("a"), "new");
}

TEST_F(ReplaceFilePosixTest, FolderThatCannotBeWrittenIsAnException) {
    m_folder.Write("a", "old");
    ASSERT_EQ(::chmod(m_folder.Path("").c_str(), 0555), 0);

    const auto outcome = asOrdinaryUser(
        [](const support::ChildProcess::Arguments& path) -> std::string {
            try {
                ReplaceFile(path[0], writes("new"));
                return "replaced";
            } catch (const CException& failure) {
                return failure.Message();
            }
        },
        {m_folder.Path("a")});

    EXPECT_EQ(outcome.output, m_folder.Path("a") + ": Permission denied");
    EXPECT_EQ(m_folder.Read("a"), "old");
}

TEST_F(ReplaceFilePosixTest, MissingFolderIsAnExceptionWithThePathAndTheReason) {
    try {
        ReplaceFile(m_folder.Path("missing/a"), writes("new"));
        FAIL() << "no exception";
    } catch (const CException& failure) {
        EXPECT_NE(failure.Message().find(m_folder.Path("missing/a")), std::string::npos);
        EXPECT_NE(failure.Message().find("No such file"), std::string::npos) << failure.what();
    }
}
