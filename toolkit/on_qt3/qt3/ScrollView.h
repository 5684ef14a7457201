#ifndef RUQGUI_QT3_SCROLLVIEW_H
#define RUQGUI_QT3_SCROLLVIEW_H

#include <qscrollview.h>

namespace qt3 {

typedef QScrollView ScrollView;

} // namespace qt3

#endif
