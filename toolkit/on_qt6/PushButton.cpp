#include <qt3/PushButton.h>

#include <qstyleoption.h>

namespace qt3 {
namespace {

void takeOverButton(QPushButton* target, const QPushButton* source) {
    takeOver(target, source);
    target->setText(source->text());
    target->setAutoDefault(source->autoDefault());
    target->setFlat(source->isFlat());
}

} // namespace

PushButton::PushButton(QWidget* parent, const char* name) : Bridged<QPushButton>(name, parent) {}

PushButton::PushButton(const QString& text, QWidget* parent, const char* name)
    : Bridged<QPushButton>(name, text, parent) {}

PushButton::PushButton(const PushButton& other)
    : Bridged<QPushButton>(other.name(nullptr), other.parentWidget()) {
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

void PushButton::drawButton(Painter* painter) {
    QStyleOptionButton option;
    initStyleOption(&option);
    style()->drawControl(QStyle::CE_PushButtonBevel, &option, painter, this);
    drawButtonLabel(painter);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = style()->subElementRect(QStyle::SE_PushButtonFocusRect, &option, this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, this);
}

void PushButton::drawButtonLabel(Painter* painter) {
    QStyleOptionButton option;
    initStyleOption(&option);
    option.rect = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    style()->drawControl(QStyle::CE_PushButtonLabel, &option, painter, this);
}

void PushButton::paintEvent(QPaintEvent*) {
    Painter painter(this);
    drawButton(&painter);
}

} // namespace qt3
