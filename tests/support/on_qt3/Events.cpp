#include "Events.h"

#include "DisplayTime.h"

#include <qapplication.h>
#include <qclipboard.h>
#include <qdragobject.h>
#include <qpixmap.h>

namespace support {

namespace {

int buttonCode(Button button) {
    switch (button) {
    case Button::Left:
        return Qt::LeftButton;
    case Button::Middle:
        return Qt::MidButton;
    case Button::Right:
        return Qt::RightButton;
    case Button::None:
        break;
    }
    return Qt::NoButton;
}

int modifierCode(Modifier modifier) {
    switch (modifier) {
    case Modifier::Shift:
        return Qt::ShiftButton;
    case Modifier::Control:
        return Qt::ControlButton;
    case Modifier::Alt:
        return Qt::AltButton;
    case Modifier::None:
        break;
    }
    return 0;
}

void sendMouse(QEvent::Type type, QWidget* widget, QPoint at, int button, int state) {
    QMouseEvent event(type, at, widget->mapToGlobal(at), button, state);
    QApplication::sendEvent(widget, &event);
}

void sendKeyEvent(QEvent::Type type, QWidget* widget, int key, Modifier modifier,
                  const char* text) {
    QKeyEvent event(type, key, static_cast<unsigned char>(text[0]), modifierCode(modifier),
                    QString::fromLatin1(text));
    QApplication::sendEvent(widget, &event);
}

/// Has its text with it, where the toolkit's own event asks the X server.
class TextDrop : public QDropEvent {
public:
    TextDrop(QPoint at, const QString& text) : QDropEvent(at), m_text(text) {}

    const char* format(int index) const override { return m_text.format(index); }
    bool provides(const char* type) const override { return m_text.provides(type); }
    QByteArray encodedData(const char* type) const override { return m_text.encodedData(type); }

private:
    QTextDrag m_text;
};

} // namespace

void mousePress(QWidget* widget, QPoint at, Button button, Modifier modifier) {
    sendMouse(QEvent::MouseButtonPress, widget, at, buttonCode(button), modifierCode(modifier));
}

void mouseMove(QWidget* widget, QPoint at, Button held, Modifier modifier) {
    sendMouse(QEvent::MouseMove, widget, at, Qt::NoButton,
              buttonCode(held) | modifierCode(modifier));
}

void mouseRelease(QWidget* widget, QPoint at, Button button, Modifier modifier) {
    sendMouse(QEvent::MouseButtonRelease, widget, at, buttonCode(button),
              buttonCode(button) | modifierCode(modifier));
}

void mouseDoubleClick(QWidget* widget, QPoint at, Button button, Modifier modifier) {
    mouseClick(widget, at, button, modifier);
    sendMouse(QEvent::MouseButtonDblClick, widget, at, buttonCode(button), modifierCode(modifier));
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

// The toolkit itself hands a wheel event that nobody takes to the parents.
void wheel(QWidget* widget, int delta, Modifier modifier) {
    const QPoint at = widget->rect().center();
    QWheelEvent event(at, widget->mapToGlobal(at), delta, modifierCode(modifier));
    QApplication::sendEvent(widget, &event);
}

// There is no window manager in tests that would activate a new window.
void show(QWidget* widget) {
    QWidget* window = widget->topLevelWidget();
    widget->show();
    window->show();
    processEvents();
    window->setActiveWindow();
    waitUntil([=] { return window->isActiveWindow(); });
    processEvents();
}

void sendContextMenu(QWidget* widget, QPoint at) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, widget->mapToGlobal(at), Qt::NoButton);
    QApplication::sendEvent(widget, &event);
}

void processEvents() {
    QApplication::syncX();
    QApplication::sendPostedEvents();
    qApp->processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QImage grab(QWidget* widget) {
    return QPixmap::grabWidget(widget).convertToImage();
}

void setClipboard(const QString& text) {
    learnDisplayTime();
    QApplication::clipboard()->setText(text, QClipboard::Clipboard);
    processEvents();
}

void drop(QWidget* widget, QPoint at, const QString& text) {
    TextDrop event(at, text);
    QApplication::sendEvent(widget, &event);
}

std::string text(const QString& string) {
    const QCString utf8 = string.utf8();
    return utf8.isNull() ? std::string() : std::string(utf8.data());
}

} // namespace support
