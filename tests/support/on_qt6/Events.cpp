#include "Events.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QWheelEvent>

namespace support {

namespace {

Qt::MouseButton buttonCode(Button button) {
    switch (button) {
    case Button::Left:
        return Qt::LeftButton;
    case Button::Middle:
        return Qt::MiddleButton;
    case Button::Right:
        return Qt::RightButton;
    case Button::None:
        break;
    }
    return Qt::NoButton;
}

Qt::KeyboardModifiers modifierCode(Modifier modifier) {
    switch (modifier) {
    case Modifier::Shift:
        return Qt::ShiftModifier;
    case Modifier::Control:
        return Qt::ControlModifier;
    case Modifier::Alt:
        return Qt::AltModifier;
    case Modifier::None:
        break;
    }
    return Qt::NoModifier;
}

void sendMouse(QEvent::Type type, QWidget* widget, QPoint at, Button button, Button held,
               Modifier modifier) {
    QMouseEvent event(type, QPointF(at), QPointF(widget->mapToGlobal(at)), buttonCode(button),
                      buttonCode(held), modifierCode(modifier));
    QApplication::sendEvent(widget, &event);
}

void sendKeyEvent(QEvent::Type type, QWidget* widget, int key, Modifier modifier,
                  const char* text) {
    QKeyEvent event(type, key, modifierCode(modifier), QString::fromLatin1(text));
    QApplication::sendEvent(widget, &event);
}

bool takesWheel(QWidget* widget, QPoint global, int delta, Modifier modifier) {
    QWheelEvent event(QPointF(widget->mapFromGlobal(global)), QPointF(global), QPoint(),
                      QPoint(0, delta), Qt::NoButton, modifierCode(modifier), Qt::NoScrollPhase,
                      false);
    return QApplication::sendEvent(widget, &event) && event.isAccepted();
}

} // namespace

void mousePress(QWidget* widget, QPoint at, Button button, Modifier modifier) {
    sendMouse(QEvent::MouseButtonPress, widget, at, button, button, modifier);
}

void mouseMove(QWidget* widget, QPoint at, Button held, Modifier modifier) {
    sendMouse(QEvent::MouseMove, widget, at, Button::None, held, modifier);
}

void mouseRelease(QWidget* widget, QPoint at, Button button, Modifier modifier) {
    sendMouse(QEvent::MouseButtonRelease, widget, at, button, Button::None, modifier);
}

void mouseDoubleClick(QWidget* widget, QPoint at, Button button, Modifier modifier) {
    mouseClick(widget, at, button, modifier);
    sendMouse(QEvent::MouseButtonDblClick, widget, at, button, button, modifier);
    mouseRelease(widget, at, button, modifier);
}

void keyPress(QWidget* widget, int key, Modifier modifier, const char* text) {
    sendKeyEvent(QEvent::KeyPress, keyTarget(widget), key, modifier, text);
}

void keyRelease(QWidget* widget, int key, Modifier modifier, const char* text) {
    sendKeyEvent(QEvent::KeyRelease, keyTarget(widget), key, modifier, text);
}

void sendKey(QWidget* widget, int key, Modifier modifier, const char* text) {
    sendKeyEvent(QEvent::KeyPress, widget, key, modifier, text);
    sendKeyEvent(QEvent::KeyRelease, widget, key, modifier, text);
}

// The toolkit hands only a real wheel to the parents, not one that was sent.
void wheel(QWidget* widget, int delta, Modifier modifier) {
    const QPoint global = widget->mapToGlobal(widget->rect().center());
    while (!takesWheel(widget, global, delta, modifier) && !widget->isWindow())
        widget = widget->parentWidget();
}

void show(QWidget* widget) {
    QWidget* window = widget->window();
    widget->show();
    window->show();
    window->activateWindow();
    waitUntil([=] { return window->isActiveWindow(); });
    processEvents();
}

void sendContextMenu(QWidget* widget, QPoint at) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, widget->mapToGlobal(at));
    QApplication::sendEvent(widget, &event);
}

void processEvents() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QImage grab(QWidget* widget) {
    return widget->grab().toImage();
}

void setClipboard(const QString& text) {
    QApplication::clipboard()->setText(text);
    processEvents();
}

void drop(QWidget* widget, QPoint at, const QString& text) {
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &enter); // else the toolkit knows of no target
    QDropEvent event(QPointF(at), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

std::string text(const QString& string) {
    return string.toStdString();
}

} // namespace support
