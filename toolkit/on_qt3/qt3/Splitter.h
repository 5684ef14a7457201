#ifndef RUQGUI_QT3_SPLITTER_H
#define RUQGUI_QT3_SPLITTER_H

#include <qsplitter.h>

namespace qt3 {

typedef QSplitter Splitter;

} // namespace qt3

#endif
