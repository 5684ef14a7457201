#ifndef RUQGUI_QT3_COLORDIALOG_H
#define RUQGUI_QT3_COLORDIALOG_H

#include <qcolor.h>
#include <qt3/Export.h>

class QWidget;

namespace qt3 {

/// The modal colour dialog of Qt 3.3's static function: always the toolkit's own.
class RUQGUI_EXPORT ColorDialog {
public:
    /// The colour chosen, opaque; an invalid colour after Cancel, Escape and closing, and when \a
    /// parent is destroyed under the open dialog. \a name becomes the dialog's object name (it is
    /// not the caption, which is "Select color").
    static QColor getColor(const QColor& initial, QWidget* parent, const char* name);
};

} // namespace qt3

#endif
