#include <qt3/FileDialog.h>

#include "FileNames.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <algorithm>

namespace qt3 {

namespace {

bool s_bNative = true;

QString& lastFolder() {
    static QString folder = QDir::currentPath();
    return folder;
}

// Settles the folder to show, and gives the name to fill in. A missing folder must not be shown: the
// toolkit would fill in its name.
QString takeStartPath(const QString& path) {
    if (!QFileInfo::exists(lastFolder()))
        lastFolder() = QDir::currentPath();
    if (path.isEmpty())
        return QString();
    const QFileInfo start(onDisk(path));
    if (start.isDir()) {
        lastFolder() = start.filePath();
        return QString();
    }
    if (!QFileInfo::exists(start.path()))
        return QString();
    lastFolder() = start.path();
    return start.fileName();
}

QStringList filterList(const QString& filter) {
    if (filter.isEmpty())
        return QStringList("All Files (*)");
    const QString separator = filter.contains(";;") || !filter.contains('\n') ? ";;" : "\n";
    return filter.split(separator, Qt::SkipEmptyParts);
}

QString resolveFolder(const QString& path) {
    const QFileInfo file(path);
    const QString folder = file.dir().canonicalPath();
    return folder.isEmpty() ? path
                            : QDir::cleanPath(QDir(folder).filePath(onDisk(file.fileName())));
}

QStringList resolveFolders(const QStringList& paths) {
    QStringList resolved;
    for (const QString& path : paths)
        resolved.append(resolveFolder(path));
    return resolved;
}

// By the toolkit's dialog: quotation marks are its way to write several names into one field, so that
// "say "hi".tif" would come back as "hi", and what begins with a colon is a resource of the program.
bool isMisread(const QString& name) {
    return name.contains('"') || name.startsWith(':');
}

bool endsInMisreadName(const QString& path) {
    return isMisread(QFileInfo(path).fileName());
}

// The toolkit's dialog, but what is typed is the name of a file. Quotation marks are part of it unless several
// names are asked for.
class Dialog : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

    void fillIn(const QString& fileName);
    QStringList chosenFiles() const {
        return m_sChosen.isEmpty() ? selectedFiles() : QStringList(m_sChosen);
    }

protected:
    void accept() override;

private:
    QLineEdit* nameField() const { return findChild<QLineEdit*>("fileNameEdit"); }
    QString typed() const;
    void acceptOne(const QFileInfo& file);
    void goByNameField();

    QString m_sChosen; ///< The path, if its name would be misread.
};

QString Dialog::typed() const {
    const QLineEdit* const field = nameField(); // null in the platform's dialog
    return field ? field->text() : QString();
}

void Dialog::fillIn(const QString& fileName) {
    QLineEdit* const field = nameField();
    if (field && fileName.startsWith(':'))
        field->setText(fileName);
    else if (!fileName.isEmpty())
        selectFile(fileName);
}

void Dialog::accept() {
    const QString name = typed();
    const bool several = fileMode() == ExistingFiles && name.contains('"');
    if (isMisread(name) && !several) {
        acceptOne(QFileInfo(directory(), onDisk(name)));
    } else {
        goByNameField();
        QFileDialog::accept();
    }
}

// As for other names: a folder is entered, and what is to be opened must be there.
void Dialog::acceptOne(const QFileInfo& file) {
    if (file.isDir()) {
        setDirectory(file.absoluteFilePath());
    } else if (file.exists() || fileMode() == AnyFile) {
        m_sChosen = file.absoluteFilePath();
        done(Accepted);
    }
}

// The toolkit's dialog selects in its list what is typed, and takes what is selected. A name that is not in
// the list, because there is no such file or the filter hides it, would be left out without a word, one typed
// twice would count once, and the order is lost when the list is sorted anew, as it is whenever more of the
// folder has been read. With nothing selected the dialog goes by the name field and tells of a missing file.
void Dialog::goByNameField() {
    auto* const list = findChild<QListView*>("listView");
    const QStringList selected = selectedFiles();
    if (list && typed().contains('"') &&
        std::none_of(selected.begin(), selected.end(), endsInMisreadName))
        list->clearSelection();
}

// A dialog object and not the toolkit's static functions: those take no object name and ask about
// existing files.
Dialog* makeDialog(const QString& filter, QWidget* parent, const char* name,
                   const QString& caption) {
    Dialog* dialog = new Dialog(parent, caption, lastFolder());
    dialog->setObjectName(QLatin1String(name));
    dialog->setOption(QFileDialog::DontUseNativeDialog, !s_bNative);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    dialog->setNameFilters(filterList(filter));
    return dialog;
}

QStringList run(Dialog* newDialog) {
    const QPointer<Dialog> dialog = newDialog;
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return QStringList();
    lastFolder() = dialog->directory().absolutePath();
    const QStringList chosen = accepted ? resolveFolders(dialog->chosenFiles()) : QStringList();
    delete dialog;
    return chosen;
}

QString first(const QStringList& paths) {
    return paths.isEmpty() ? QString() : paths.first();
}

} // namespace

QString FileDialog::getOpenFileName(const QString& startWith, const QString& filter,
                                    QWidget* parent, const char* name, const QString& caption) {
    const QString fileName = takeStartPath(startWith);
    Dialog* dialog = makeDialog(filter, parent, name, caption);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->fillIn(fileName);
    return first(run(dialog));
}

QStringList FileDialog::getOpenFileNames(const QString& filter, const QString& dir, QWidget* parent,
                                         const char* name, const QString& caption) {
    takeStartPath(dir); // a file's name is not filled in here
    Dialog* dialog = makeDialog(filter, parent, name, caption);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    return run(dialog);
}

QString FileDialog::getSaveFileName(const QString& startWith, const QString& filter,
                                    QWidget* parent, const char* name, const QString& caption) {
    const QString fileName = takeStartPath(startWith);
    Dialog* dialog = makeDialog(filter, parent, name, caption);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->fillIn(fileName);
    return first(run(dialog));
}

void useNativeDialogs(bool use) {
    s_bNative = use;
}

} // namespace qt3
