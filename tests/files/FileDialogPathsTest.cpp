#include <CFileDialog.h>

#include "ExtensionModel.h"
#include "FileDialogTest.h"
#include "ScriptedUser.h"

#include <Events.h>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <qwidget.h>
#include <unistd.h>

/// Every way through the dialogs and boxes, each compared with what a small model of the two flows
/// demands: the boxes in their order and wording, the result, the members and the registry, which go
/// on from one run to the next. Files and dialogs are stood in for.
namespace {

using Lines = std::vector<std::string>;
using TEVU::CFileDialog;

const char* const c_home = "/home/me";
const char* const c_kept =
    "/data/kept"; // the other folder, where files are chosen too, is not there
const char* const c_gone = "/data/gone";
const char* const c_filter = "Images (*.png *.tif)";

// What the user finds and does.

enum class Type { Listed, Appended, No, Cancel };
enum class Existing { None, Yes, No, Cancel };
enum class Permission { Given, Cancel, RetryGiven, RetryCancel };

const Permission c_permissions[] = {Permission::Given, Permission::Cancel, Permission::RetryGiven,
                                    Permission::RetryCancel};

struct Choice {
    Type type = Type::Listed;
    Existing existing = Existing::None;
    Permission permission = Permission::Given;
    bool isAscii = true;
};

/// One pass: the files chosen; none is a cancelled dialog.
using Pass = std::vector<Choice>;

enum class Outcome { Accepted, Rejected, Cancelled };

bool isPermitted(Permission permission) {
    return permission == Permission::Given || permission == Permission::RetryGiven;
}

Outcome outcomeOf(const Choice& choice) {
    if (choice.type == Type::Cancel || choice.existing == Existing::Cancel)
        return Outcome::Cancelled;
    const bool isAccepted = choice.type != Type::No && choice.existing != Existing::No &&
                            isPermitted(choice.permission) && choice.isAscii;
    return isAccepted ? Outcome::Accepted : Outcome::Rejected;
}

Outcome outcomeOf(const Pass& pass) {
    if (pass.empty())
        return Outcome::Cancelled;
    for (const Choice& choice : pass) {
        if (outcomeOf(choice) != Outcome::Accepted)
            return outcomeOf(choice);
    }
    return Outcome::Accepted;
}

/// The files that are there, and how often each may be tried with which answer.
class World : public ScriptedUser {
public:
    struct File {
        bool exists;
        std::deque<bool> trials;
    };

    World() : m_parent(nullptr) { setParent(&m_parent); }

    std::map<std::string, File> files;
    Lines faults;

    QWidget* parent() { return &m_parent; }

    bool exists(const QString& name) override {
        const std::string path = support::text(name);
        return path == c_home || path == c_kept || (files.count(path) && files[path].exists);
    }
    bool isReadable(const QString& name) override { return tryOut(name, true); }
    bool isWritable(const QString& name) override { return tryOut(name, true); }
    bool canCreate(const QString& name) override { return tryOut(name, false); }
    bool isInExistingDir(const QString& name) override {
        return std::filesystem::path(support::text(name)).parent_path() == c_kept;
    }

private:
    bool tryOut(const QString& name, bool existing) {
        File& file = files[support::text(name)];
        if (file.exists != existing || file.trials.empty()) {
            faults.push_back("must not be tried: " + support::text(name));
            return false;
        }
        const bool answer = file.trials.front();
        file.trials.pop_front();
        return answer;
    }

    QWidget m_parent;
};

/// The state that the texts demand, and the lines of the run that leads there.
class Model {
public:
    explicit Model(World& world) : m_world(world) {}

    std::map<std::string, std::string> registry;
    Lines paths;
    std::string extension;
    Lines lines;

