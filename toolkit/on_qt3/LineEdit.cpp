#include <qt3/LineEdit.h>

namespace qt3 {
namespace {

void takeOverField(QLineEdit* target, const QLineEdit* source) {
    takeOver(target, source);
    target->setFrame(source->frame());
    target->setAlignment(source->alignment());
    target->setMaxLength(source->maxLength());
    target->setEchoMode(source->echoMode());
    target->setReadOnly(source->isReadOnly());
    target->setValidator(source->validator());
    target->setText(source->text());
}

} // namespace

LineEdit::LineEdit(QWidget* parent, const char* name) : QLineEdit(parent, name) {}

LineEdit::LineEdit(const QString& text, QWidget* parent, const char* name)
    : QLineEdit(text, parent, name) {}

LineEdit::LineEdit(const LineEdit& other) : QLineEdit(other.parentWidget(), other.name(nullptr)) {
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

} // namespace qt3
