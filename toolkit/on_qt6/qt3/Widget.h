#ifndef RUQGUI_QT3_WIDGET_H
#define RUQGUI_QT3_WIDGET_H

#include <qt3/Bridged.h>

namespace qt3 {

/// The base of the library's own widgets: QWidget, with the Qt 3.3 members and with copying.
///
/// A copy has the same parent, name and flags, and takes over what takeOver() lists; it has no
/// children. Assignment takes over the name and the same things; parent and flags stay.
class RUQGUI_EXPORT Widget : public Bridged<QWidget> {
public:
    explicit Widget(QWidget* parent = nullptr, const char* name = nullptr, WFlags flags = 0);
    Widget(const Widget& other);
    Widget& operator=(const Widget& other);
    ~Widget() override;
};

} // namespace qt3

#endif
