#include <qt3/FileDialog.h>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHash>
#include <QLineEdit>
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
    const QFileInfo start(path);
    if (start.isDir()) {
        lastFolder() = path;
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
    return folder.isEmpty() ? path : QDir(folder).filePath(file.fileName());
}

QStringList resolveFolders(const QStringList& paths) {
    QStringList resolved;
    for (const QString& path : paths)
        resolved.append(resolveFolder(path));
    return resolved;
}

// What the name field holds when it holds several.
QStringList quotedNames(const QString& text) {
    const QStringList parts = text.split('"');
    QStringList names;
    for (qsizetype i = 1; i < parts.size(); i += 2)
        names.append(parts[i]);
    return names;
}

// Which of some names each path is meant by, spelled alike or not.
class Positions {
public:
    Positions(const QStringList& names, const QDir& folder) : m_nBehind(names.size()) {
        QStringList paths;
        for (const QString& name : names)
            paths.append(
                QDir::cleanPath(folder.absoluteFilePath(QDir::fromNativeSeparators(name))));
        for (qsizetype i = 0; i < paths.size(); ++i)
            add(paths[i], i);
        for (qsizetype i = 0; i < paths.size(); ++i)
            add(QFileInfo(paths[i]).canonicalFilePath(), i);
    }

    // Behind all of them, if none is meant.
    qsizetype of(const QString& path) const {
        const auto found = m_found.constFind(path);
        return found != m_found.cend()
                   ? *found
                   : m_found.value(QFileInfo(path).canonicalFilePath(), m_nBehind);
    }

private:
    void add(const QString& path, qsizetype position) {
        if (!m_found.contains(path))
            m_found.insert(path, position);
    }

    qsizetype m_nBehind;
    QHash<QString, qsizetype> m_found;
};

// The toolkit's dialog reads quotation marks as its way to write several names into one field, also
// where one file is asked for: a file "say "hi".tif" would come back as "hi". This one takes them as
// part of the name unless several are asked for.
class Dialog : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

    QStringList chosenFiles() const {
        return m_sQuoted.isEmpty() ? inTheOrderTyped(selectedFiles()) : QStringList(m_sQuoted);
    }

protected:
    void accept() override;

private:
    void acceptQuoted(const QFileInfo& file);
    QString typed() const;
    QStringList inTheOrderTyped(QStringList files) const;

    QString m_sQuoted; ///< The path chosen, if the name has quotation marks.
};

QString Dialog::typed() const {
    const auto* field = findChild<QLineEdit*>("fileNameEdit"); // null in the platform's dialog
    return field ? field->text() : QString();
}

// The toolkit's dialog selects in its list what is typed, and loses the order when it sorts the list anew, as it
// does whenever it has read more of the folder.
QStringList Dialog::inTheOrderTyped(QStringList files) const {
    if (files.size() < 2)
        return files;
    const Positions positions(quotedNames(typed()), directory());
    std::stable_sort(files.begin(), files.end(), [&](const QString& one, const QString& other) {
        return positions.of(one) < positions.of(other);
    });
    return files;
}

void Dialog::accept() {
    const QString name = typed();
    if (name.contains('"') && fileMode() != ExistingFiles)
        acceptQuoted(QFileInfo(directory(), name));
    else
        QFileDialog::accept();
}

// As for other names: a folder is entered, and what is to be opened must be there.
void Dialog::acceptQuoted(const QFileInfo& file) {
    if (file.isDir()) {
        setDirectory(file.absoluteFilePath());
    } else if (file.exists() || fileMode() == AnyFile) {
        m_sQuoted = file.absoluteFilePath();
        done(Accepted);
    }
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
    if (!fileName.isEmpty())
        dialog->selectFile(fileName);
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
    if (!fileName.isEmpty())
        dialog->selectFile(fileName);
    return first(run(dialog));
}

void useNativeDialogs(bool use) {
    s_bNative = use;
}

} // namespace qt3
