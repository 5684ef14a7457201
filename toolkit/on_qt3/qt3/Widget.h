#ifndef RUQGUI_QT3_WIDGET_H
#define RUQGUI_QT3_WIDGET_H

#include <qt3/Export.h>
#include <qt3/Global.h>
#include <qt3/WidgetFunctions.h>

#include <qwidget.h>

namespace qt3 {

/// The base of the library's own widgets: QWidget, with copying.
///
/// A copy has the same parent, name and flags, and takes over what takeOver() lists; it has no
/// children. Assignment takes over the name and the same things; parent and flags stay.
class RUQGUI_EXPORT Widget : public QWidget {
public:
    explicit Widget(QWidget* parent = 0, const char* name = 0, WFlags flags = 0);
    Widget(const Widget& other);
    Widget& operator=(const Widget& other);
    ~Widget();
};

} // namespace qt3

#endif
