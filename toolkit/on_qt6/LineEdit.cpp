#include <qt3/LineEdit.h>

#include <qt3/Text.h>

#include <qevent.h>
#include <qvalidator.h>

namespace qt3 {
namespace {

void takeOverField(QLineEdit* target, const QLineEdit* source) {
    takeOver(target, source);
    target->setFrame(source->hasFrame());
    target->setAlignment(source->alignment());
    target->setMaxLength(source->maxLength());
    target->setEchoMode(source->echoMode());
    target->setReadOnly(source->isReadOnly());
    target->setValidator(source->validator());
    target->setText(source->text());
}

bool isEdit(const QKeyEvent* event) {
    const int key = event->key();
    const QString typed = event->text();
    return key == Qt::Key_Backspace || key == Qt::Key_Delete ||
           event->matches(QKeySequence::Paste) || event->matches(QKeySequence::Cut) ||
           (!typed.isEmpty() && typed.at(0).isPrint());
}

} // namespace

LineEdit::LineEdit(QWidget* parent, const char* name) : Bridged<QLineEdit>(name, parent) {}

LineEdit::LineEdit(const QString& text, QWidget* parent, const char* name)
    : Bridged<QLineEdit>(name, text, parent) {}

LineEdit::LineEdit(const LineEdit& other)
    : Bridged<QLineEdit>(other.name(nullptr), other.parentWidget()) {
    takeOverField(this, &other);
}

LineEdit& LineEdit::operator=(const LineEdit& other) {
    if (this != &other) {
        setName(other.name(nullptr));
        takeOverField(this, &other);
    }
    return *this;
}

LineEdit::~LineEdit() = default;

void LineEdit::setSelection(int start, int length) {
    if (length < 0 || start < 0 || start > qt3::length(text()))
        deselect();
    else
        QLineEdit::setSelection(start, length);
}

void LineEdit::keyPressEvent(QKeyEvent* event) {
    if (validator() && isEdit(event))
        edit(event);
    else
        Bridged<QLineEdit>::keyPressEvent(event);
}

bool LineEdit::isRejected() const {
    QString copy = text();
    int position = cursorPosition();
    return validator() && validator()->validate(copy, position) == QValidator::Invalid;
}

// The toolkit itself refuses only what follows a text that it has seen to be valid. But a validator
// may have changed its mind since, and a text that was set is not asked about.
void LineEdit::edit(QKeyEvent* event) {
    const StEditing before = {text(), cursorPosition(), selectionStart(), selectedText()};
    bool bEdited = false;
    {
        const QSignalBlocker silence(this); // nobody hears of an edit that is undone
        Bridged<QLineEdit>::keyPressEvent(event);
        // A selection may have been replaced by the same text.
        bEdited = text() != before.sText || (before.nStart >= 0 && !hasSelectedText());
        if (bEdited && isRejected()) {
            bEdited = false;
            QLineEdit::setText(before.sText);
            setCursorPosition(before.nCursor);
        }
        if (!bEdited && !isReadOnly())
            deselect();
    }
    tellChanges(before, bEdited);
}

void LineEdit::tellChanges(const StEditing& before, bool bEdited) {
    if (selectionStart() != before.nStart || selectedText() != before.sSelected)
        emit selectionChanged();
    if (cursorPosition() != before.nCursor)
        emit cursorPositionChanged(before.nCursor, cursorPosition());
    if (!bEdited)
        return;
    emit textEdited(text());
    emit textChanged(text());
}

} // namespace qt3
