#ifndef RUQGUI_TESTS_SUPPORT_EVENTS_H
#define RUQGUI_TESTS_SUPPORT_EVENTS_H

#include <functional>
#include <qimage.h>
#include <qpoint.h>
#include <qt3/Descendants.h>
#include <qwidget.h>
#include <string>
#include <vector>

/// What tests do to widgets, the same on both toolkits.
/// \code
/// support::show(&slider);
/// support::mouseDrag(&slider, QPoint(10, 8), QPoint(60, 8), 5);
/// support::keyClick(&spinBox, Qt::Key_Up);
/// support::typeText(&spinBox, "42");
/// EXPECT_EQ(support::pixel(&slider, 3, 3), 0xffffffu);
/// QLineEdit* editor = support::child<QLineEdit>(&form, "creatorLine");
/// \endcode
namespace support {

enum class Button { None, Left, Middle, Right };
enum class Modifier { None, Shift, Control, Alt };

void mousePress(QWidget* widget, QPoint at, Button button = Button::Left,
                Modifier modifier = Modifier::None);
/// With Button::None a mere hovering.
void mouseMove(QWidget* widget, QPoint at, Button held = Button::Left,
               Modifier modifier = Modifier::None);
void mouseRelease(QWidget* widget, QPoint at, Button button = Button::Left,
                  Modifier modifier = Modifier::None);
void mouseClick(QWidget* widget, QPoint at, Button button = Button::Left,
                Modifier modifier = Modifier::None);
void mouseClick(QWidget* widget); ///< In the middle.
/// Press, release, double click, release.
void mouseDoubleClick(QWidget* widget, QPoint at, Button button = Button::Left,
                      Modifier modifier = Modifier::None);
/// Press at \a from, \a steps moves that end at \a to, release.
void mouseDrag(QWidget* widget, QPoint from, QPoint to, int steps = 1);

/// The widget that gets a user's keys when \a widget has been given the focus: the end of its chain
/// of focus proxies. All functions for keys but sendKey() send there.
QWidget* keyTarget(QWidget* widget);

/// \a key is one of Qt::Key_…; \a text is what it types, if anything.
void keyPress(QWidget* widget, int key, Modifier modifier = Modifier::None, const char* text = "");
void keyRelease(QWidget* widget, int key, Modifier modifier = Modifier::None,
                const char* text = "");
void keyClick(QWidget* widget, int key, Modifier modifier = Modifier::None, const char* text = "");
/// A key click for each character of an ASCII text; a line break is Return.
void typeText(QWidget* widget, const char* text);
/// Press and release for \a widget itself, whatever its focus proxy.
void sendKey(QWidget* widget, int key, Modifier modifier = Modifier::None, const char* text = "");

/// One wheel event in the middle of \a widget; 120 is a notch away from the user. It goes on to the
/// parents until one takes it.
void wheel(QWidget* widget, int delta, Modifier modifier = Modifier::None);

/// Asks for the context menu at \a at and chooses the entry with the accelerator \a key, one of
/// Qt::Key_A…Z. False, with the menu closed, when none came.
bool chooseInContextMenu(QWidget* widget, QPoint at, int key);
/// Only the event that asks for it. On Qt 3.3 a menu may keep it until it is closed.
void sendContextMenu(QWidget* widget, QPoint at);

/// Shows the widget, and makes its window the active one.
void show(QWidget* widget);
/// Gives the focus as the user would see it: in an active window.
void giveFocus(QWidget* widget);

/// Runs what waits in the event queue.
void processEvents();
/// Runs events until \a done answers true, and gives its last answer after \a maxMs milliseconds.
bool waitUntil(const std::function<bool()>& done, int maxMs = 3000);

/// The widget as it paints itself, hidden or not.
QImage grab(QWidget* widget);
/// 0xRRGGBB.
unsigned pixel(const QImage& image, int x, int y);
/// 0xRRGGBB of a fresh grab: for many pixels grab once.
unsigned pixel(QWidget* widget, int x, int y);

void setClipboard(const QString& text);

/// A plain text from another program is dropped at \a at.
void drop(QWidget* widget, QPoint at, const QString& text);

/// UTF-8, never null.
std::string text(const QString& string);

using qt3::child;
using qt3::descendants;

} // namespace support

#endif
