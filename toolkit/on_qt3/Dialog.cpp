#include <qt3/Dialog.h>

#include <qapplication.h>

namespace qt3 {

Dialog::Dialog(QWidget* parent, const char* name, bool modal, WFlags flags)
    : QDialog(parent, name, modal, flags) {}

Dialog::~Dialog() = default;

// When it was destroyed it ended only the innermost event loop, that of the other one.
void Dialog::endExecOfDestroyed() {
    qApp->exit_loop();
}

} // namespace qt3
