#include <qt3/Bridged.h>

#include <qmetaobject.h>

namespace qt3 {

void invokeLanguageChange(QWidget* widget) {
    const QMetaObject* const metaObject = widget->metaObject();
    const int index = metaObject->indexOfSlot("languageChange()");
    if (index >= 0)
        metaObject->method(index).invoke(widget, Qt::DirectConnection);
}

void setRoleColor(QWidget* widget, QPalette::ColorRole role, const QColor& color) {
    QPalette palette = widget->palette();
    palette.setColor(role, color);
    widget->setPalette(palette);
}

} // namespace qt3