    bool save(const std::string& proposal, bool append, const std::vector<Pass>& passes) {
        for (const Pass& pass : passes) {
            const std::string start = saveStart(proposal + missing(proposal));
            lines.insert(lines.end(), {"native dialogs off", script::save(start, c_filter)});
            const Outcome outcome = pass.empty() ? cancelDialog() : saveOne(pass[0], append);
            if (outcome != Outcome::Rejected)
                return outcome == Outcome::Accepted;
        }
        return false;
    }

    std::size_t open(bool several, const std::vector<Pass>& passes) {
        const std::string start = openStart();
        for (const Pass& pass : passes) {
            lines.insert(lines.end(),
                         {"native dialogs off", several ? script::openSeveral(start, c_filter)
                                                        : script::openOne(start, c_filter)});
            const Outcome outcome = pass.empty() ? cancelDialog() : openFiles(pass, several);
            if (outcome != Outcome::Rejected)
                return outcome == Outcome::Accepted ? pass.size() : 0;
        }
        return 0;
    }

private:
    static std::string missing(const std::string& name) {
        return *extension_model::missing(name, c_filter);
    }

    void forgetEarlierSaving() {
        if (!m_bSavePathSet)
            registry.erase("savingdir");
        m_bSavePathSet = true;
    }

    bool isThere(const std::string& folder) { return folder == c_home || folder == c_kept; }

    std::string saveStart(const std::string& proposal) {
        if (proposal.rfind(std::string(c_kept) + '/', 0) == 0)
            return proposal;
        forgetEarlierSaving();
        std::string folder = c_home;
        if (registry.count("savingdir"))
            folder = registry["savingdir"];
        else if (registry.count("loadingdir"))
            folder = registry["loadingdir"];
        return (isThere(folder) ? folder : c_home) + '/' + proposal;
    }

    std::string openStart() {
        forgetEarlierSaving();
        for (const char* key : {"loadingdir", "savingdir"}) {
            if (registry.count(key) && isThere(registry[key]))
                return registry[key];
        }
        return c_home;
    }

    Outcome cancelDialog() {
        m_world.answer("");
        return Outcome::Cancelled;
    }

    /// In the one folder and in the other by turns, so that each is the remembered one at times.
    std::string newPath(const Choice& choice) {
        ++m_nFiles;
        return std::string(m_nFiles % 3 ? c_kept : c_gone) + "/f" + std::to_string(m_nFiles) +
               (choice.isAscii ? "" : "\xc3\xa9") +
               (choice.type == Type::Listed ? ".Png" : ".stl.gz");
    }

    void box(const std::string& caption, const std::string& text, const std::string& buttons,
             const std::string& answer) {
        lines.push_back(script::warning(caption, text, buttons));
        m_world.answer(answer);
    }

    Outcome saveOne(const Choice& choice, bool append) {
        const std::string chosen = newPath(choice);
        m_world.answer(chosen);
        if (choice.type != Type::Listed)
            m_world.files[chosen] = {true, {}}; // not the file that is asked about
        if (choice.type != Type::Listed)
            box("Wrong filetype specified.", "Append extension '.png'?", c_yesNoCancel,
                choice.type == Type::Appended ? "Yes"
                : choice.type == Type::No     ? "No"
                                              : "Cancel");
        if (choice.type == Type::No || choice.type == Type::Cancel)
            return outcomeOf(choice);
        const std::string path = chosen + missing(chosen);
        m_world.files[path] = {choice.existing != Existing::None, {}};
        if (choice.existing != Existing::None)
            askAboutExisting(choice, append ? "Append" : "Overwrite", path);
        if (choice.existing == Existing::Cancel)
            return Outcome::Cancelled;
        checkPermission(choice, "write", path);
        if (isPermitted(choice.permission))
            checkAscii(choice, path);
        if (outcomeOf(choice) == Outcome::Accepted)
            keep({path}, "savingdir", true);
        return outcomeOf(choice);
    }

