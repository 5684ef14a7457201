#include <qt3/Style.h>

#include <qstyle.h>
#include <qwidget.h>

namespace qt3 {
namespace {

QStyle::PrimitiveElement toolkitElement(Style::PrimitiveElement element) {
    switch (element) {
    case Style::PE_ButtonBevel:
        return QStyle::PE_ButtonBevel;
    case Style::PE_FocusRect:
        return QStyle::PE_FocusRect;
    case Style::PE_ArrowUp:
        return QStyle::PE_ArrowUp;
    case Style::PE_ArrowDown:
        return QStyle::PE_ArrowDown;
    case Style::PE_ArrowRight:
        return QStyle::PE_ArrowRight;
    case Style::PE_ArrowLeft:
        return QStyle::PE_ArrowLeft;
    case Style::PE_Panel:
        return QStyle::PE_Panel;
    case Style::PE_ScrollBarSlider:
        return QStyle::PE_ScrollBarSlider;
    }
    return QStyle::PE_CustomBase;
}

QStyle::SFlags toolkitFlags(unsigned flags) {
    const struct {
        unsigned from;
        QStyle::SFlags to;
    } pairs[] = {
        {Style::Style_Enabled, QStyle::Style_Enabled},
        {Style::Style_Raised, QStyle::Style_Raised},
        {Style::Style_Sunken, QStyle::Style_Sunken},
        {Style::Style_On, QStyle::Style_On},
        {Style::Style_Down, QStyle::Style_Down},
        {Style::Style_Horizontal, QStyle::Style_Horizontal},
        {Style::Style_HasFocus, QStyle::Style_HasFocus},
    };
    QStyle::SFlags result = QStyle::Style_Default;
    for (const auto& pair : pairs) {
        if (flags & pair.from)
            result |= pair.to;
    }
    return result;
}

} // namespace

void Style::drawPrimitive(PrimitiveElement element, QPainter* painter, const QRect& rect,
                          const ColorGroup& colors, unsigned flags) const {
    m_pWidget->style().drawPrimitive(toolkitElement(element), painter, rect, colors,
                                     toolkitFlags(flags));
}

int Style::pixelMetric(PixelMetric metric) const {
    // without the widget: the toolkit would take any widget for a scroll bar
    return m_pWidget->style().pixelMetric(
        metric == PM_ScrollBarExtent ? QStyle::PM_ScrollBarExtent : QStyle::PM_DefaultFrameWidth);
}

QRect Style::subRect(SubRect) const {
    return m_pWidget->style().subRect(QStyle::SR_PushButtonFocusRect, m_pWidget);
}

} // namespace qt3
