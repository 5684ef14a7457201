#include "FormView.h"

#include <qt3/Style.h>
#include <qt3/WidgetFunctions.h>

namespace autodlg {

CFormView::CFormView(QWidget* parent, const char* name)
    : qt3::ScrollView(parent, name), m_pForm(new qt3::Widget(viewport(), "form")) {
    setFrameStyle(QFrame::NoFrame);
    setResizePolicy(AutoOneFit);
    addChild(m_pForm);
}

QSize CFormView::sizeHint() const {
    const QSize screen = qt3::availableGeometry(this).size();
    const QSize largest(screen.width() * 9 / 10, screen.height() * 3 / 4);
    QSize size = m_pForm->sizeHint();
    if (size.height() > largest.height())
        size.setWidth(size.width() +
                      qt3::styleOf(this).pixelMetric(qt3::Style::PM_ScrollBarExtent));
    return size.boundedTo(largest);
}

} // namespace autodlg
