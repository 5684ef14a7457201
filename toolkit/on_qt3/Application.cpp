#include <qt3/Application.h>

namespace qt3 {

void setMainWidget(QWidget* widget) {
    if (qApp)
        qApp->setMainWidget(widget);
}

QWidget* mainWidget() {
    if (!qApp)
        return nullptr;
    QWidget* const widget = qApp->mainWidget();
    return widget ? widget : qApp->activeWindow();
}

} // namespace qt3
