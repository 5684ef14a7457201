#include "Subjects.h"

#include "../FileUser.h"

#include <CFileDialog.h>
#include <Events.h>
#include <ruqlib2core/CException.h>
#include <ruqlib2core/CValueString.h>
#include <typeinfo>

namespace differential {

namespace {

using TEVU::CFileDialog;

class FileDialogSubject : public Subject {
public:
    FileDialogSubject(Stage& stage, const Taste& taste);

protected:
    void make(const Operation&) override;
    void unmake() override {
        m_pDialog.reset();
        m_pUser.reset();
    }
    std::string state() override;

private:
    void addFlows();
    void addSelectingConstructors();
    void addChecks();
    void addSurroundings();
    template <class Run>
    void guarded(const Run& run);

    FileSettings m_settings;
    std::unique_ptr<FileUser> m_pUser;
    std::unique_ptr<CFileDialog> m_pDialog;
};

// A first look-up of the process forgets the saving directory: it shall not be one of a case.
FileDialogSubject::FileDialogSubject(Stage& stage, const Taste& taste) : Subject(stage, taste) {
    FileUser user([](const std::string&) {});
    CFileDialog().GetOpenFileName("", CFileDialog::UseWorkingDir);
    beginning({});
    addFlows();
    addSelectingConstructors();
    addChecks();
    addSurroundings();
}

void FileDialogSubject::make(const Operation&) {
    FileSettings::clear();
    m_pUser = std::make_unique<FileUser>([this](const std::string& line) { tell(line); });
    m_pDialog = std::make_unique<CFileDialog>();
}

template <class Run>
void FileDialogSubject::guarded(const Run& run) {
    try {
        run();
    } catch (const TEVU::CException& fault) {
        tell("throws " + quoted(fault.Place()) + ", " + quoted(fault.Message()));
    }
    m_pUser->forget();
}

void FileDialogSubject::addFlows() {
    const Source filter = Taste::amongTexts(c_vFilters);
    const Source start = Taste::amongTexts({"remembered", "", "/data", "/gone", "/data/a.tif"});
    const auto startOf = [](const Operation& operation) -> std::string {
        return operation.text(1);
    };
    action("open", 4, {filter, start}, [=](const Operation& operation) {
        const std::string given = startOf(operation);
        guarded([&] {
            tell("open " + std::to_string(m_pDialog->GetOpenFileName(
                               operation.text(0),
                               given == "remembered" ? CFileDialog::UseWorkingDir : given)));
        });
    });
    action("openSeveral", 3, {filter, start}, [=](const Operation& operation) {
        const std::string given = startOf(operation);
        guarded([&] {
            tell("open " + std::to_string(m_pDialog->GetOpenFileNames(
                               operation.text(0),
                               given == "remembered" ? CFileDialog::UseWorkingDir : given)));
        });
    });
    std::vector<std::string> proposals = c_vPaths;
    proposals.insert(proposals.end(), {"", "", "name", "name.tif", "Name.PNG", "a/b", "x.rek.gz"});
    action("save", 8, {Taste::amongTexts(proposals), filter, Taste::index(0, 2)},
           [this](const Operation& operation) {
               guarded([&] {
                   tell("save " +
                        std::to_string(m_pDialog->GetSaveFileName(
                            operation.text(0), operation.text(1),
                            static_cast<CFileDialog::EnSaveMode>(operation.integer(2) & 1))));
               });
           });
}

void FileDialogSubject::addSelectingConstructors() {
    const Source filter = Taste::amongTexts(c_vFilters);
    action("newOpening", 1, {filter}, [this](const Operation& operation) {
        guarded([&] { m_pDialog = std::make_unique<CFileDialog>(operation.text(0), nullptr); });
    });
    action("newSaving", 1, {Taste::amongTexts(c_vPaths), filter},
           [this](const Operation& operation) {
               guarded([&] {
                   m_pDialog = std::make_unique<CFileDialog>(operation.text(0), operation.text(1),
                                                             CFileDialog::eAppend, nullptr);
               });
           });
    action("copy", 1, {},
           [this](const Operation&) { m_pDialog = std::make_unique<CFileDialog>(*m_pDialog); });
    action("assign", 1, {Taste::flag()}, [this](const Operation& operation) {
        CFileDialog other;
        if (operation.flag(0))
            other = *m_pDialog;
        *m_pDialog = other;
    });
}

void FileDialogSubject::addChecks() {
    const Source path = Taste::amongTexts(c_vPaths);
    using Check = bool (*)(const QString&, QWidget*, bool);
    const auto check = [&](const std::string& name, Check test) {
        action(name, 2, {path, Taste::flag()}, [this, test](const Operation& operation) {
            const QString file = QString::fromUtf8(operation.text(0).c_str());
            guarded([&] { tell(test(file, nullptr, operation.flag(1)) ? "passes" : "fails"); });
        });
    };
    check("isReadable", &CFileDialog::IsFileReadable);
    check("isWritable", &CFileDialog::IsFileWritable);
    check("isAscii", &CFileDialog::IsFilenameAscii);
}

void FileDialogSubject::addSurroundings() {
    std::vector<std::string> several = c_vPaths;
    several.insert(several.end(),
                   {"", "/data/a.tif\n/data/b.PNG", "/data/a.tif\n/data/\xc3\xa9.png"});
    const Source path = Taste::amongTexts(several);
    action("choose", 16, {path},
           [this](const Operation& operation) { m_pUser->choose(operation.text(0)); });
    action("press", 14, {Taste::amongTexts(c_vAnswers)},
           [this](const Operation& operation) { m_pUser->press(operation.text(0)); });
    action("set", 8,
           {Taste::amongTexts({"exists", "exists", "readable", "writable"}),
            Taste::amongTexts(c_vPaths), Taste::flag(60)},
           [this](const Operation& operation) {
               m_pUser->set(operation.text(0), operation.text(1), operation.flag(2));
           });
    action("setFolder", 1, {Taste::amongTexts({"/data", "/gone", "/home/user"}), Taste::flag()},
           [this](const Operation& operation) {
               m_pUser->set("exists", operation.text(0), operation.flag(1));
           });
    const Source key = Taste::amongTexts({"loadingdir", "savingdir", "lastimage0", "lastimage3"});
    action("remember", 2, {key, Taste::amongTexts({"/data", "/gone", "", "/home/user"})},
           [](const Operation& operation) {
               FileSettings::remember(operation.text(0), operation.text(1));
           });
    action("forget", 1, {key},
           [](const Operation& operation) { FileSettings::forget(operation.text(0)); });
}

std::string FileDialogSubject::state() {
    std::string state = m_pDialog->WasFileSelected() ? "selected" : "not selected";
    for (const std::string& path : m_pDialog->FilePaths())
        state += ' ' + quoted(path);
    const TEVU::CValueVector values = m_pDialog->FilePathsAsValueVector();
    return state + ", first " + quoted(m_pDialog->FilePath()) + ", extension " +
           quoted(m_pDialog->FileExtension(false)) + quoted(m_pDialog->FileExtension(true)) + ", " +
           std::to_string(m_pDialog->FilePathsAsQStringList().count()) + " paths, " +
           std::to_string(values.Keys().size()) + " values;" + FileSettings::text();
}

} // namespace

std::unique_ptr<Subject> fileDialog(Stage& stage, const Taste& taste) {
    return std::make_unique<FileDialogSubject>(stage, taste);
}

} // namespace differential
