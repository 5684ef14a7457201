#include <qt3/TextEdit.h>

#include <qapplication.h>

namespace qt3 {
namespace {

void takeOverText(QTextEdit* target, const QTextEdit* source) {
    takeOver(target, source);
    target->setReadOnly(source->isReadOnly());
    target->setText(source->text());
}

QString withLineFeedsOnly(QString text) {
    text.replace("\r\n", "\n");
    text.replace('\r', "\n");
    return text;
}

} // namespace

TextEdit::TextEdit(QWidget* parent, const char* name)
    : QTextEdit(parent, name), m_eSource(QClipboard::Clipboard) {
    setTextFormat(Qt::PlainText);
}

TextEdit::TextEdit(const TextEdit& other)
    : QTextEdit(other.parentWidget(), other.name(nullptr)), m_eSource(QClipboard::Clipboard) {
    setTextFormat(Qt::PlainText);
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

void TextEdit::paste() {
    const QString text = QApplication::clipboard()->text(m_eSource);
    if (isReadOnly() || text.find('\r') < 0)
        QTextEdit::paste();
    else // the toolkit's own paste would leave a blank for each carriage return
        insert(withLineFeedsOnly(text), uint(CheckNewLines | RemoveSelected));
}

void TextEdit::contentsMouseReleaseEvent(QMouseEvent* event) {
    m_eSource = event->button() == Qt::MidButton ? QClipboard::Selection : QClipboard::Clipboard;
    QTextEdit::contentsMouseReleaseEvent(event);
    m_eSource = QClipboard::Clipboard;
}

} // namespace qt3
