#ifndef RUQGUI_TESTS_FILES_FLOWMODEL_H
#define RUQGUI_TESTS_FILES_FLOWMODEL_H

#include <ModalDriver.h>
#include <map>
#include <string>
#include <vector>

/// The flows of opening and saving a second time, as a small model: which dialogs and boxes must come
/// in which order, and what must be kept and remembered in the end.
namespace flow {

using Lines = std::vector<std::string>;

const char* const c_filter = "Images (*.png *.tif)";

// What the user meets and answers while one file is checked.

enum class Type { Listed, Appended, No, Cancel };
enum class Existing { None, Yes, No, Cancel };
enum class Permission { Given, Cancel, RetryGiven, RetryCancel };

struct Choice {
    Type type = Type::Listed;
    Existing existing = Existing::None;
    Permission permission = Permission::Given;
    bool isAscii = true;
};

/// One pass through the dialog: the files chosen; none is a cancelled dialog.
using Pass = std::vector<Choice>;

enum class Outcome { Accepted, Rejected, Cancelled };

Outcome outcomeOf(const Pass& pass);

/// All passes that are rejected, or all others: every combination of answers to the boxes, where Retry
/// is pressed at most once in a row. Several files: up to \a files, of which only the last may be
/// rejected.
std::vector<Pass> savePasses(bool rejected);
std::vector<Pass> openPasses(bool rejected);
std::vector<Pass> openSeveralPasses(std::size_t files, bool rejected);

// Series of passes.

/// Passes that count as one letter: they stand for it by turns.
struct Letter {
    std::vector<Pass> passes;
    std::size_t taken = 0;

    const Pass& take() { return passes[taken++ % passes.size()]; }
};

using Alphabet = std::vector<Letter>;
using Series = std::vector<Pass>;

/// Each pass is a letter.
Alphabet each(const std::vector<Pass>& passes);

/// The passes that end at the same place are a letter: in the dialog, at one of the boxes, or accepted.
Alphabet byEnd(const std::vector<Pass>& passes);

/// One letter, for which all the others' passes stand, one letter after the other.
Alphabet byTurns(Alphabet letters);

/// Every word of that many letters, the last of them out of \a last, the others out of \a rejected.
std::vector<Series> allSeries(int passes, Alphabet rejected, Alphabet last);

/// One of several shares of about the same size: each is run by a process of its own.
std::vector<Series> shareOf(const std::vector<Series>& all, std::size_t share, std::size_t shares);

/// Where the model's runs take place: it makes what the user meets, and plays the user.
class Stage {
public:
    enum Dialog { OpenOne, OpenSeveral, Save };

    Stage() = default;
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    virtual ~Stage() = default;

    virtual std::string home() const = 0;
    virtual bool isThere(const std::string& folder) const = 0;

    /// The path of a new file to choose, in a folder of the stage's own liking.
    virtual std::string newPath(Dialog dialog, const Choice& choice) = 0;
    virtual void put(const std::string& path, bool exists) = 0;

    /// How the tests whether the file may be read or written must end, one after the other.
    virtual void letTests(const std::string& path, const std::vector<bool>& pass) = 0;

    /// No paths are a cancelled dialog.
    virtual void dialog(Dialog dialog, const std::string& start, const Lines& paths) = 0;
    virtual void box(const support::Message& message, const std::string& answer) = 0;

    /// Fails the test unless all came as it was told. Takes away what was made for the run.
    virtual void finishRun() = 0;
};

/// The state that must be there after each run. A run is first told to the model, which prepares the
/// stage for it, and then left to the library.
class Model {
public:
    explicit Model(Stage& stage) : m_stage(stage) {}

    std::map<std::string, std::string> registry; ///< By the last part of the key.
    Lines paths;
    std::string extension;

    bool save(const std::string& fileName, bool append, const Series& series);
    std::size_t open(bool several, const Series& series);

    Lines registryLines() const; ///< Such as "loadingdir=/data".

private:
    void forgetEarlierSaving();
    std::string saveStart(const std::string& proposal);
    std::string openStart();
    Outcome saveOne(const std::string& start, const Pass& pass, bool append);
    Outcome openFiles(Stage::Dialog dialog, const std::string& start, const Pass& pass);
    void askAboutType(const Choice& choice);
    void askAboutExisting(const Choice& choice, const std::string& word, const std::string& path);
    void checkPermission(const Choice& choice, support::Message (*message)(const std::string&),
                         const std::string& path);
    void checkAscii(const Choice& choice, const std::string& path);
    void keep(const Lines& chosen, const char* directoryKey, bool isHistory);

    Stage& m_stage;
    bool m_bSavePathSet = false;
};

} // namespace flow

#endif
