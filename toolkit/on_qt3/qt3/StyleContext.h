#ifndef RUQGUI_QT3_STYLECONTEXT_H
#define RUQGUI_QT3_STYLECONTEXT_H

class QWidget;

namespace qt3 {

/// What a style looks at, besides what it is told: the toolkit looks it up by itself.
struct StyleContext {
    explicit StyleContext(const QWidget*) {}
};

} // namespace qt3

#endif
