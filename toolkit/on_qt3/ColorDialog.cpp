#include <qt3/ColorDialog.h>

#include "DialogGuard.h"

#include <qcolordialog.h>

namespace qt3 {

QColor ColorDialog::getColor(const QColor& initial, QWidget* parent, const char* name) {
    const DialogGuard guard(parent, "QColorDialog");
    return QColorDialog::getColor(initial, parent, name);
}

} // namespace qt3
