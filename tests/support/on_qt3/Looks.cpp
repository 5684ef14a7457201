#include "Looks.h"

#include "Events.h"

#include <qtooltip.h>

namespace support {

qt3::SizeType horizontalPolicy(const QWidget* widget) {
    return widget->sizePolicy().horData();
}

qt3::SizeType verticalPolicy(const QWidget* widget) {
    return widget->sizePolicy().verData();
}

// As the toolkit looks for it: a child without a tip has that of its parent.
std::string toolTip(QWidget* widget) {
    const QString tip = QToolTip::textFor(widget);
    if (!tip.isEmpty() || widget->isTopLevel())
        return text(tip);
    return toolTip(widget->parentWidget());
}

int margin(QLayout* layout) {
    return layout->margin();
}

void setButtonText(QWidget* widget, QPalette::ColorGroup state, const QColor& color) {
    QPalette palette = widget->palette();
    palette.setColor(state, QColorGroup::ButtonText, color);
    widget->setPalette(palette);
}

int cursorOf(const qt3::TextEdit* edit) {
    int paragraph = 0;
    int position = 0;
    edit->getCursorPosition(&paragraph, &position);
    while (--paragraph >= 0)
        position += edit->paragraphLength(paragraph) + 1;
    return position;
}

std::string selectionOf(const qt3::TextEdit* edit) {
    return text(edit->selectedText());
}

void keepLinesWhole(qt3::TextEdit* edit) {
    edit->setWordWrap(QTextEdit::NoWrap);
}

unsigned int dialogFlag() {
    return Qt::WType_Dialog;
}

bool isDialog(const QWidget* widget) {
    return widget->isTopLevel() && widget->isDialog();
}

} // namespace support
