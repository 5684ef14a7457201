#include "CNoNewLinesTextEdit.h"

namespace TEVU {

CNoNewLinesTextEdit::CNoNewLinesTextEdit(QWidget* parent, const char* name)
    : qt3::TextEdit(parent, name) {}

CNoNewLinesTextEdit::CNoNewLinesTextEdit(const CNoNewLinesTextEdit& other) = default;
CNoNewLinesTextEdit& CNoNewLinesTextEdit::operator=(const CNoNewLinesTextEdit& other) = default;
CNoNewLinesTextEdit::~CNoNewLinesTextEdit() = default;

void CNoNewLinesTextEdit::paste() {
    qt3::TextEdit::paste();
    QString cleaned = text();
    cleaned.remove(QChar('\r'));
    cleaned.remove(QChar('\n'));
    setText(cleaned);
}

} // namespace TEVU
