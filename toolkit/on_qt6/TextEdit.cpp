#include <qt3/TextEdit.h>

#include <qevent.h>
#include <qmimedata.h>
#include <qtextdocument.h>

#include <utility>

namespace qt3 {
namespace {

void takeOverText(TextEdit* target, const TextEdit* source) {
    takeOver(target, source);
    target->setReadOnly(source->isReadOnly());
    target->setText(source->text());
}

} // namespace

TextEdit::TextEdit(QWidget* parent, const char* name) : Bridged<QTextEdit>(name, parent) {
    setAcceptRichText(false);
}

TextEdit::TextEdit(const TextEdit& other)
    : Bridged<QTextEdit>(other.name(nullptr), other.parentWidget()) {
    setAcceptRichText(false);
    takeOverText(this, &other);
}

TextEdit& TextEdit::operator=(const TextEdit& other) {
    if (this != &other) {
        setName(other.name(nullptr));
        takeOverText(this, &other);
    }
    return *this;
}

TextEdit::~TextEdit() = default;

QString TextEdit::text() const {
    QString text = document()->toRawText(); // toPlainText() would turn no-break spaces into blanks
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return text;
}

void TextEdit::setText(const QString& text) {
    if (!isReadOnly() || document()->isModified() || this->text() != text)
        setPlainText(text);
}

void TextEdit::paste() {
    const bool bOuter = std::exchange(m_bInserting, true);
    if (hasNothingToPaste()) { // with which Qt 6.4 can crash
        if (!isReadOnly())
            textCursor().removeSelectedText(); // nothing replaces the selection too
    } else if (m_pSource) {
        QTextEdit::insertFromMimeData(m_pSource);
    } else {
        QTextEdit::paste();
    }
    m_bInserting = bOuter;
}

bool TextEdit::hasNothingToPaste() const {
    return m_pSource ? m_pSource->formats().isEmpty() : !canPaste();
}

void TextEdit::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste) && !isReadOnly()) {
        event->accept();
        paste(); // the toolkit would not call it when the clipboard is empty
    } else {
        Bridged<QTextEdit>::keyPressEvent(event);
        if (!isReadOnly() && (event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete))
            document()->setModified(true); // also where there was nothing to delete
    }
}

void TextEdit::dropEvent(QDropEvent* event) {
    const bool bOuter = std::exchange(m_bInserting, true);
    Bridged<QTextEdit>::dropEvent(event);
    m_bInserting = bOuter;
}

void TextEdit::insertFromMimeData(const QMimeData* source) {
    if (m_bInserting) {
        Bridged<QTextEdit>::insertFromMimeData(source);
        return;
    }
    m_pSource = source;
    paste();
    m_pSource = nullptr;
}

} // namespace qt3
