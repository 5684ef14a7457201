#ifndef RUQGUI_QT3_PAINTER_H
#define RUQGUI_QT3_PAINTER_H

#include <qt3/Export.h>

#include <qimage.h>
#include <qpainter.h>

namespace qt3 {

/// An image, into which the toolkit paints without a detour.
using Pixmap = QImage;

/// QPainter whose rectangles cover what they cover in Qt 3.3.
class RUQGUI_EXPORT Painter : public QPainter {
public:
    Painter();
    explicit Painter(QPaintDevice* device);

    explicit Painter(Pixmap* pixmap); ///< Leaves no engine with it: that takes more than a widget.
    ~Painter();

    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;

    /// Outline and fill lie within exactly width by height pixels. With a pen, a rectangle that is
    /// empty or a single pixel draws nothing.
    void drawRect(int x, int y, int width, int height);
    void drawRect(const QRect& rect);

private:
    QImage
        m_canvas; ///< The pixels of the pixmap; it is to them that the toolkit attaches its engine.
};

/// Makes \a pixmap a picture of width by height for painting on \a widget; null if one is below 1.
/// It has the pixel density of the widget's screen, before the first show that of the densest. Its contents are undefined then.
RUQGUI_EXPORT void resize(Pixmap* pixmap, const QWidget* widget, int width, int height);

/// Copies the whole \a pixmap to the upper left corner of \a widget. Only from its paintEvent().
RUQGUI_EXPORT void bitBlt(QWidget* widget, const Pixmap& pixmap);

} // namespace qt3

#endif
