#include "Looks.h"

namespace support {

qt3::SizeType horizontalPolicy(const QWidget* widget) {
    return widget->sizePolicy().horData();
}

qt3::SizeType verticalPolicy(const QWidget* widget) {
    return widget->sizePolicy().verData();
}

int margin(QLayout* layout) {
    return layout->margin();
}

void setButtonText(QWidget* widget, QPalette::ColorGroup state, const QColor& color) {
    QPalette palette = widget->palette();
    palette.setColor(state, QColorGroup::ButtonText, color);
    widget->setPalette(palette);
}

unsigned int dialogFlag() {
    return Qt::WType_Dialog;
}

bool isDialog(const QWidget* widget) {
    return widget->isTopLevel() && widget->isDialog();
}

} // namespace support
