#include "FileDialogTest.h"
#include "FlowRuns.h"

#include <Display.h>
#include <OrdinaryUser.h>
#include <System.h>
#include <filesystem>
#include <fstream>
#include <qfile.h>
#include <qwidget.h>

/// Every way through the real dialogs and boxes, with real files and permissions, up to four passes.
///
/// One and two passes: every combination of answers to the boxes of each pass, where Retry is pressed at
/// most once in a row. Three and four passes: every combination of the places where a pass ends. Saving is
/// led back to the dialog by No to the extension, by No to the existing file, by a place that stays locked
/// and by a name that is not ASCII; it ends by a cancelled dialog, by Cancel to the extension, by Cancel
/// to the existing file, or with a file. Opening is led back by a locked file or by a name that is not
/// ASCII, of the first file chosen or of a later one. How a pass comes to its end (a file that is new or
/// there, an extension that is appended, a lock that is lifted before Retry) changes by turns.
namespace {

namespace fs = std::filesystem;
using flow::Alphabet;
using flow::Choice;
using flow::Lines;
using flow::Series;

/// The folder "kept" lasts; others are made for a file, and are gone after the run.
class RealStage : public flow::Stage {
public:
    RealStage(const support::TempDir& dir, support::ModalDriver& user)
        : m_dir(dir), m_user(user), m_parent(nullptr) {
        dir.makeFolder("kept");
    }

    QWidget* parent() { return &m_parent; }
    std::string kept() const { return m_dir.path("kept"); }

    std::string home() const override { return m_dir.path("home"); }
    bool isThere(const std::string& folder) const override { return fs::is_directory(folder); }
    std::string newPath(Dialog dialog, const Choice& choice) override;
    void put(const std::string& path, bool exists) override;
    void letTests(const std::string& path, const std::vector<bool>& pass) override;
    void dialog(Dialog dialog, const std::string& start, const Lines& paths) override;
    void box(const support::Message& message, const std::string& answer) override;
    void finishRun() override;

private:
    static std::string encoded(const std::string& path);
    void setLocked(const std::string& path, bool locked);

