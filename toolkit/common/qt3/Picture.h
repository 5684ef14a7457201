#ifndef RUQGUI_QT3_PICTURE_H
#define RUQGUI_QT3_PICTURE_H

#include <qt3/Export.h>

#include <string>

class QWidget;

namespace qt3 {

/// Writes what \a widget and its children show to a PNG file, replacing an older one. False if that
/// fails.
RUQGUI_EXPORT bool savePicture(QWidget* widget, const std::string& pngPath);

} // namespace qt3

#endif
