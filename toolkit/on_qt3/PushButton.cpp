#include <qt3/PushButton.h>

namespace qt3 {
namespace {

void takeOverButton(QPushButton* target, const QPushButton* source) {
    takeOver(target, source);
    target->setText(source->text());
    target->setAutoDefault(source->autoDefault());
    target->setFlat(source->isFlat());
}

} // namespace

PushButton::PushButton(QWidget* parent, const char* name) : QPushButton(parent, name) {}

PushButton::PushButton(const QString& text, QWidget* parent, const char* name)
    : QPushButton(text, parent, name) {}

PushButton::PushButton(const PushButton& other)
    : QPushButton(other.parentWidget(), other.name(nullptr)) {
    takeOverButton(this, &other);
}

PushButton& PushButton::operator=(const PushButton& other) {
    if (this != &other) {
        setName(other.name(nullptr));
        takeOverButton(this, &other);
    }
    return *this;
}

PushButton::~PushButton() = default;

} // namespace qt3
