#include <qt3/Application.h>

#include <qpointer.h>
#include <qwidget.h>

namespace qt3 {
namespace {

QPointer<QWidget>& setWidget() {
    static QPointer<QWidget> widget;
    return widget;
}

} // namespace

void setMainWidget(QWidget* widget) {
    setWidget() = widget;
}

QWidget* mainWidget() {
    return setWidget() ? setWidget().data() : QApplication::activeWindow();
}

} // namespace qt3
