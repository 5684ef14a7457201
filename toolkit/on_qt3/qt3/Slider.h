#ifndef RUQGUI_QT3_SLIDER_H
#define RUQGUI_QT3_SLIDER_H

#include <qslider.h>

namespace qt3 {

typedef QSlider Slider;

} // namespace qt3

#endif
