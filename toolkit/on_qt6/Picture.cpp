#include <qt3/Picture.h>

#include <qfile.h>
#include <qpixmap.h>
#include <qwidget.h>

namespace qt3 {

bool savePicture(QWidget* widget, const std::string& pngPath) {
    return widget->grab().save(QFile::decodeName(pngPath.c_str()), "PNG");
}

} // namespace qt3
