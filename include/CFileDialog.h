#ifndef RUQGUI_CFILEDIALOG_H
#define RUQGUI_CFILEDIALOG_H

#include <qstring.h>
#include <qstringlist.h>
#include <qt3/Export.h>
#include <ruqlib2core/CValueVector.h>
#include <string>
#include <vector>

// Windows' own header makes macros of these names. Include it before this one, if at all.
#undef GetOpenFileName
#undef GetSaveFileName

class QWidget;

namespace TEVU {

/// Asks the user for files: remembers the directories and the last four images in the settings
/// registry, and lets only readable files with ASCII names through.
///
/// A plain object for one modal interaction, not a widget: create it, ask, read the outcome.
/// \code
/// TEVU::CFileDialog dialog(window);
/// if (dialog.GetOpenFileName("Images (*.tif *.tiff)", TEVU::CFileDialog::UseWorkingDir))
///     load(dialog.FilePath());
/// \endcode
///
/// Invariants:
/// 1. Paths and extension describe the last successful run; a cancelled run changes nothing.
/// 2. WasFileSelected() is what the asking constructor found; the operations leave it alone.
/// 3. The toolkit's own dialog is shown, never the desktop's native one.
///
/// Paths, filters and extensions are 8-bit text. Filters are the toolkit's: one filter a name,
/// separated by ";;", such as "Images (*.tif *.tiff);;All files (*)".
///
/// Registry entries, all strings: "main/globalsettings/IO/loadingdir",
/// "main/globalsettings/IO/savingdir", "main/globalsettings/IO/lastimage0" (the newest) to
/// "main/globalsettings/IO/lastimage3". The saving directory counts only in the run that saved there:
/// the first look-up of a remembered directory in a process removes the entry, whoever has written it.
///
/// GUI thread only. Copies take over all members; the parent is not owned. When an application
/// destroys the parent under an open dialog or box, even together with this object, asking ends as
/// if it was cancelled.
class RUQGUI_EXPORT CFileDialog {
public:
    /// What the question about an existing file speaks of when saving. It changes the wording only:
    /// the dialog itself never opens or writes the file.
    enum EnSaveMode { eOverwrite = 0, eAppend = 1 };

    /// Passed as start directory (this very object, not a copy): start in the remembered directory.
    static const std::string UseWorkingDir;

    /// Shows nothing. \a parent becomes the parent of every dialog and box, and is not owned.
    explicit CFileDialog(QWidget* parent = nullptr);

    /// Asks for one file at once, as GetOpenFileName(\a filter, UseWorkingDir) does, and keeps the
    /// answer for WasFileSelected().
    CFileDialog(const std::string& filter, QWidget* parent);

    /// Asks for a name to save under at once, as GetSaveFileName() does, and keeps the answer for
    /// WasFileSelected().
    CFileDialog(const std::string& fileName, const std::string& filter, EnSaveMode mode,
                QWidget* parent);

    CFileDialog(const CFileDialog& other);
    CFileDialog& operator=(const CFileDialog& other);
    ~CFileDialog();

    /// Asks for one existing file until the user cancels (false, nothing changed) or chooses a file
    /// that is readable and has an ASCII name (true). Then its directory becomes the loading
    /// directory, it is pushed onto the last images, and path and extension are kept.
    /// \param startDir where the dialog starts; UseWorkingDir means the first of these that exists: the
    ///        remembered loading directory, the saving directory of this run, the home directory.
    bool GetOpenFileName(const std::string& filter, const std::string& startDir);

    /// The same for several files, each of which must pass both checks. The last images stay as
    /// they are; directory and extension are those of the first file. \return the number of files,
    /// at most 65535 even if more were chosen; 0 when cancelled.
    unsigned short GetOpenFileNames(const std::string& filter, const std::string& startDir);

    /// Asks for a name to save under until the user cancels (false, nothing changed) or a name is
    /// accepted (true): it has an extension of the filter or the user insists on none, an existing
    /// file may be overwritten or appended to, the place is writable, and the name is ASCII. Then
    /// its directory becomes the saving directory, it is pushed onto the last images, and path and
    /// extension are kept. Nothing is written to the file.
    ///
    /// Cancel in the question about the extension or about an existing file ends it as Cancel in the
    /// dialog does. No, a place that stays unwritable and a name that is not ASCII open the dialog again.
    ///
    /// The dialog starts with \a fileName, "Untitled" if that is empty, with the filter's first
    /// extension appended if it has none of them: where it says if it is absolute and its directory
    /// exists, else in the saving directory of this run, the loading directory, or the home
    /// directory. \param filter needs a pattern such as "*.png"; patterns are matched in lower
    /// case. A compound
    ///        extension (".rek.gz", ".stl.gz", ".svif.gz", ".iass.gz") counts as one.
    /// \throws CException "Malformed type list" when the filter has no such pattern; for an empty
    /// filter
    ///         only after the user has chosen a name.
    bool GetSaveFileName(const std::string& fileName, const std::string& filter, EnSaveMode mode);

    bool WasFileSelected() const; ///< What the asking constructor got; false after the plain one.

    std::string FilePath() const;                ///< The first path; empty when there is none.
    std::vector<std::string> FilePaths() const;  ///< All paths, in the order of the dialog.
    QStringList FilePathsAsQStringList() const;  ///< The same as the toolkit's texts.
    CValueVector FilePathsAsValueVector() const; ///< A CValueString for each path, at 0, 1, 2, …

    /// The extension of the first path without its dot, in upper or lower case. Behind ".gz" it has
    /// two sections ("stl.gz"); a path without a dot is its own extension.
    /// Empty before the first success.
    std::string FileExtension(bool upper) const;

    /// Whether the file exists and may be read. Unless \a silent, a box offers Retry and Cancel for
    /// as long as it may not; Cancel makes it false.
    static bool IsFileReadable(const QString& name, QWidget* parent, bool silent);

    /// Whether an existing file may be written, or a new one created under that name: the latter is
    /// tried, and leaves nothing behind. Unless \a silent, a box offers Retry and Cancel as above.
    static bool IsFileWritable(const QString& name, QWidget* parent, bool silent);

    /// Whether all characters have codes below 128. Unless \a silent, a box says so if not.
    static bool IsFilenameAscii(const QString& name, QWidget* parent, bool silent);

private:
    /// How one pass of asking for a name ended.
    enum EnOutcome { eAccepted, eRejected, eCancelled };

    static QString GetCurrentOpenDir();
    static QString StartDirectory(const std::string& startDir);
    static QString SaveStartPath(const std::string& proposal);
    static void ForgetEarlierSavingDir();
    static std::string GetMissingExtension(const std::string& fileName, const std::string& filter);
    static void ValidateFileExtension(std::string& fileName, const std::string& filter);
    EnOutcome CheckExtension(QString& path, const std::string& filter) const;
    EnOutcome CheckExisting(const QString& path, EnSaveMode mode) const;
    EnOutcome CheckForSaving(QString& path, const std::string& filter, EnSaveMode mode) const;
    void Keep(const QStringList& paths);

    static bool bSavePathSet; ///< The saving directory of an earlier run has been forgotten.

    bool m_bFileSelected;
    QStringList m_lPaths;
    std::string m_sExtension; ///< Of the first path, lower case, without the dot.
    QWidget* m_pParent;       ///< Not owned.
};

} // namespace TEVU

#endif