    const support::TempDir& m_dir;
    support::ModalDriver& m_user;
    QWidget m_parent;
    int m_nPaths = 0;
    std::string m_sLocked; ///< To be unlocked before Retry.
};

std::string RealStage::newPath(Dialog dialog, const Choice& choice) {
    const std::string number = std::to_string(++m_nPaths);
    const bool isFolderLocked = dialog == Save && choice.existing == flow::Existing::None &&
                                choice.permission != flow::Permission::Given;
    const std::string folder =
        isFolderLocked || m_nPaths % 3 == 0 ? m_dir.makeFolder("d" + number) : kept();
    return folder + "/f" + number + (choice.isAscii ? "" : "\xc3\xa9") +
           (choice.type == flow::Type::Listed ? ".Png" : ".stl.gz");
}

void RealStage::put(const std::string& path, bool exists) {
    if (exists)
        std::ofstream(encoded(path)) << "pixels";
}

void RealStage::letTests(const std::string& path, const std::vector<bool>& pass) {
    if (!pass.front())
        setLocked(path, true);
    m_sLocked = pass.back() ? path : "";
}

// A file that is not there yet is locked with its folder.
void RealStage::setLocked(const std::string& path, bool locked) {
    const fs::path file(encoded(path));
    if (fs::exists(file))
        fs::permissions(file, fs::perms(locked ? 0000 : 0600));
    else
        fs::permissions(file.parent_path(), fs::perms(locked ? 0500 : 0700));
}

void RealStage::dialog(Dialog dialog, const std::string& start, const Lines& paths) {
    const fs::path proposal(start);
    const support::FileRequest request =
        dialog == Save
            ? saveIn(proposal.parent_path().generic_string(), proposal.filename().string())
        : dialog == OpenSeveral ? openSeveralIn(start)
                                : openIn(start);
    support::FileStep& step = m_user.expectFileDialog(request).under(&m_parent);
    if (paths.empty())
        step.cancel();
    else if (dialog == OpenSeveral)
        step.chooseSeveral(paths);
    else
        step.choose(paths[0]);
}

void RealStage::box(const support::Message& message, const std::string& answer) {
    support::MessageStep& step = m_user.expectWarning(message).under(&m_parent);
    if (answer == "Retry" && !m_sLocked.empty())
        step.before([this, path = m_sLocked] { setLocked(path, false); });
    step.answer(answer);
}

void RealStage::finishRun() {
    m_user.finish();
    ASSERT_FALSE(testing::Test::HasFailure());
    for (const fs::directory_entry& entry : fs::directory_iterator(m_dir.path())) {
        if (entry.path().filename().string()[0] == 'd')
            m_dir.remove(entry.path().filename().string());
    }
    m_dir.remove("kept");
    m_dir.makeFolder("kept");
}

/// Spelled as the toolkit spells it in file names.
std::string RealStage::encoded(const std::string& path) {
    return static_cast<const char*>(QFile::encodeName(QString::fromUtf8(path.c_str())));
}

// Only for an ordinary user are there locked files.
class RealPathsTest : private support::InMemory,
                      public FileDialogTest,
                      public testing::WithParamInterface<std::size_t> {
protected:
    RealPathsTest() : m_stage(dir, user), runs(m_stage, m_stage.parent()) {
        support::decodeIconsOnce();
        runs.remember("savingdir", m_stage.kept());
    }

    /// Runs the share of this process.
    template <class Run>
    void runAll(const std::vector<Series>& all, Run run) {
        for (const Series& series : flow::shareOf(all, GetParam(), c_nShares)) {
            run(series);
            ASSERT_FALSE(HasFailure()) << "run " << runs.count();
        }
    }

    void saveAll(bool append);

private:
    RealStage m_stage;

protected:
    FlowRuns runs;
};

void append(std::vector<Series>& all, const std::vector<Series>& further) {
    all.insert(all.end(), further.begin(), further.end());
}

std::vector<Series> saveSeries() {
    const std::vector<flow::Pass> rejected = flow::savePasses(true);
    const std::vector<flow::Pass> last = flow::savePasses(false);
    std::vector<Series> all;
    for (const int passes : {1, 2})
        append(all, flow::allSeries(passes, flow::each(rejected), flow::each(last)));
    for (const int passes : {3, 4})
        append(all, flow::allSeries(passes, flow::byEnd(rejected), flow::byEnd(last)));
    return all;
}

std::vector<Series> openSeries() {
    std::vector<Series> all;
    for (const int passes : {1, 2, 3, 4})
        append(all, flow::allSeries(passes, flow::each(flow::openPasses(true)),
                                    flow::each(flow::openPasses(false))));
    return all;
}

std::vector<Series> openSeveralSeries() {
    std::vector<Series> all;
    for (const int passes : {1, 2})
        append(all, flow::allSeries(passes, flow::each(flow::openSeveralPasses(2, true)),
                                    flow::each(flow::openSeveralPasses(2, false))));
    for (const int passes : {3, 4})
        append(all, flow::allSeries(passes, flow::byEnd(flow::openSeveralPasses(3, true)),
                                    flow::byEnd(flow::openSeveralPasses(3, false))));
    return all;
}

void RealPathsTest::saveAll(bool append) {
    const std::vector<Series> all = saveSeries();
    ASSERT_EQ(all.size(), 12u + 29 * 12 + 4 * 4 * 4 + 4 * 4 * 4 * 4);
    const std::string proposals[] = {"", "scan.tif", m_stage.kept() + "/scan"};
    runAll(all,
           [&](const Series& series) { runs.save(proposals[runs.count() % 3], append, series); });
}

TEST_P(RealPathsTest, OfSavingWithOverwritingAreAsTheModelDemands) {
    RUN_AS_ORDINARY_USER();
    saveAll(false);
}

TEST_P(RealPathsTest, OfSavingWithAppendingAreAsTheModelDemands) {
    RUN_AS_ORDINARY_USER();
    saveAll(true);
}

TEST_P(RealPathsTest, OfOpeningOneFileAreAsTheModelDemands) {
    RUN_AS_ORDINARY_USER();
    const std::vector<Series> all = openSeries();
    ASSERT_EQ(all.size(), 3u * (1 + 4 + 16 + 64));

    runAll(all, [this](const Series& series) { runs.open(series); });
}

TEST_P(RealPathsTest, OfOpeningSeveralFilesAreAsTheModelDemands) {
    RUN_AS_ORDINARY_USER();
    const std::vector<Series> all = openSeveralSeries();
    ASSERT_EQ(all.size(), 7u + 12 * 7 + 4 * 4 * 2 + 4 * 4 * 4 * 2);

    runAll(all, [this](const Series& series) { runs.openSeveral(series); });
}

INSTANTIATE_TEST_SUITE_P(Share, RealPathsTest, testing::Range(std::size_t(0), c_nShares));

} // namespace
