#ifndef RUQGUI_TESTS_GALLERY_LEASTWIDTH_H
#define RUQGUI_TESTS_GALLERY_LEASTWIDTH_H

#include "Events.h"

#include <qwidget.h>

/// The width below which a page cannot be made, with all that it says now.
inline int leastWidth(QWidget* page) {
    // Layouts measure anew one after the other, from the innermost outwards, a round of events each.
    for (int layout = 0; layout < 4; ++layout)
        support::processEvents();
    return page->minimumSizeHint().width();
}

#endif
