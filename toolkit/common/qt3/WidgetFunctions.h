#ifndef RUQGUI_QT3_WIDGETFUNCTIONS_H
#define RUQGUI_QT3_WIDGETFUNCTIONS_H

#include <qt3/Export.h>
#include <qt3/Global.h>

#include <qrect.h>
#include <qstring.h>

#include <string>

class QObject;
class QWidget;

namespace qt3 {

/// The object name of any object, "unnamed" when it has none.
RUQGUI_EXPORT std::string name(const QObject* object);

/// Paints at once what is visible of \a widget; nothing when it is hidden or its updates are off.
/// \param erase fill the background first, where the toolkit does not do so anyway
RUQGUI_EXPORT void repaint(QWidget* widget, bool erase);

/// Says that \a widget paints each of its pixels itself: so that a toolkit that would paint first what
/// lies beneath need not do so.
RUQGUI_EXPORT void setOpaque(QWidget* widget);

/// Lets the toolkit polish \a widget again at its next show.
RUQGUI_EXPORT void clearPolished(QWidget* widget);

/// The colours that \a widget has in the given state: QPalette::Active, Inactive or Disabled.
RUQGUI_EXPORT ColorGroup colorGroup(const QWidget* widget, QPalette::ColorGroup state);

/// Sets both policies; stretch factors and height-for-width stay.
RUQGUI_EXPORT void setSizePolicy(QWidget* widget, SizeType horizontal, SizeType vertical);

/// The pixels that \a text takes in the font of \a widget.
RUQGUI_EXPORT int textWidth(const QWidget* widget, const QString& text);

/// Shows \a text while the mouse rests on \a widget or a child without a tip of its own. The text is
/// plain, and long lines of it are broken. An empty one takes the tip away.
RUQGUI_EXPORT void setToolTip(QWidget* widget, const QString& text);

/// The part of the screen with \a widget on it that is free for windows, in pixels of the screen.
RUQGUI_EXPORT QRect availableGeometry(const QWidget* widget);

/// Gives \a target what can be read of \a source: size limits and policy, geometry, palette, font,
/// caption, whether it is opaque, and whether it is enabled by itself. Parent, name and flags stay.
RUQGUI_EXPORT void takeOver(QWidget* target, const QWidget* source);

} // namespace qt3

#endif
