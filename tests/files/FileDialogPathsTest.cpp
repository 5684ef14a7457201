#include "FileDialogTest.h"
#include "FlowRuns.h"
#include "ScriptedUser.h"

#include <Events.h>
#include <System.h>
#include <deque>
#include <filesystem>
#include <map>
#include <qwidget.h>

/// Every way through the flows, by every combination of answers to the boxes of each pass. Up to three
/// passes to open and two to save, each series is followed by each of its endings; what is longer, by one
/// of them. Files and dialogs are stood in for, so that tens of thousands of runs are affordable, and what
/// the library asks the toolkit for is compared word by word. FileDialogRealPathsPosixTest goes through real
/// dialogs.
namespace {

using flow::Alphabet;
using flow::Choice;
using flow::Lines;
using flow::Series;

#ifdef _WIN32
const std::string c_root = "C:/"; // without a drive, a path is a relative one there
#else
const std::string c_root = "/";
#endif
const std::string c_home = c_root + "home/me";
const std::string c_kept = c_root + "data/kept";
const std::string c_gone = c_root + "data/gone"; // files are chosen there too, but it is not there

class ScriptedStage : public flow::Stage, public ScriptedUser {
public:
    ScriptedStage() : m_parent(nullptr) { setParent(&m_parent); }

    QWidget* parent() { return &m_parent; }

    std::string home() const override { return c_home; }
    bool isThere(const std::string& folder) const override {
        return folder == c_home || folder == c_kept;
    }
    std::string newPath(Dialog dialog, const Choice& choice) override;
    void put(const std::string& path, bool exists) override { m_files[path] = {exists, {}}; }
    void letTests(const std::string& path, const std::vector<bool>& pass) override {
        m_files[path].tests.assign(pass.begin(), pass.end());
    }
    void dialog(Dialog dialog, const std::string& start, const Lines& paths) override;
    void box(const support::Message& message, const std::string& answer) override;
    void finishRun() override;

    bool exists(const QString& name) override;
    bool isReadable(const QString& name) override { return test(name, true); }
    bool isWritable(const QString& name) override { return test(name, true); }
    bool canCreate(const QString& name) override { return test(name, false); }
    bool isInExistingDir(const QString& name) override {
        return isThere(std::filesystem::path(support::text(name)).parent_path().generic_string());
    }

private:
    struct File {
        bool exists;
        std::deque<bool> tests;
    };

    bool test(const QString& name, bool existing);

    QWidget m_parent;
    std::map<std::string, File> m_files;
    Lines m_vExpected;
    Lines m_vFaults;
    int m_nPaths = 0;
};

void ScriptedStage::finishRun() {
    ASSERT_EQ(takeLog(), m_vExpected);
    ASSERT_EQ(m_vFaults, Lines());
    for (const auto& [path, file] : m_files)
        ASSERT_TRUE(file.tests.empty()) << path << " was not tested";
    m_vExpected.clear();
    m_files.clear();
}

// In the one folder and in the other by turns, so that each is the remembered one at times.
std::string ScriptedStage::newPath(Dialog, const Choice& choice) {
    ++m_nPaths;
    return (m_nPaths % 3 ? c_kept : c_gone) + "/f" + std::to_string(m_nPaths) +
           (choice.isAscii ? "" : "\xc3\xa9") +
           (choice.type == flow::Type::Listed ? ".Png" : ".stl.gz");
}

void ScriptedStage::dialog(Dialog dialog, const std::string& start, const Lines& paths) {
    using Line = std::string (*)(const std::string& start, const std::string& filter);
    const Line lines[] = {script::openOne, script::openSeveral, script::save};
    m_vExpected.insert(m_vExpected.end(),
                       {"native dialogs off", lines[dialog](start, flow::c_filter)});
    std::string all;
    for (const std::string& path : paths)
        all += (all.empty() ? "" : "\n") + path;
    answer(all);
}

void ScriptedStage::box(const support::Message& message, const std::string& label) {
    std::string buttons;
    for (const std::string& button : message.buttons)
        buttons += (buttons.empty() ? "" : ", ") + button +
                   (button == message.defaultButton ? " (default)" : "") +
                   (button == message.escapeButton ? " (escape)" : "");
    m_vExpected.push_back(script::warning(*message.caption, *message.text, buttons));
    answer(label);
}

bool ScriptedStage::exists(const QString& name) {
    const std::string path = support::text(name);
    const auto file = m_files.find(path);
    return isThere(path) || (file != m_files.end() && file->second.exists);
}

bool ScriptedStage::test(const QString& name, bool existing) {
    File& file = m_files[support::text(name)];
    if (file.exists != existing || file.tests.empty()) {
        m_vFaults.push_back("must not be tested: " + support::text(name));
        return false;
    }
    const bool passes = file.tests.front();
    file.tests.pop_front();
    return passes;
}

class FileDialogPathsTest : private support::InMemory, public FileDialogTest {
protected:
    FileDialogPathsTest() : runs(m_stage, m_stage.parent()) {
        support::setVariable("HOME", c_home);
        runs.remember("savingdir", c_kept);
    }

