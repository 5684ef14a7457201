#ifndef RUQGUI_QT3_CHECKBOX_H
#define RUQGUI_QT3_CHECKBOX_H

#include <qt3/Bridged.h>

#include <qcheckbox.h>

namespace qt3 {

/// QCheckBox with the Qt 3.3 members.
class CheckBox : public Bridged<QCheckBox> {
public:
    explicit CheckBox(QWidget* parent, const char* name = nullptr)
        : Bridged<QCheckBox>(name, parent) {}

    CheckBox(const QString& text, QWidget* parent, const char* name = nullptr)
        : Bridged<QCheckBox>(name, text, parent) {}
};

} // namespace qt3

#endif
