#ifndef RUQGUI_QT3_PAINTER_H
#define RUQGUI_QT3_PAINTER_H

#include <qt3/Export.h>

#include <qpainter.h>
#include <qpixmap.h>

namespace qt3 {

typedef QPainter Painter;
typedef QPixmap Pixmap;

/// Makes \a pixmap a picture of width by height for painting on \a widget; null if one is below 1.
/// Its contents are undefined then.
RUQGUI_EXPORT void resize(Pixmap* pixmap, const QWidget* widget, int width, int height);

/// Copies the whole \a pixmap to the upper left corner of \a widget. Only from its paintEvent().
RUQGUI_EXPORT void bitBlt(QWidget* widget, const Pixmap& pixmap);

} // namespace qt3

#endif
