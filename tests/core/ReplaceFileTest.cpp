#include <ruqlib2core/ReplaceFile.h>

#include "ChildProcess.h"
#include "TestFolder.h"

#include <ruqlib2core/CException.h>

#include <csignal>
#include <stdexcept>
#include <sys/stat.h>

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

class ReplaceFileTest : public testing::Test {
protected:
    TestFolder m_folder;
};

} // namespace

TEST_F(ReplaceFileTest, MakesAFileThatWasMissing) {
    ReplaceFile(m_folder.Path("a"), writes("new"));

    EXPECT_EQ(m_folder.Read("a"), "new");
    EXPECT_EQ(m_folder.Names(), Names{"a"});
}

TEST_F(ReplaceFileTest, OldFileIsWholeUntilTheNewOneIs) {
    m_folder.Write("a", "old");

    ReplaceFile(m_folder.Path("a"), [this](const std::string& newFile) {
        writes("new")(newFile);
        EXPECT_EQ(m_folder.Read("a"), "old");
        EXPECT_EQ(newFile.substr(0, newFile.rfind('/')),
                  m_folder.Path("").substr(0, newFile.rfind('/')));
    });

    EXPECT_EQ(m_folder.Read("a"), "new");
    EXPECT_EQ(m_folder.Names(), Names{"a"});
}

TEST_F(ReplaceFileTest, ExceptionOfTheWriterPassesAndLeavesTheOldFile) {
    m_folder.Write("a", "old");
    const auto write = [](const std::string& newFile) {
        writes("half")(newFile);
        throw std::runtime_error("disk full");
    };

    EXPECT_THROW(ReplaceFile(m_folder.Path("a"), write), std::runtime_error);

    EXPECT_EQ(m_folder.Read("a"), "old");
    EXPECT_EQ(m_folder.Names(), Names{"a"});
}

TEST_F(ReplaceFileTest, WriterMayPutAnotherFileInThePlaceOfTheEmptyOne) {
    m_folder.Write("a", "old");
    ASSERT_EQ(::chmod(m_folder.Path("a").c_str(), 0640), 0);

    ReplaceFile(m_folder.Path("a"), [this](const std::string& newFile) {
        m_folder.Write("own", "new");
        std::filesystem::rename(m_folder.Path("own"), newFile);
    });

    EXPECT_EQ(m_folder.Read("a"), "new");
    EXPECT_EQ(permissionsOf(m_folder.Path("a")), 0640u);
}

TEST_F(ReplaceFileTest, PermissionsOfTheOldFileStay) {
    m_folder.Write("a", "old");
    ASSERT_EQ(::chmod(m_folder.Path("a").c_str(), 0640), 0);

    ReplaceFile(m_folder.Path("a"), writes("new"));

    EXPECT_EQ(permissionsOf(m_folder.Path("a")), 0640u);
}

TEST_F(ReplaceFileTest, NewFileHasThePermissionsThatTheUserGivesNewFiles) {
    const mode_t before = ::umask(027);
    ReplaceFile(m_folder.Path("a"), writes("new"));
    ::umask(before);

    EXPECT_EQ(permissionsOf(m_folder.Path("a")), 0640u);
}

TEST_F(ReplaceFileTest, DanglingLinkStaysALinkAndGetsItsTarget) {
    std::filesystem::create_symlink("target", m_folder.Path("link"));

    ReplaceFile(m_folder.Path("link"), writes("new"));

    EXPECT_TRUE(std::filesystem::is_symlink(m_folder.Path("link")));
    EXPECT_EQ(m_folder.Read("target"), "new");
    EXPECT_EQ(m_folder.Names(), (Names{"link", "target"}));
}

TEST_F(ReplaceFileTest, LinkStaysALink) {
    m_folder.Write("a", "old");
    std::filesystem::create_symlink("a", m_folder.Path("link"));

    ReplaceFile(m_folder.Path("link"), writes("new"));

    EXPECT_TRUE(std::filesystem::is_symlink(m_folder.Path("link")));
    EXPECT_EQ(m_folder.Read("a"), "new");
}

