#include <qt3/Painter.h>

#include <qguiapplication.h>
#include <qmath.h>
#include <qwidget.h>

namespace qt3 {

namespace {

QImage canvasOf(Pixmap* pixmap) {
    QImage canvas(pixmap->bits(), pixmap->width(), pixmap->height(), pixmap->bytesPerLine(),
                  pixmap->format());
    canvas.setDevicePixelRatio(pixmap->devicePixelRatio());
    return canvas;
}

bool isCanvasOf(const QImage& canvas, Pixmap* pixmap) {
    return canvas.constBits() == pixmap->bits() && canvas.size() == pixmap->size() &&
           canvas.format() == pixmap->format() &&
           canvas.devicePixelRatio() == pixmap->devicePixelRatio();
}

/// A window that has never been shown is on no screen yet; to ask on which it would be takes long.
qreal densityOf(const QWidget* widget) {
    return widget->window()->windowHandle() ? widget->devicePixelRatioF()
                                            : qGuiApp->devicePixelRatio();
}

bool isPlainLine(const QPen& pen) {
    return pen.style() == Qt::SolidLine && pen.widthF() <= 1;
}

// By filled areas: where a pixel of the widget is several of the screen's, a line of the pen lies
// beside some of them, and what was painted before shows there.
void fillWithOutline(QPainter* painter, const QRect& rect) {
    const QRect inside = rect.adjusted(1, 1, -1, -1);
    if (inside.isValid())
        painter->fillRect(inside, painter->brush());
    for (const QRect& part : QRegion(rect) - QRegion(inside))
        painter->fillRect(part, painter->pen().brush());
}

} // namespace

Painter::Painter() = default;

Painter::Painter(QPaintDevice* device) : QPainter(device) {}

// The toolkit attaches its engine to an image object, not to the pixels. So that the pictures need not
// keep one each, but a picture that is painted again and again need not make one each time, the object
// painted on is another one: that of the picture painted last, if it is the same again.
Painter::Painter(Pixmap* pixmap) {
    static QImage last;
    if (pixmap->isNull())
        return;
    QImage* const canvas = last.paintingActive() ? &m_canvas : &last;
    if (!isCanvasOf(*canvas, pixmap))
        *canvas = canvasOf(pixmap);
    begin(canvas);
}

Painter::~Painter() {
    if (isActive())
        end(); // before the canvas goes
}

void Painter::drawRect(int x, int y, int width, int height) {
    const bool bFillsOnly = pen().style() == Qt::NoPen;
    if (bFillsOnly && brush().style() == Qt::SolidPattern && !testRenderHint(Antialiasing))
        fillRect(x, y, width, height, brush().color()); // the same, by a shorter way
    else if (bFillsOnly)
        QPainter::drawRect(x, y, width, height);
    else if (width < 1 || height < 1 || (width == 1 && height == 1))
        return;
    else if (isPlainLine(pen()))
        fillWithOutline(this, QRect(x, y, width, height));
    else
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
    const qreal density = densityOf(widget);
    // No pixel of the widget is left out, if they are not whole ones.
    const QSize size(qCeil(width * density), qCeil(height * density));
    if (pixmap->size() != size)
        *pixmap = Pixmap(size, QImage::Format_RGB32);
    pixmap->setDevicePixelRatio(density);
}

void bitBlt(QWidget* widget, const Pixmap& pixmap) {
    QPainter painter(widget);
    const QRect covered(QPoint(), pixmap.deviceIndependentSize().toSize());
    if (widget->testAttribute(Qt::WA_OpaquePaintEvent) && !covered.contains(widget->rect()))
        painter.eraseRect(widget->rect()); // the toolkit has not done it
    painter.drawImage(0, 0, pixmap);
}

} // namespace qt3
