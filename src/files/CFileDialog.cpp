#include "CFileDialog.h"

#include "AsciiCase.h"
#include "FileChecks.h"
#include "FileExtension.h"
#include "RememberedPaths.h"

#include <algorithm>
#include <limits>
#include <qt3/File.h>
#include <qt3/FileDialog.h>
#include <qt3/MessageBox.h>
#include <qt3/Pointer.h>
#include <qt3/Text.h>
#include <qwidget.h>
#include <ruqlib2core/CValueString.h>

namespace TEVU {

namespace {

QString askForFile(const QString& startDir, const QString& filter, QWidget* parent) {
    qt3::useNativeDialogs(false);
    return qt3::FileDialog::getOpenFileName(startDir, filter, parent, "opendialog",
                                            "Choose a file...");
}

QStringList askForFiles(const QString& startDir, const QString& filter, QWidget* parent) {
    qt3::useNativeDialogs(false);
    return qt3::FileDialog::getOpenFileNames(filter, startDir, parent, "opendialog",
                                             "Select one or more files...");
}

QString askForName(const QString& startPath, const QString& filter, QWidget* parent) {
    qt3::useNativeDialogs(false);
    return qt3::FileDialog::getSaveFileName(startPath, filter, parent, "savedialog",
                                            "Specify a filename...");
}

int askYesNoCancel(QWidget* parent, const QString& caption, const QString& text) {
    return qt3::MessageBox::warning(
        parent, caption, text, qt3::MessageBox::Yes | qt3::MessageBox::Default, qt3::MessageBox::No,
        qt3::MessageBox::Cancel | qt3::MessageBox::Escape);
}

/// An application may destroy the parent under an open dialog, and this object with it: then nothing of
/// it may be touched any more.
class ParentWatch {
public:
    explicit ParentWatch(QWidget* parent) : m_bHasParent(parent), m_parent(parent) {}

