#include "FileField.h"

#include "PathList.h"

#include <CFileDialog.h>
#include <algorithm>
#include <filesystem>
#include <qt3/Descendants.h>
#include <qt3/MessageBox.h>
#include <qt3/Text.h>

namespace autodlg {

namespace {

TEVU::CFileLineWidget::EnDialogMode dialogMode(StFileKind::EnMode mode) {
    switch (mode) {
    case StFileKind::eOpenFiles:
        return TEVU::CFileLineWidget::eOpenFiles;
    case StFileKind::eSaveFile:
        return TEVU::CFileLineWidget::eSaveFile;
    case StFileKind::eOpenFile:
        break;
    }
    return TEVU::CFileLineWidget::eOpenFile;
}

bool isFolder(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::is_directory(path, ignored);
}

bool isFile(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::exists(path, ignored) && !isFolder(path);
}

bool refuse(QWidget* window, const QString& caption, const QString& text) {
    qt3::MessageBox::warning(window, caption, text, qt3::MessageBox::Ok | qt3::MessageBox::Default,
                             0);
    return false;
}

} // namespace

CFileField::CFileField(const StFileKind& kind, QWidget* parent, const char* name)
    : m_kind(kind), m_pLine(new TEVU::CFileLineWidget("", qt3::fromAscii(kind.filter),
                                                      dialogMode(kind.mode), parent, name)) {
    focusTarget()->setMinimumWidth(usualTextWidth(parent));
}

QWidget* CFileField::widget() const {
    return m_pLine;
}

QWidget* CFileField::focusTarget() const {
    return qt3::child<qt3::LineEdit>(m_pLine);
}

bool CFileField::isAcceptable(QWidget* window, const QString& label) {
    const Texts all = paths();
    if (all.empty() && m_kind.required)
        return refuse(window, "File missing", "Please choose a file for \"" + label + "\".");
    // Before the paths are looked at: their bytes are ASCII only.
    return TEVU::CFileDialog::IsFilenameAscii(m_pLine->filename(), window, false) &&
           std::all_of(all.begin(), all.end(),
                       [&](const std::string& path) { return isAcceptable(path, window); });
}

bool CFileField::isAcceptable(const std::string& path, QWidget* window) const {
    const QString name = qt3::fromAscii(path);
    if (isFolder(path))
        return refuse(window, "Not a file", "This is a folder, not a file:\n" + name);
    return m_kind.mode == StFileKind::eSaveFile
               ? TEVU::CFileDialog::IsFileWritable(name, window, false)
               : TEVU::CFileDialog::IsFileReadable(name, window, false);
}

Texts CFileField::paths() {
    const Value present = value();
    if (m_kind.mode == StFileKind::eOpenFiles)
        return std::get<Texts>(present);
    const auto& path = std::get<std::string>(present);
    return path.empty() ? Texts() : Texts{path};
}

void CFileField::show(const Value& value) {
    const std::string text = m_kind.mode == StFileKind::eOpenFiles
                                 ? joinedPaths(std::get<Texts>(value))
                                 : std::get<std::string>(value);
    m_pLine->setFilename(qt3::fromAscii(text));
}

QString CFileField::shown() {
    return m_pLine->filename();
}

Value CFileField::edited() {
    const std::string text = qt3::ascii(m_pLine->filename());
    if (m_kind.mode == StFileKind::eOpenFiles)
        return splitPaths(text, isFile);
    return text;
}

} // namespace autodlg