    template <class Run>
    void runAll(const std::vector<Series>& all, Run run) {
        for (const Series& series : all) {
            run(series);
            ASSERT_FALSE(HasFatalFailure()) << "run " << runs.count();
        }
    }

private:
    ScriptedStage m_stage;

protected:
    FlowRuns runs;
};

class SavePathsTest : public FileDialogPathsTest {
protected:
    void saveAll(const std::vector<Series>& all, bool append) {
        static const std::string proposals[] = {"", "scan.tif", c_kept + "/scan",
                                                c_root + "none/scan"};
        runAll(all, [this, append](const Series& series) {
            runs.save(proposals[runs.count() % 4], append, series);
        });
    }

    const Alphabet rejected = flow::each(flow::savePasses(true));
    const Alphabet last = flow::each(flow::savePasses(false));
    /// Each accepted one writes to the registry five times, so they come by turns.
    const Alphabet endings = flow::byEnd(flow::savePasses(false));
};

TEST_F(SavePathsTest, AreAsTheModelDemandsForOneAndTwoPasses) {
    for (const bool append : {false, true}) {
        saveAll(flow::allSeries(1, rejected, last), append);
        saveAll(flow::allSeries(2, rejected, last), append);
    }

    EXPECT_EQ(runs.count(), 2u * (12 + 29 * 12));
}

TEST_F(SavePathsTest, AreAsTheModelDemandsForTwoPassesBeforeEachEnding) {
    for (const bool append : {false, true})
        saveAll(flow::allSeries(3, rejected, endings), append);

    EXPECT_EQ(runs.count(), 2u * 29 * 29 * 4);
}

class LongSavePathsTest : public SavePathsTest, public testing::WithParamInterface<std::size_t> {};

TEST_P(LongSavePathsTest, AreAsTheModelDemandsForThreePassesBeforeAnyEnding) {
    const std::vector<Series> all = flow::allSeries(4, rejected, flow::byTurns(endings));
    ASSERT_EQ(all.size(), 29u * 29 * 29);

    saveAll(flow::shareOf(all, GetParam(), c_nShares), GetParam() % 2 == 0);
}

INSTANTIATE_TEST_SUITE_P(Share, LongSavePathsTest, testing::Range(std::size_t(0), c_nShares));

class OpenPathsTest : public FileDialogPathsTest {
protected:
    const Alphabet rejected = flow::each(flow::openPasses(true));
    const Alphabet last = flow::each(flow::openPasses(false));
};

TEST_F(OpenPathsTest, AreAsTheModelDemandsForUpToFourPasses) {
    for (const int passes : {1, 2, 3, 4})
        runAll(flow::allSeries(passes, rejected, last),
               [this](const Series& series) { runs.open(series); });

    EXPECT_EQ(runs.count(), 3u * (1 + 4 + 16 + 64));
}

class OpenSeveralPathsTest : public FileDialogPathsTest {
protected:
    void openAll(const std::vector<Series>& all) {
        runAll(all, [this](const Series& series) { runs.openSeveral(series); });
    }

    const Alphabet rejected = flow::each(flow::openSeveralPasses(3, true));
    const Alphabet last = flow::each(flow::openSeveralPasses(3, false));
};

TEST_F(OpenSeveralPathsTest, AreAsTheModelDemandsForUpToThreePasses) {
    for (const int passes : {1, 2, 3})
        openAll(flow::allSeries(passes, rejected, last));

    EXPECT_EQ(runs.count(), 15u * (1 + 28 + 28 * 28));
}

class LongOpenSeveralPathsTest : public OpenSeveralPathsTest,
                                 public testing::WithParamInterface<std::size_t> {};

TEST_P(LongOpenSeveralPathsTest, AreAsTheModelDemandsForThreePassesBeforeAnyEnding) {
    const std::vector<Series> all = flow::allSeries(4, rejected, flow::byTurns(last));
    ASSERT_EQ(all.size(), 28u * 28 * 28);

    openAll(flow::shareOf(all, GetParam(), c_nShares));
}

INSTANTIATE_TEST_SUITE_P(Share, LongOpenSeveralPathsTest,
                         testing::Range(std::size_t(0), c_nShares));

using MixedPathsTest = FileDialogPathsTest;

TEST_F(MixedPathsTest, HandOverDirectoriesAndHistoryFromOneFlowToTheOther) {
    const flow::Pass rejected{Choice{flow::Type::No}};
    const std::vector<flow::Pass> saved = flow::savePasses(false);
    const std::vector<flow::Pass> opened = flow::openPasses(false);
    for (std::size_t i = 0; i < 200; ++i) {
        runs.save("scan", false, {rejected, saved[i * 7 % saved.size()]});
        runs.open({opened[i * 5 % opened.size()]});
        runs.openSeveral({opened[i * 3 % opened.size()]});
        ASSERT_FALSE(HasFatalFailure()) << i;
    }
}

} // namespace
