#include "Events.h"

#include "AsciiLetters.h"

#include <chrono>
#include <qapplication.h>
#include <qobject.h>
#include <thread>

namespace support {

namespace {

/// Presses a key in the menu that pops up, and Escape should that not close it: a menu may run a loop of
/// its own until it is closed.
class CMenuUser : public QObject {
public:
    explicit CMenuUser(int key) : m_nKey(key) { startTimer(10); }

    bool HasChosen() const { return m_nPresses == 1 && !QApplication::activePopupWidget(); }

protected:
    void timerEvent(QTimerEvent*) override {
        QWidget* const menu = QApplication::activePopupWidget();
        if (!menu || !menu->isVisible())
            return;
        const char typed[] = {lowerLetter(static_cast<char>(m_nKey)), '\0'};
        if (++m_nPresses == 1)
            keyClick(menu, m_nKey, support::Modifier::None, typed);
        else
            keyClick(menu, Qt::Key_Escape);
    }

private:
    int m_nKey;
    int m_nPresses = 0;
};

} // namespace

bool chooseInContextMenu(QWidget* widget, QPoint at, int key) {
    const CMenuUser user(key);
    sendContextMenu(widget, at);
    return waitUntil([&] { return user.HasChosen(); }, 1000);
}

void mouseClick(QWidget* widget, QPoint at, Button button, Modifier modifier) {
    mousePress(widget, at, button, modifier);
    mouseRelease(widget, at, button, modifier);
}

void mouseClick(QWidget* widget) {
    mouseClick(widget, widget->rect().center());
}

void mouseDrag(QWidget* widget, QPoint from, QPoint to, int steps) {
    mousePress(widget, from);
    for (int i = 1; i <= steps; ++i)
        mouseMove(widget, QPoint(from.x() + (to.x() - from.x()) * i / steps,
                                 from.y() + (to.y() - from.y()) * i / steps));
    mouseRelease(widget, to);
}

QWidget* keyTarget(QWidget* widget) {
    while (widget->focusProxy())
        widget = widget->focusProxy();
    return widget;
}

void keyClick(QWidget* widget, int key, Modifier modifier, const char* text) {
    keyPress(widget, key, modifier, text);
    keyRelease(widget, key, modifier, text);
}

void typeText(QWidget* widget, const char* text) {
    for (const char* c = text; *c; ++c) {
        const char typed[] = {*c, '\0'};
        if (*c == '\n')
            keyClick(widget, Qt::Key_Return, Modifier::None, "\r");
        else
            keyClick(widget, upperLetter(*c),
                     lowerLetter(*c) != *c ? Modifier::Shift : Modifier::None, typed);
    }
}

bool waitUntil(const std::function<bool()>& done, int maxMs) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + std::chrono::milliseconds(maxMs);
    while (!done()) {
        if (Clock::now() >= end)
            return done();
        processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

void giveFocus(QWidget* widget) {
    show(widget);
    widget->setFocus();
    waitUntil([=] { return widget->hasFocus(); });
}

unsigned pixel(const QImage& image, int x, int y) {
    return image.pixel(x, y) & 0xffffffu;
}

unsigned pixel(QWidget* widget, int x, int y) {
    return pixel(grab(widget), x, y);
}

} // namespace support
