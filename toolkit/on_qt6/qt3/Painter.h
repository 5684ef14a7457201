#ifndef RUQGUI_QT3_PAINTER_H
#define RUQGUI_QT3_PAINTER_H

#include <qt3/Export.h>

#include <qpainter.h>
#include <qpixmap.h>

namespace qt3 {

/// QPainter whose rectangles cover what they cover in Qt 3.3.
class RUQGUI_EXPORT Painter : public QPainter {
public:
    Painter();
    explicit Painter(QPaintDevice* device);

    /// Outline and fill lie within exactly width by height pixels. With a pen, a rectangle that is
    /// empty or a single pixel draws nothing.
    void drawRect(int x, int y, int width, int height);
    void drawRect(const QRect& rect);
};

using Pixmap = QPixmap;

/// Makes \a pixmap a picture of width by height for painting on \a widget; null if one is below 1.
/// It has the pixel density of the widget's screen. Its contents are undefined then.
RUQGUI_EXPORT void resize(Pixmap* pixmap, const QWidget* widget, int width, int height);

/// Copies the whole \a pixmap to the upper left corner of \a widget. Only from its paintEvent().
RUQGUI_EXPORT void bitBlt(QWidget* widget, const Pixmap& pixmap);

} // namespace qt3

#endif
