#include <qt3/Painter.h>

#include <qpaintdevice.h>
#include <qwidget.h>

namespace qt3 {

void resize(Pixmap* pixmap, const QWidget*, int width, int height) {
    pixmap->resize(width, height);
}

void bitBlt(QWidget* widget, const Pixmap& pixmap) {
    ::bitBlt(widget, 0, 0, &pixmap, 0, 0, -1, -1, Qt::CopyROP, false);
}

} // namespace qt3
