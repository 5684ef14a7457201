#ifndef RUQGUI_QT3_LINEEDIT_H
#define RUQGUI_QT3_LINEEDIT_H

#include <qt3/Export.h>
#include <qt3/WidgetFunctions.h>

#include <qlineedit.h>

namespace qt3 {

/// QLineEdit, with copying: besides what takeOver() lists, text, alignment, maximum length, frame,
/// echo mode, read-only state and the pointer to the validator. Copying emits no signal of the
/// copy's users.
class RUQGUI_EXPORT LineEdit : public QLineEdit {
public:
    explicit LineEdit(QWidget* parent, const char* name = 0);
    LineEdit(const QString& text, QWidget* parent, const char* name = 0);
    LineEdit(const LineEdit& other);
    LineEdit& operator=(const LineEdit& other);
    ~LineEdit();
};

} // namespace qt3

#endif
