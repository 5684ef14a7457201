#include <qt3/Painter.h>

#include <qwidget.h>

namespace qt3 {

Painter::Painter() = default;

Painter::Painter(QPaintDevice* device) : QPainter(device) {}

void Painter::drawRect(int x, int y, int width, int height) {
    if (pen().style() == Qt::NoPen)
        QPainter::drawRect(x, y, width, height);
    else if (width > 0 && height > 0 && (width > 1 || height > 1))
        QPainter::drawRect(x, y, width - 1, height - 1); // Qt 6 adds the pen's width
}

void Painter::drawRect(const QRect& rect) {
    drawRect(rect.x(), rect.y(), rect.width(), rect.height());
}

void resize(Pixmap* pixmap, const QWidget* widget, int width, int height) {
    if (width < 1 || height < 1) {
        *pixmap = Pixmap();
        return;
    }
    const qreal density = widget->devicePixelRatioF();
    *pixmap = Pixmap(QSize(width, height) * density);
    pixmap->setDevicePixelRatio(density);
}

void bitBlt(QWidget* widget, const Pixmap& pixmap) {
    QPainter(widget).drawPixmap(0, 0, pixmap);
}

} // namespace qt3
