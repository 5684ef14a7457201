#include <qt3/ComboBox.h>

namespace qt3 {

bool connectActivated(ComboBox* comboBox, const QObject* receiver, const char* slot) {
    return QObject::connect(comboBox, SIGNAL(activated(const QString&)), receiver, slot);
}

} // namespace qt3
