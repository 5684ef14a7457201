#ifndef RUQGUI_QT3_LAYOUT_H
#define RUQGUI_QT3_LAYOUT_H

#include <qt3/Export.h>

#include <qlayout.h>

namespace qt3 {

typedef QHBoxLayout HBoxLayout;
typedef QVBoxLayout VBoxLayout;
typedef QGridLayout GridLayout;
typedef QSpacerItem SpacerItem;

/// The same margin on all four sides.
RUQGUI_EXPORT void setMargin(QLayout* layout, int margin);

} // namespace qt3

#endif
