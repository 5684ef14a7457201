#ifndef RUQGUI_QT3_GLOBAL_H
#define RUQGUI_QT3_GLOBAL_H

#include <qpalette.h>
#include <qsizepolicy.h>
#include <qwidget.h>

namespace qt3 {

/// The flags of a widget.
typedef Qt::WFlags WFlags;
constexpr WFlags WType_Dialog = Qt::WType_Dialog;

/// One policy of a QSizePolicy, such as QSizePolicy::Fixed.
typedef QSizePolicy::SizeType SizeType;

/// The palette role behind a widget.
typedef Qt::BackgroundMode BackgroundMode;
constexpr BackgroundMode PaletteBackground = Qt::PaletteBackground;
constexpr BackgroundMode PaletteBase = Qt::PaletteBase;

/// The colours of one state of a widget.
typedef QColorGroup ColorGroup;

} // namespace qt3

#endif
