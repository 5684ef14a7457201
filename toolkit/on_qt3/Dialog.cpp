#include <qt3/Dialog.h>

namespace qt3 {

Dialog::Dialog(QWidget* parent, const char* name, bool modal, WFlags flags)
    : QDialog(parent, name, modal, flags) {}

Dialog::~Dialog() = default;

} // namespace qt3
