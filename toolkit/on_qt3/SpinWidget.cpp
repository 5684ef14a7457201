#include <qt3/SpinWidget.h>

#include <qapplication.h>
#include <qstyle.h>

namespace qt3 {

QSize sizeAround(const SpinWidget* widget, const QSize& contents) {
    const QStyle& style = widget->style();
    const int frame = 2 * style.pixelMetric(QStyle::PM_SpinBoxFrameWidth, widget);
    const QSize size = contents + QSize(widget->downRect().width() + frame, frame);
    return style.sizeFromContents(QStyle::CT_SpinBox, widget, size)
        .expandedTo(QApplication::globalStrut());
}

} // namespace qt3
