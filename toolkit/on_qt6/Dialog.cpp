#include <qt3/Dialog.h>

namespace qt3 {

Dialog::Dialog(QWidget* parent, const char* name, bool modal, WFlags flags)
    : Bridged<QDialog>(name, parent, Qt::WindowFlags(static_cast<int>(flags))) {
    setModal(modal);
}

Dialog::~Dialog() = default;

} // namespace qt3