    Outcome openFiles(const Pass& pass, bool several) {
        Lines chosen;
        std::string answer;
        for (const Choice& choice : pass) {
            chosen.push_back(newPath(choice));
            answer += (answer.empty() ? "" : "\n") + chosen.back();
        }
        m_world.answer(answer);
        for (std::size_t i = 0; i < pass.size(); ++i) {
            m_world.files[chosen[i]] = {true, {}};
            checkPermission(pass[i], "read", chosen[i]);
            if (isPermitted(pass[i].permission))
                checkAscii(pass[i], chosen[i]);
            if (outcomeOf(pass[i]) != Outcome::Accepted)
                return Outcome::Rejected;
        }
        keep(chosen, "loadingdir", !several);
        return Outcome::Accepted;
    }

    void askAboutExisting(const Choice& choice, const std::string& word, const std::string& path) {
        box(word + " File", word + "\n'" + path + "'?", c_yesNoCancel,
            choice.existing == Existing::Yes  ? "Yes"
            : choice.existing == Existing::No ? "No"
                                              : "Cancel");
    }

    void checkPermission(const Choice& choice, const std::string& verb, const std::string& path) {
        const auto ask = [&](const char* answer) {
            m_world.files[path].trials.push_back(false);
            box("Unable to " + verb + " file",
                "Cannot " + verb + " file. Please check permissions:\n" + path,
                "Cancel (escape), Retry (default)", answer);
        };
        if (choice.permission == Permission::RetryGiven ||
            choice.permission == Permission::RetryCancel)
            ask("Retry");
        if (isPermitted(choice.permission))
            m_world.files[path].trials.push_back(true);
        else
            ask("Cancel");
    }

    void checkAscii(const Choice& choice, const std::string& path) {
        if (!choice.isAscii)
            box("Not an ASCII filename",
                "Not an ASCII filename, it contains special (unicode) characters.\n"
                "Non-ASCII filenames are not supported (yet), please change the name of the "
                "file: " +
                    path,
                "OK (default)", "OK");
    }

    void keep(const Lines& chosen, const char* key, bool isHistory) {
        paths = chosen;
        extension = extension_model::ofFile(chosen[0]);
        registry[key] = std::filesystem::path(chosen[0]).parent_path();
        if (!isHistory)
            return;
        for (const char* slot : {"3", "2", "1"})
            registry[std::string("lastimage") + slot] =
                registry[std::string("lastimage") + static_cast<char>(*slot - 1)];
        registry["lastimage0"] = chosen[0];
    }

    static constexpr const char* c_yesNoCancel = "Yes (default), No, Cancel (escape)";

    World& m_world;
    bool m_bSavePathSet = false;
    int m_nFiles = 0;
};

/// In memory where the system has such a place: thousands of entries are written.
class RegistryPlace {
public:
    RegistryPlace() {
        if (access("/dev/shm", W_OK) != 0)
            return;
        m_sFolder = "/dev/shm/ruqgui-paths-" + std::to_string(getpid());
        std::filesystem::create_directory(m_sFolder);
        setenv("RUQ_REGISTRY", (m_sFolder + "/registry.json").c_str(), true);
    }
    RegistryPlace(const RegistryPlace&) = delete;
    RegistryPlace& operator=(const RegistryPlace&) = delete;
    ~RegistryPlace() {
        if (!m_sFolder.empty())
            std::filesystem::remove_all(m_sFolder);
    }

private:
    std::string m_sFolder;
};

class FileDialogPathsTest : public FileDialogTest {
protected:
    FileDialogPathsTest() : model(world), dialog(world.parent()) {
        setenv("HOME", c_home, true);
        remember("savingdir", c_kept);
        model.registry["savingdir"] = c_kept;
    }

    void save(const std::vector<Pass>& passes) {
        static const char* const proposals[] = {"", "scan.tif", "/data/kept/scan", "/none/scan"};
        const std::string proposal = proposals[m_nRuns % 4];
        const bool append = m_nRuns % 3 == 0;
        const bool expected = model.save(proposal.empty() ? "Untitled" : proposal, append, passes);

        const bool isSaved = dialog.GetSaveFileName(
            proposal, c_filter, append ? CFileDialog::eAppend : CFileDialog::eOverwrite);

        ASSERT_EQ(isSaved, expected);
        expectState();
    }

