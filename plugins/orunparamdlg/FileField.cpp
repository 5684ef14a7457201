#include "Field.h"
#include "PathList.h"

#include <CFileDialog.h>
#include <CFileLineWidget.h>
#include <algorithm>
#include <filesystem>
#include <qt3/Descendants.h>
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

TEVU::CFileLineWidget* createLine(const StFileKind& kind, QWidget* parent, const char* name) {
    return new TEVU::CFileLineWidget("", qt3::fromAscii(kind.filter), dialogMode(kind.mode), parent,
                                     name);
}

class CFileField : public CFieldOf<TEVU::CFileLineWidget> {
public:
    CFileField(const StFileKind& kind, TEVU::CFileLineWidget* line)
        : CFieldOf(line, qt3::child<qt3::LineEdit>(line)), m_kind(kind) {
        focusTarget()->setMinimumWidth(usualTextWidth(line));
    }

    /// Files to open must be readable, one to save must be writable; no folders, only ASCII, and
    /// not nothing if the file is required. A file that is not readable or writable can be tried again.
    bool isAcceptable(QWidget* window, const QString& label) override {
        const Texts all = paths();
        if (all.empty() && m_kind.required)
            return refuse(window, "File missing", "Please choose a file for \"" + label + "\".");
        // Before the paths are looked at: their bytes are ASCII only.
        return TEVU::CFileDialog::IsFilenameAscii(m_pEditor->filename(), window, false) &&
               std::all_of(all.begin(), all.end(),
                           [&](const std::string& path) { return isUsable(path, window); });
    }

protected:
    void show(const Value& value) override {
        const auto* const several = std::get_if<Texts>(&value);
        const std::string text = several ? joinedPaths(*several) : std::get<std::string>(value);
        m_pEditor->setFilename(qt3::fromAscii(text));
    }

    QString shown() override { return m_pEditor->filename(); }

    Value edited() override {
        const std::string text = qt3::ascii(m_pEditor->filename());
        if (m_kind.mode == StFileKind::eOpenFiles)
            return splitPaths(text, isFile);
        return text;
    }

private:
    Texts paths() {
        const Value present = value();
        if (const auto* const several = std::get_if<Texts>(&present))
            return *several;
        const auto& path = std::get<std::string>(present);
        return path.empty() ? Texts() : Texts{path};
    }

    bool isUsable(const std::string& path, QWidget* window) const {
        const QString name = qt3::fromAscii(path);
        if (isFolder(path))
            return refuse(window, "Not a file", "This is a folder, not a file:\n" + name);
        return m_kind.mode == StFileKind::eSaveFile
                   ? TEVU::CFileDialog::IsFileWritable(name, window, false)
                   : TEVU::CFileDialog::IsFileReadable(name, window, false);
    }

    StFileKind m_kind;
};

} // namespace

FieldPointer createField(const StFileKind& kind, QWidget* parent, const char* name) {
    return std::make_unique<CFileField>(kind, createLine(kind, parent, name));
}

} // namespace autodlg
