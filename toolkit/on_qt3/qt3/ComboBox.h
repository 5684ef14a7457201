#ifndef RUQGUI_QT3_COMBOBOX_H
#define RUQGUI_QT3_COMBOBOX_H

#include <qt3/Export.h>

#include <qcombobox.h>

namespace qt3 {

typedef QComboBox ComboBox;

/// Connects the choice of an item by the user, with the item's text, to \a slot of \a receiver,
/// written with SLOT() and taking a const QString&. Choosing from code reaches no slot.
RUQGUI_EXPORT bool connectActivated(ComboBox* comboBox, const QObject* receiver, const char* slot);

} // namespace qt3

#endif
