#include <ruqlib2core/ReplaceFile.h>

#include "TestFolder.h"

#include <ChildProcess.h>

#include <ruqlib2core/CException.h>

#include <functional>
#include <stdexcept>

using namespace TEVU;
using support::ChildProcess;
using support::inChild;

namespace {

using Names = std::vector<std::string>;

std::function<void(const std::string&)> writes(const std::string& text) {
    return [text](const std::string& newFile) { std::ofstream(newFile) << text; };
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

TEST_F(ReplaceFileTest, FileOfAKilledProcessIsRemovedByTheNextReplacement) {
    m_folder.Write("a", "old");
    const auto dieWriting = [](const ChildProcess::Arguments& path) -> std::string {
        ReplaceFile(path[0], [](const std::string&) { ChildProcess::killThis(); });
        return "";
    };
    EXPECT_NE(inChild(dieWriting, {m_folder.Path("a")}).status, 0);
    ASSERT_EQ(m_folder.Names().size(), 2u);
    ASSERT_EQ(m_folder.Read("a"), "old");

    ReplaceFile(m_folder.Path("a"), writes("new"));

    EXPECT_EQ(m_folder.Names(), Names{"a"});
}

TEST_F(ReplaceFileTest, FileOfALivingProcessIsLeftAlone) {
    ReplaceFile(m_folder.Path("a"), [this](const std::string& newFile) {
        const auto other = inChild(
            [](const ChildProcess::Arguments& path) -> std::string {
                ReplaceFile(path[0], writes("other"));
                return "done";
            },
            {m_folder.Path("a")});
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