TEST_F(ReplaceFileTest, RelativePathIsInTheCurrentFolder) {
    std::filesystem::current_path(m_folder.Path(""));

    ReplaceFile("a", writes("new"));

    EXPECT_EQ(m_folder.Read("a"), "new");
    std::filesystem::current_path("/");
}

TEST_F(ReplaceFileTest, LongestNameHasRoomForTheNewFileBeside) {
    const std::string name(255, 'n');

    ReplaceFile(m_folder.Path(name), writes("new"));

    EXPECT_EQ(m_folder.Names(), Names{name});
}

TEST_F(ReplaceFileTest, FolderInPlaceIsAnExceptionWithThePath) {
    std::filesystem::create_directory(m_folder.Path("a"));
    try {
        ReplaceFile(m_folder.Path("a"), writes("new"));
        FAIL() << "no exception";
    } catch (const CException& failure) {
        EXPECT_NE(failure.Message().find(m_folder.Path("a")), std::string::npos) << failure.what();
    }
    EXPECT_TRUE(std::filesystem::is_directory(m_folder.Path("a")));
}

TEST_F(ReplaceFileTest, MissingFolderIsAnExceptionWithThePathAndTheReason) {
    try {
        ReplaceFile(m_folder.Path("missing/a"), writes("new"));
        FAIL() << "no exception";
    } catch (const CException& failure) {
        EXPECT_NE(failure.Message().find(m_folder.Path("missing/a")), std::string::npos);
        EXPECT_NE(failure.Message().find("No such file"), std::string::npos) << failure.what();
    }
}

TEST_F(ReplaceFileTest, FolderThatCannotBeWrittenIsAnException) {
    m_folder.Write("a", "old");
    ASSERT_EQ(::chmod(m_folder.Path("").c_str(), 0555), 0);

    const auto outcome = asOrdinaryUser([this]() -> std::string {
        try {
            ReplaceFile(m_folder.Path("a"), writes("new"));
            return "replaced";
        } catch (const CException& failure) {
            return failure.Message();
        }
    });

    EXPECT_EQ(outcome.output, m_folder.Path("a") + ": Permission denied");
    EXPECT_EQ(m_folder.Read("a"), "old");
}

TEST_F(ReplaceFileTest, FileOfAKilledProcessIsRemovedByTheNextReplacement) {
    m_folder.Write("a", "old");
    ChildProcess killed([this](int) {
        ReplaceFile(m_folder.Path("a"), [](const std::string&) { std::raise(SIGKILL); });
    });
    killed.Wait();
    ASSERT_EQ(m_folder.Names().size(), 2u);
    ASSERT_EQ(m_folder.Read("a"), "old");

    ReplaceFile(m_folder.Path("a"), writes("new"));

    EXPECT_EQ(m_folder.Names(), Names{"a"});
}

TEST_F(ReplaceFileTest, FileOfALivingProcessIsLeftAlone) {
    ReplaceFile(m_folder.Path("a"), [this](const std::string& newFile) {
        const auto other = inChild([this]() -> std::string {
            ReplaceFile(m_folder.Path("a"), writes("other"));
            return "done";
        });
        EXPECT_EQ(other.output, "done");
        EXPECT_TRUE(std::filesystem::exists(newFile));
        writes("mine")(newFile);
    });

    EXPECT_EQ(m_folder.Read("a"), "mine");
}

TEST_F(ReplaceFileTest, FilesWithSimilarNamesAreNotTakenForLeftBehind) {
    const Names similar = {"a.0123456789abcdeG.new", "a.0123456789abcdef.newer", "a.123.new",
                           "b.0123456789abcdef.new"};
    for (const std::string& name : similar)
        m_folder.Write(name, "mine");

    ReplaceFile(m_folder.Path("a"), writes("new"));

    EXPECT_EQ(m_folder.Names().size(), similar.size() + 1);
}
