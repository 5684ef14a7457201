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
    const bool bTypesText =
        !event->text().isEmpty() && event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter;
    const bool bDeletes = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    if ((bTypesText || bDeletes) && isRejected())
        keyPressOverRejected(event);
    else
        Bridged<QLineEdit>::keyPressEvent(event);
}

bool LineEdit::isRejected() const {
    QString copy = text();
    int position = cursorPosition();
    return validator() && validator()->validate(copy, position) == QValidator::Invalid;
}

void LineEdit::keyPressOverRejected(QKeyEvent* event) {
    const QString before = text();
    const int position = cursorPosition();
    {
        const QSignalBlocker silence(this); // nobody hears of an edit that is undone
        Bridged<QLineEdit>::keyPressEvent(event);
        if (text() != before && isRejected()) {
            QLineEdit::setText(before);
            setCursorPosition(position);
        }
    }
    if (text() == before)
        return;
    emit textEdited(text());
    emit textChanged(text());
}

} // namespace qt3
