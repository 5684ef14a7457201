#include <qt3/Picture.h>

#include <qpixmap.h>
#include <qwidget.h>

namespace qt3 {

bool savePicture(QWidget* widget, const std::string& pngPath) {
    return widget->grab().save(QString::fromStdString(pngPath), "PNG");
}

} // namespace qt3
