#ifndef RUQGUI_QT3_TABWIDGET_H
#define RUQGUI_QT3_TABWIDGET_H

#include <qt3/Bridged.h>

#include <qtabwidget.h>

namespace qt3 {

/// QTabWidget with the Qt 3.3 members.
class TabWidget : public Bridged<QTabWidget> {
public:
    explicit TabWidget(QWidget* parent = nullptr, const char* name = nullptr)
        : Bridged<QTabWidget>(name, parent) {}

    int currentPageIndex() const { return currentIndex(); }
    void setCurrentPage(int index) { setCurrentIndex(index); }
};

} // namespace qt3

#endif
