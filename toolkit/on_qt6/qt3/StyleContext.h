#ifndef RUQGUI_QT3_STYLECONTEXT_H
#define RUQGUI_QT3_STYLECONTEXT_H

#include <qt3/Export.h>

#include <qnamespace.h>

class QStyle;
class QWidget;

namespace qt3 {

/// What a style looks at, besides what it is told: looked up once for all elements of one drawing.
struct RUQGUI_EXPORT StyleContext {
    explicit StyleContext(const QWidget* widget);

    const QStyle* pStyle;
    Qt::LayoutDirection eDirection;
    int nFontDpi;
    bool bActiveWindow;
};

} // namespace qt3

#endif
