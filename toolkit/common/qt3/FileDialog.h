#ifndef RUQGUI_QT3_FILEDIALOG_H
#define RUQGUI_QT3_FILEDIALOG_H

#include <qstring.h>
#include <qstringlist.h>
#include <qt3/Export.h>

class QWidget;

namespace qt3 {

/// The modal file dialogs of Qt 3.3's static functions.
/// \code
/// qt3::useNativeDialogs(false);
/// const QString path = qt3::FileDialog::getOpenFileName("/data", "Images (*.tif *.tiff);;All (*)",
///                                                       parent, "opendialog", "Choose a file...");
/// if (path.isEmpty())
///     return false;
/// \endcode
///
/// The same on both toolkits:
/// - \a startWith: a folder is shown; a file in an existing folder shows the folder and fills in
/// the
///   file's name; for a file in a missing folder and for an empty text, the last used folder is
///   shown and the name field is empty. The last used folder is one for the whole process,
///   remembered on cancel too. The first one is the working directory, and so is that after one
///   that has gone (Qt 3.3 complains about that in boxes of its own first).
/// - \a filter: filters separated by ";;" (or by newlines), each a text with its patterns in
///   parentheses. An empty filter shows all files.
/// - \a name becomes the dialog's object name, \a caption its caption.
/// - The result is an absolute path, or empty after Cancel, Escape and closing. A link to a file is
///   returned as the link; links to folders on the way to it are resolved.
/// - Nothing is appended to a name, and saving never asks about an existing file.
/// - Where one file is asked for, quotation marks are part of its name. Where several are, each name
///   stands in quotation marks.
/// - When \a parent is destroyed under the open dialog, the dialog goes too, as after Cancel.
class RUQGUI_EXPORT FileDialog {
public:
    static QString getOpenFileName(const QString& startWith, const QString& filter, QWidget* parent,
                                   const char* name, const QString& caption);

    /// \a dir is a folder. Here a file is no start path. The paths come in the order of the name field:
    /// as typed, or, when files are clicked, as they are listed on Qt 3.3 and as they were clicked on
    /// Qt 6. While one of them does not exist, a box of the toolkit's says so and the dialog stays open.
    static QStringList getOpenFileNames(const QString& filter, const QString& dir, QWidget* parent,
                                        const char* name, const QString& caption);

    static QString getSaveFileName(const QString& startWith, const QString& filter, QWidget* parent,
                                   const char* name, const QString& caption);
};

/// Whether the file dialogs may be those of the platform. True at first. All that FileDialog
/// promises holds for the toolkit's own dialogs only: switch the platform's off before each call.
RUQGUI_EXPORT void useNativeDialogs(bool use);

} // namespace qt3

#endif