    void open(const std::vector<Pass>& passes) {
        const bool expected = model.open(false, passes) > 0;

        ASSERT_EQ(dialog.GetOpenFileName(c_filter, CFileDialog::UseWorkingDir), expected);
        expectState();
    }

    void openSeveral(const std::vector<Pass>& passes) {
        const std::size_t expected = model.open(true, passes);

        ASSERT_EQ(dialog.GetOpenFileNames(c_filter, CFileDialog::UseWorkingDir), expected);
        expectState();
    }

    void expectState() {
        ASSERT_EQ(world.takeLog(), model.lines);
        ASSERT_EQ(world.faults, Lines());
        for (const auto& [path, file] : world.files)
            ASSERT_TRUE(file.trials.empty()) << path << " was not tried out";
        ASSERT_EQ(dialog.FilePaths(), model.paths);
        ASSERT_EQ(dialog.FileExtension(false), model.extension);
        ASSERT_FALSE(dialog.WasFileSelected());
        Lines registry;
        for (const auto& [key, text] : model.registry)
            registry.push_back(key + '=' + text);
        ASSERT_EQ(remembered(), registry);
        model.lines.clear();
        world.files.clear();
        ++m_nRuns;
    }

    /// Runs through all series of that many passes: rejected ones, then one of \a last.
    template <class Run>
    void runAll(int passes, const std::vector<Pass>& rejected, const std::vector<Pass>& last,
                Run run, std::vector<Pass> series = {}) {
        const bool isLast = passes == 1;
        for (const Pass& pass : isLast ? last : rejected) {
            series.push_back(pass);
            if (isLast)
                run(series);
            else
                runAll(passes - 1, rejected, last, run, series);
            series.pop_back();
            if (HasFatalFailure())
                return;
        }
    }

    int runs() const { return m_nRuns; }

private:
    const RegistryPlace m_place; // before the registry is looked into for the first time

protected:
    World world;
    Model model;
    CFileDialog dialog;

private:
    int m_nRuns = 0;
};

// All single passes, without those that differ only in what is not reached.

std::vector<Choice> checkedChoices(const Choice& before) {
    std::vector<Choice> all;
    for (const Permission permission : c_permissions) {
        all.push_back({before.type, before.existing, permission, true});
        if (isPermitted(permission))
            all.push_back({before.type, before.existing, permission, false});
    }
    return all;
}

std::vector<Choice> saveChoices() {
    std::vector<Choice> all{{Type::No}, {Type::Cancel}};
    for (const Type type : {Type::Listed, Type::Appended}) {
        for (const Existing existing : {Existing::None, Existing::Yes, Existing::No}) {
            for (const Choice& choice : checkedChoices({type, existing}))
                all.push_back(choice);
        }
        all.push_back({type, Existing::Cancel});
    }
    return all;
}

/// Those of the passes with one file that end so, or else go on.
std::vector<Pass> passesOf(const std::vector<Choice>& choices, bool rejected) {
    std::vector<Pass> all;
    if (!rejected)
        all.push_back({});
    for (const Choice& choice : choices) {
        if ((outcomeOf(choice) == Outcome::Rejected) == rejected)
            all.push_back({choice});
    }
    return all;
}

/// Up to three files, of which only the last may be one that is rejected.
void addPasses(const Pass& begun, bool rejected, std::vector<Pass>& all) {
    for (const Choice& choice : checkedChoices({})) {
        Pass pass = begun;
        pass.push_back(choice);
        if ((outcomeOf(pass) == Outcome::Rejected) == rejected)
            all.push_back(pass);
        if (outcomeOf(pass) == Outcome::Accepted && pass.size() < 3)
            addPasses(pass, rejected, all);
    }
}

std::vector<Pass> severalPasses(bool rejected) {
    std::vector<Pass> all;
    if (!rejected)
        all.push_back({});
    addPasses({}, rejected, all);
    return all;
}

class SavePathsTest : public FileDialogPathsTest {
protected:
    const std::vector<Pass> rejected = passesOf(saveChoices(), true);
    const std::vector<Pass> last = passesOf(saveChoices(), false);
    const std::vector<Pass> cancelled = {{}};

