#ifndef RUQGUI_QT3_PUSHBUTTON_H
#define RUQGUI_QT3_PUSHBUTTON_H

#include <qt3/Export.h>
#include <qt3/Painter.h>
#include <qt3/WidgetFunctions.h>

#include <qpushbutton.h>

namespace qt3 {

/// QPushButton, with copying: besides what takeOver() lists, the text, autoDefault and flatness.
class RUQGUI_EXPORT PushButton : public QPushButton {
public:
    explicit PushButton(QWidget* parent, const char* name = 0);
    PushButton(const QString& text, QWidget* parent, const char* name = 0);
    PushButton(const PushButton& other);
    PushButton& operator=(const PushButton& other);
    ~PushButton();
};

} // namespace qt3

#endif
