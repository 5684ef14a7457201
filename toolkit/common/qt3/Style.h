#ifndef RUQGUI_QT3_STYLE_H
#define RUQGUI_QT3_STYLE_H

#include <qt3/Export.h>
#include <qt3/Global.h>
#include <qt3/StyleContext.h>

#include <qrect.h>

class QPainter;
class QWidget;

namespace qt3 {

/// The style of one widget, in the words of Qt 3.3.
/// \code
/// const qt3::Style style = qt3::styleOf(this);
/// style.drawPrimitive(qt3::Style::PE_Panel, &painter, rect(), colorGroup(),
/// qt3::Style::Style_Sunken);
/// \endcode
/// Made for one drawing: it must not outlive its widget, and has its style and state as they are now.
class RUQGUI_EXPORT Style {
public:
    enum PrimitiveElement {
        PE_ButtonBevel,
        PE_FocusRect,
        PE_ArrowUp,
        PE_ArrowDown,
        PE_ArrowRight,
        PE_ArrowLeft,
        PE_Panel, ///< A frame; what is inside stays.
        PE_ScrollBarSlider
    };

    enum StyleFlag {
        Style_Default = 0x0,
        Style_Enabled = 0x1,
        Style_Raised = 0x2,
        Style_Sunken = 0x4,
        Style_On = 0x8,
        Style_Down = 0x10,
        Style_Horizontal = 0x20,
        Style_HasFocus = 0x40
    };

    enum PixelMetric { PM_ScrollBarExtent, PM_DefaultFrameWidth };
    enum SubRect { SR_PushButtonFocusRect };

    explicit Style(const QWidget* widget);

    /// \param flags StyleFlag values, or-ed
    void drawPrimitive(PrimitiveElement element, QPainter* painter, const QRect& rect,
                       const ColorGroup& colors, unsigned flags = Style_Default) const;

    int pixelMetric(PixelMetric metric) const;

    QRect subRect(SubRect part) const;

private:
    const QWidget* m_pWidget;
    StyleContext m_context;
};

RUQGUI_EXPORT Style styleOf(const QWidget* widget);

} // namespace qt3

#endif
