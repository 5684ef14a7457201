#include "Looks.h"

#include "Events.h"

#include <qtextcursor.h>

namespace support {

qt3::SizeType horizontalPolicy(const QWidget* widget) {
    return widget->sizePolicy().horizontalPolicy();
}

qt3::SizeType verticalPolicy(const QWidget* widget) {
    return widget->sizePolicy().verticalPolicy();
}

// As the toolkit looks for it: a child without a tip has that of its parent.
std::string toolTip(QWidget* widget) {
    const QString tip = widget->toolTip();
    if (!tip.isEmpty() || widget->isWindow())
        return text(tip);
    return toolTip(widget->parentWidget());
}

int margin(QLayout* layout) {
    const QMargins margins = layout->contentsMargins();
    const int left = margins.left();
    return margins == QMargins(left, left, left, left) ? left : -1;
}

void setButtonText(QWidget* widget, QPalette::ColorGroup state, const QColor& color) {
    QPalette palette = widget->palette();
    palette.setColor(state, QPalette::ButtonText, color);
    widget->setPalette(palette);
}

int cursorOf(const qt3::TextEdit* edit) {
    return edit->textCursor().position();
}

std::string selectionOf(const qt3::TextEdit* edit) {
    QString selected = edit->textCursor().selectedText();
    for (const QChar::SpecialCharacter end : {QChar::ParagraphSeparator, QChar::LineSeparator})
        selected.replace(end, QChar('\n'));
    return text(selected);
}

void keepLinesWhole(qt3::TextEdit* edit) {
    edit->setLineWrapMode(QTextEdit::NoWrap);
}

unsigned int dialogFlag() {
    return Qt::Dialog;
}

bool isDialog(const QWidget* widget) {
    return widget->windowType() == Qt::Dialog;
}

} // namespace support
