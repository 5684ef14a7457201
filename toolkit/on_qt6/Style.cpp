#include <qt3/Style.h>

#include "KeptPictures.h"

#include <qpainter.h>
#include <qpushbutton.h>
#include <qstyle.h>
#include <qstyleoption.h>

namespace qt3 {
namespace {

QStyle::State stateOf(unsigned flags) {
    static constexpr struct {
        unsigned from;
        QStyle::StateFlag to;
    } pairs[] = {
        {Style::Style_Enabled, QStyle::State_Enabled},
        {Style::Style_Raised, QStyle::State_Raised},
        {Style::Style_Sunken, QStyle::State_Sunken},
        {Style::Style_On, QStyle::State_On},
        {Style::Style_Down, QStyle::State_Sunken},
        {Style::Style_Horizontal, QStyle::State_Horizontal},
        {Style::Style_HasFocus, QStyle::State_HasFocus},
    };
    QStyle::State result = QStyle::State_None;
    for (const auto& pair : pairs) {
        if (flags & pair.from)
            result |= pair.to;
    }
    return result;
}

/// Draws with one style; each function fills the option that its element takes.
class Drawing {
public:
    Drawing(const QWidget* widget, QPainter* painter, const QRect& rect, const ColorGroup& colors,
            QStyle::State state)
        : m_pWidget(widget), m_pPainter(painter), m_hRect(rect), m_hColors(colors),
          m_nState(state) {}

    void plain(QStyle::PrimitiveElement element) const {
        QStyleOption option;
        init(&option);
        draw(element, option);
    }

    void panel() const {
        QStyleOptionFrame option;
        init(&option);
        option.lineWidth =
            m_pWidget->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, m_pWidget);
        draw(QStyle::PE_Frame, option);
    }

    void focusRect() const {
        QStyleOptionFocusRect option;
        init(&option);
        option.state |= QStyle::State_KeyboardFocusChange; // without it some styles draw nothing
        option.backgroundColor = m_hColors.button();
        draw(QStyle::PE_FrameFocusRect, option);
    }

    /// Some styles, Fusion among them, draw sliders only as a part of a whole scroll bar. So there
    /// is a bevel under it, which the others cover.
    void scrollBarSlider() const {
        QStyleOptionSlider option;
        init(&option);
        option.orientation = m_nState & QStyle::State_Horizontal ? Qt::Horizontal : Qt::Vertical;
        Drawing bevel = *this;
        bevel.m_nState.setFlag(QStyle::State_Sunken, false).setFlag(QStyle::State_Raised);
        bevel.plain(QStyle::PE_PanelButtonBevel);
        m_pWidget->style()->drawControl(QStyle::CE_ScrollBarSlider, &option, m_pPainter, m_pWidget);
    }

private:
    void init(QStyleOption* option) const {
        option->initFrom(m_pWidget);
        option->rect = m_hRect;
        option->palette = m_hColors.palette();
        option->state = m_nState;
    }

    void draw(QStyle::PrimitiveElement element, const QStyleOption& option) const {
        m_pWidget->style()->drawPrimitive(element, &option, m_pPainter, m_pWidget);
    }

    const QWidget* m_pWidget;
    QPainter* m_pPainter;
    QRect m_hRect;
    const ColorGroup& m_hColors;
    QStyle::State m_nState;
};

/// One element, wherever it is to be drawn.
class Element final : public ElementDrawing {
public:
    Element(const QWidget* widget, Style::PrimitiveElement element, const ColorGroup& colors,
            QStyle::State state)
        : m_pWidget(widget), m_eElement(element), m_hColors(colors), m_nState(state) {}

    void draw(QPainter* painter, const QRect& rect) const override {
        const Drawing drawing(m_pWidget, painter, rect, m_hColors, m_nState);
        switch (m_eElement) {
        case Style::PE_ButtonBevel:
            return drawing.plain(QStyle::PE_PanelButtonBevel);
        case Style::PE_FocusRect:
            return drawing.focusRect();
        case Style::PE_ArrowUp:
            return drawing.plain(QStyle::PE_IndicatorArrowUp);
        case Style::PE_ArrowDown:
            return drawing.plain(QStyle::PE_IndicatorArrowDown);
        case Style::PE_ArrowRight:
            return drawing.plain(QStyle::PE_IndicatorArrowRight);
        case Style::PE_ArrowLeft:
            return drawing.plain(QStyle::PE_IndicatorArrowLeft);
        case Style::PE_Panel:
            return drawing.panel();
        case Style::PE_ScrollBarSlider:
            return drawing.scrollBarSlider();
        }
    }

private:
    const QWidget* m_pWidget;
    Style::PrimitiveElement m_eElement;
    const ColorGroup& m_hColors;
    QStyle::State m_nState;
};

} // namespace

StyleContext::StyleContext(const QWidget* widget)
    : pStyle(widget->style()), eDirection(widget->layoutDirection()),
      nFontDpi(qRound(widget->fontMetrics().fontDpi())), bActiveWindow(widget->isActiveWindow()) {}

void Style::drawPrimitive(PrimitiveElement element, QPainter* painter, const QRect& rect,
                          const ColorGroup& colors, unsigned flags) const {
    static KeptPictures pictures;
    const QStyle::State active =
        m_context.bActiveWindow ? QStyle::State_Active : QStyle::State_None;
    const QStyle::State state = stateOf(flags) | active;
    const Element drawing(m_pWidget, element, colors, state);
    if (element == PE_FocusRect)
        drawing.draw(painter, rect); // the blending of its line changes with the place
    else
        pictures.draw({m_context, element, state, colors.palette(), element == PE_Panel}, drawing,
                      painter, rect);
}

int Style::pixelMetric(PixelMetric metric) const {
    const QStyle::PixelMetric toolkitMetric =
        metric == PM_ScrollBarExtent ? QStyle::PM_ScrollBarExtent : QStyle::PM_DefaultFrameWidth;
    return m_pWidget->style()->pixelMetric(toolkitMetric, nullptr, m_pWidget);
}

QRect Style::subRect(SubRect) const {
    QStyleOptionButton option;
    option.initFrom(m_pWidget);
    const QPushButton* const button = qobject_cast<const QPushButton*>(m_pWidget);
    if (button && button->autoDefault())
        option.features |= QStyleOptionButton::AutoDefaultButton;
    if (button && button->isDefault())
        option.features |= QStyleOptionButton::DefaultButton;
    return m_pWidget->style()->subElementRect(QStyle::SE_PushButtonFocusRect, &option, m_pWidget);
}

} // namespace qt3