    void saveAll(int passes, const std::vector<Pass>& with) {
        runAll(passes, rejected, with, [this](const std::vector<Pass>& series) { save(series); });
    }
};

TEST_F(SavePathsTest, AreAsTheModelDemandsForOneAndTwoPasses) {
    saveAll(1, last);
    saveAll(2, last);

    EXPECT_EQ(runs(), 12 + 29 * 12);
}

// Of the accepted ones only the plainest and the hardest: each of them writes to the registry.
TEST_F(SavePathsTest, AreAsTheModelDemandsForThreePasses) {
    std::vector<Pass> chosen{{Choice()},
                             {Choice{Type::Appended, Existing::Yes, Permission::RetryGiven, true}}};
    for (const Pass& pass : last) {
        if (outcomeOf(pass) == Outcome::Cancelled)
            chosen.push_back(pass);
    }

    saveAll(3, chosen);

    EXPECT_EQ(runs(), 29 * 29 * (2 + 4));
}

TEST_F(SavePathsTest, AreAsTheModelDemandsForThreePassesBeforeACancelledOne) {
    saveAll(4, cancelled);

    EXPECT_EQ(runs(), 29 * 29 * 29);
}

class OpenPathsTest : public FileDialogPathsTest {
protected:
    const std::vector<Pass> rejected = passesOf(checkedChoices({}), true);
    const std::vector<Pass> last = passesOf(checkedChoices({}), false);
};

TEST_F(OpenPathsTest, AreAsTheModelDemandsForUpToFourPasses) {
    for (const int passes : {1, 2, 3, 4})
        runAll(passes, rejected, last, [this](const std::vector<Pass>& series) { open(series); });

    EXPECT_EQ(runs(), 3 * (1 + 4 + 16 + 64));
}

class OpenSeveralPathsTest : public FileDialogPathsTest {
protected:
    const std::vector<Pass> rejected = severalPasses(true);
    const std::vector<Pass> last = severalPasses(false);
    const std::vector<Pass> cancelled = {{}};

    void openAll(int passes, const std::vector<Pass>& with) {
        runAll(passes, rejected, with,
               [this](const std::vector<Pass>& series) { openSeveral(series); });
    }
};

TEST_F(OpenSeveralPathsTest, AreAsTheModelDemandsForUpToThreePasses) {
    for (const int passes : {1, 2, 3})
        openAll(passes, last);

    EXPECT_EQ(runs(), 15 * (1 + 28 + 28 * 28));
}

TEST_F(OpenSeveralPathsTest, AreAsTheModelDemandsForThreePassesBeforeACancelledOne) {
    openAll(4, cancelled);

    EXPECT_EQ(runs(), 28 * 28 * 28);
}

using MixedPathsTest = FileDialogPathsTest;

TEST_F(MixedPathsTest, HandOverDirectoriesAndHistoryFromOneFlowToTheOther) {
    const std::vector<Pass> rejected{{Choice{Type::No}}};
    const std::vector<Pass> last = passesOf(saveChoices(), false);
    const std::vector<Pass> opened = passesOf(checkedChoices({}), false);
    for (int i = 0; i < 200; ++i) {
        save({rejected[0], last[static_cast<std::size_t>(i * 7) % last.size()]});
        open({opened[static_cast<std::size_t>(i * 5) % opened.size()]});
        openSeveral({opened[static_cast<std::size_t>(i * 3) % opened.size()]});
        ASSERT_FALSE(HasFatalFailure()) << i;
    }
}

} // namespace
