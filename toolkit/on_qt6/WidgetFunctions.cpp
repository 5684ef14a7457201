#include <qt3/WidgetFunctions.h>

#include <qscreen.h>
#include <qt3/Text.h>
#include <qwidget.h>

namespace qt3 {

std::string name(const QObject* object) {
    const QByteArray bytes = object->objectName().toLatin1();
    return bytes.isEmpty() ? "unnamed" : bytes.toStdString();
}

void repaint(QWidget* widget, bool) {
    widget->repaint();
}

void setOpaque(QWidget* widget) {
    widget->setAttribute(Qt::WA_OpaquePaintEvent);
}

void clearPolished(QWidget* widget) {
    widget->setAttribute(Qt::WA_WState_Polished, false);
}

ColorGroup colorGroup(const QWidget* widget, QPalette::ColorGroup state) {
    return ColorGroup(widget->palette(), state);
}

void setSizePolicy(QWidget* widget, SizeType horizontal, SizeType vertical) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setHorizontalPolicy(horizontal);
    policy.setVerticalPolicy(vertical);
    widget->setSizePolicy(policy);
}

int textWidth(const QWidget* widget, const QString& text) {
    return widget->fontMetrics().horizontalAdvance(text);
}

void setToolTip(QWidget* widget, const QString& text) {
    widget->setToolTip(text.isEmpty() ? QString() : plainMarkup(text));
}

QRect availableGeometry(const QWidget* widget) {
    return widget->screen()->availableGeometry();
}

void takeOver(QWidget* target, const QWidget* source) {
    target->setMinimumSize(source->minimumSize());
    target->setMaximumSize(source->maximumSize());
    target->setSizePolicy(source->sizePolicy());
    target->setGeometry(source->geometry());
    target->setPalette(source->testAttribute(Qt::WA_SetPalette) ? source->palette() : QPalette());
    target->setFont(source->testAttribute(Qt::WA_SetFont) ? source->font() : QFont());
    target->setWindowTitle(source->windowTitle());
    target->setAttribute(Qt::WA_OpaquePaintEvent, source->testAttribute(Qt::WA_OpaquePaintEvent));
    target->setEnabled(source->isEnabledTo(source->parentWidget()));
}

} // namespace qt3
