#ifndef RUQGUI_QT3_SPINWIDGET_H
#define RUQGUI_QT3_SPINWIDGET_H

#include <qt3/Export.h>

#include <qrangecontrol.h>

namespace qt3 {

typedef QSpinWidget SpinWidget;

/// The size that \a widget needs around an editor whose contents take \a contents.
RUQGUI_EXPORT QSize sizeAround(const SpinWidget* widget, const QSize& contents);

} // namespace qt3

#endif
