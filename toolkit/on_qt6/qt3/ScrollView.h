#ifndef RUQGUI_QT3_SCROLLVIEW_H
#define RUQGUI_QT3_SCROLLVIEW_H

#include <qt3/Bridged.h>

#include <qscrollarea.h>

namespace qt3 {

/// QScrollArea with the Qt 3.3 members of a QScrollView that has one child. Tab leads to the fields in
/// it, not to itself.
class ScrollView : public Bridged<QScrollArea> {
public:
    enum ResizePolicy {
        Default,   ///< The child keeps its size.
        AutoOneFit ///< The child fills the view where that is larger than the child needs.
    };

    explicit ScrollView(QWidget* parent = nullptr, const char* name = nullptr)
        : Bridged<QScrollArea>(name, parent) {
        setFocusPolicy(Qt::NoFocus);
    }

    void addChild(QWidget* child) { setWidget(child); }
    void setResizePolicy(ResizePolicy policy) { setWidgetResizable(policy == AutoOneFit); }
};

} // namespace qt3

#endif
