#include <qt3/Layout.h>

namespace qt3 {

void setMargin(QLayout* layout, int margin) {
    layout->setMargin(margin);
}

} // namespace qt3
