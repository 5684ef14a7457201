#ifndef RUQGUI_ORUNPARAMDLG_FILEFIELD_H
#define RUQGUI_ORUNPARAMDLG_FILEFIELD_H

#include "Field.h"

#include <CFileLineWidget.h>

namespace autodlg {

class CFileField : public CField {
public:
    CFileField(const StFileKind& kind, QWidget* parent, const char* name);
    QWidget* widget() const override;
    QWidget* focusTarget() const override;

    /// Files to open must be readable, one to save must be writable; no folders, only ASCII, and
    /// not nothing if the file is required. A file that is not readable or writable can be tried again.
    bool isAcceptable(QWidget* window, const QString& label) override;

protected:
    void show(const Value& value) override;
    QString shown() override;
    Value edited() override;

private:
    Texts paths();
    bool isAcceptable(const std::string& path, QWidget* window) const;

    StFileKind m_kind;
    TEVU::CFileLineWidget* m_pLine;
};

} // namespace autodlg

#endif