    bool isGone() const { return m_bHasParent && !m_parent; }

private:
    bool m_bHasParent;
    qt3::Pointer<QWidget> m_parent;
};

bool isUsableForReading(const QString& path, QWidget* parent) {
    return CFileDialog::IsFileReadable(path, parent, false) &&
           CFileDialog::IsFilenameAscii(path, parent, false);
}

bool areUsableForReading(const QStringList& paths, QWidget* parent) {
    return std::all_of(paths.begin(), paths.end(),
                       [parent](const QString& path) { return isUsableForReading(path, parent); });
}

} // namespace

const std::string CFileDialog::UseWorkingDir;
bool CFileDialog::bSavePathSet = false;

CFileDialog::CFileDialog(QWidget* parent) : m_bFileSelected(false), m_pParent(parent) {}

CFileDialog::CFileDialog(const std::string& filter, QWidget* parent) : CFileDialog(parent) {
    m_bFileSelected = GetOpenFileName(filter, UseWorkingDir);
}

CFileDialog::CFileDialog(const std::string& fileName, const std::string& filter, EnSaveMode mode,
                         QWidget* parent)
    : CFileDialog(parent) {
    m_bFileSelected = GetSaveFileName(fileName, filter, mode);
}

CFileDialog::CFileDialog(const CFileDialog& other) = default;
CFileDialog& CFileDialog::operator=(const CFileDialog& other) = default;
CFileDialog::~CFileDialog() = default;

bool CFileDialog::GetOpenFileName(const std::string& filter, const std::string& startDir) {
    const ParentWatch parent(m_pParent);
    const QString directory = StartDirectory(startDir);
    QString path;
    bool usable = false;
    while (!usable) {
        path = askForFile(directory, qt3::fromAscii(filter), m_pParent);
        if (path.isEmpty())
            return false;
        usable = isUsableForReading(path, m_pParent);
        if (parent.isGone())
            return false;
    }

    rememberLoadingDirectory(qt3::ascii(qt3::dirPath(path)));
    pushLastImage(qt3::ascii(path));
    Keep(QStringList(path));
    return true;
}

unsigned short CFileDialog::GetOpenFileNames(const std::string& filter,
                                             const std::string& startDir) {
    const ParentWatch parent(m_pParent);
    const QString directory = StartDirectory(startDir);
    QStringList paths;
    bool usable = false;
    while (!usable) {
        paths = askForFiles(directory, qt3::fromAscii(filter), m_pParent);
        if (paths.isEmpty())
            return 0;
        usable = areUsableForReading(paths, m_pParent);
        if (parent.isGone())
            return 0;
    }

    rememberLoadingDirectory(qt3::ascii(qt3::dirPath(paths.first())));
    Keep(paths);
    const std::size_t most = std::numeric_limits<unsigned short>::max();
    return static_cast<unsigned short>(std::min<std::size_t>(paths.count(), most));
}

bool CFileDialog::GetSaveFileName(const std::string& fileName, const std::string& filter,
                                  EnSaveMode mode) {
    const ParentWatch parent(m_pParent);
    std::string proposal = fileName.empty() ? "Untitled" : fileName;
    if (!filter.empty())
        ValidateFileExtension(proposal, filter);

    QString path;
    EnOutcome outcome = eRejected;
    while (outcome == eRejected) {
        path = askForName(SaveStartPath(proposal), qt3::fromAscii(filter), m_pParent);
        outcome = path.isEmpty() ? eCancelled : CheckForSaving(path, filter, mode);
        if (parent.isGone())
            return false;
    }
    if (outcome == eCancelled)
        return false;

    rememberSavingDirectory(qt3::ascii(qt3::dirPath(path)));
    pushLastImage(qt3::ascii(path));
    Keep(QStringList(path));
    return true;
}

// Saving prefers the saving directory, opening the loading directory.
QString CFileDialog::SaveStartPath(const std::string& proposal) {
    const QString name = qt3::fromAscii(proposal);
    if (!qt3::isRelative(name) && qt3::isInExistingDir(name))
        return name;
    ForgetEarlierSavingDir();
    QString directory = qt3::homeDirPath();
    if (hasSavingDirectory())
        directory = qt3::fromAscii(savingDirectory());
    else if (hasLoadingDirectory())
        directory = qt3::fromAscii(loadingDirectory());
    return (qt3::exists(directory) ? directory : qt3::homeDirPath()) + "/" + name;
}

// Refusing to touch an existing file does not spare the check of the place: its box may come before
// the dialog opens again.
CFileDialog::EnOutcome CFileDialog::CheckForSaving(QString& path, const std::string& filter,
                                                   EnSaveMode mode) const {
    const EnOutcome extension = CheckExtension(path, filter);
    if (extension != eAccepted)
        return extension;
    const EnOutcome existing = CheckExisting(path, mode);
    if (existing == eCancelled)
        return eCancelled;
    const bool usable =
        IsFileWritable(path, m_pParent, false) && IsFilenameAscii(path, m_pParent, false);
    return usable ? existing : eRejected;
}

CFileDialog::EnOutcome CFileDialog::CheckExtension(QString& path, const std::string& filter) const {
    const QString missing = qt3::fromAscii(GetMissingExtension(qt3::ascii(path), filter));
    if (missing.isEmpty())
        return eAccepted;
    const int answer = askYesNoCancel(m_pParent, "Wrong filetype specified.",
                                      QString("Append extension '%1'?").arg(missing));
    if (answer == qt3::MessageBox::Yes) {
        path += missing;
        return eAccepted;
    }
    return answer == qt3::MessageBox::No ? eRejected : eCancelled;
}

CFileDialog::EnOutcome CFileDialog::CheckExisting(const QString& path, EnSaveMode mode) const {
    if (!qt3::exists(path))
        return eAccepted;
    const QString word = mode == eAppend ? "Append" : "Overwrite";
    const int answer = askYesNoCancel(m_pParent, word + " File", word + "\n'" + path + "'?");
    if (answer == qt3::MessageBox::Yes)
        return eAccepted;
    return answer == qt3::MessageBox::No ? eRejected : eCancelled;
}

bool CFileDialog::WasFileSelected() const {
    return m_bFileSelected;
}

std::string CFileDialog::FilePath() const {
    return m_lPaths.isEmpty() ? std::string() : qt3::ascii(m_lPaths.first());
}

std::vector<std::string> CFileDialog::FilePaths() const {
    std::vector<std::string> paths;
    for (const QString& path : m_lPaths)
        paths.push_back(qt3::ascii(path));
    return paths;
}

QStringList CFileDialog::FilePathsAsQStringList() const {
    return m_lPaths;
}

CValueVector CFileDialog::FilePathsAsValueVector() const {
    CValueVector values;
    int index = 0;
    for (const std::string& path : FilePaths())
        values.SetEntry(index++, new CValueString(path));
    return values;
}

std::string CFileDialog::FileExtension(bool upper) const {
    return upper ? upperCase(m_sExtension) : lowerCase(m_sExtension);
}

bool CFileDialog::IsFileReadable(const QString& name, QWidget* parent, bool silent) {
    if (silent)
        return isReadable(name);
    return passesOrCancelled(isReadable, name, parent, "Unable to read file",
                             "Cannot read file. Please check permissions:\n%1");
}

bool CFileDialog::IsFileWritable(const QString& name, QWidget* parent, bool silent) {
    if (silent)
        return isWritable(name);
    return passesOrCancelled(isWritable, name, parent, "Unable to write file",
                             "Cannot write file. Please check permissions:\n%1");
}

bool CFileDialog::IsFilenameAscii(const QString& name, QWidget* parent, bool silent) {
    const bool ascii = qt3::isAscii(name);
    if (!ascii && !silent)
        warnAboutNonAsciiName(name, parent);
    return ascii;
}

QString CFileDialog::GetCurrentOpenDir() {
    ForgetEarlierSavingDir();
    for (const std::string& remembered : {loadingDirectory(), savingDirectory()}) {
        const QString directory = qt3::fromAscii(remembered);
        if (qt3::exists(directory))
            return directory;
    }
    return qt3::homeDirPath();
}

// A saving directory counts only in the process that saved there. The first look-up forgets
// whatever is remembered at that moment.
void CFileDialog::ForgetEarlierSavingDir() {
    if (bSavePathSet)
        return;
    forgetSavingDirectory();
    bSavePathSet = true;
}

std::string CFileDialog::GetMissingExtension(const std::string& fileName,
                                             const std::string& filter) {
    return missingExtension(fileName, filter);
}

void CFileDialog::ValidateFileExtension(std::string& fileName, const std::string& filter) {
    fileName += GetMissingExtension(fileName, filter);
}

// By address: an empty text that is another object goes to the toolkit as it stands.
QString CFileDialog::StartDirectory(const std::string& startDir) {
    return &startDir == &UseWorkingDir ? GetCurrentOpenDir() : qt3::fromAscii(startDir);
}

void CFileDialog::Keep(const QStringList& paths) {
    m_lPaths = paths;
    m_sExtension = fileExtension(FilePath());
}

} // namespace TEVU
