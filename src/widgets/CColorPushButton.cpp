#include "CColorPushButton.h"

#include <algorithm>
#include <qt3/ColorDialog.h>
#include <qt3/Pointer.h>
#include <qt3/Style.h>
#include <qt3/WidgetFunctions.h>

namespace TEVU {

namespace {

const int c_nFirstBrightValue = 130;

// In the HSV model the value is the greatest part.
bool isDark(const QColor& color) {
    return std::max({color.red(), color.green(), color.blue()}) < c_nFirstBrightValue;
}

} // namespace

CColorPushButton::CColorPushButton(const QColor& color, QWidget* parent, const char* name)
    : qt3::PushButton(parent, name) {
    setColor(color);
    connect(this, SIGNAL(clicked()), this, SLOT(SlotOpenColorChooser()));
}

CColorPushButton::CColorPushButton(const CColorPushButton& other) = default;
CColorPushButton& CColorPushButton::operator=(const CColorPushButton& other) = default;
CColorPushButton::~CColorPushButton() = default;

void CColorPushButton::setColor(QColor c) {
    m_color = c;
    setPaletteBackgroundColor(c);
    setText(c.name());
    setPaletteForegroundColor(isDark(c) ? Qt::white : Qt::black);
}

QColor CColorPushButton::color() {
    return m_color;
}

void CColorPushButton::SlotOpenColorChooser() {
    const qt3::Pointer<CColorPushButton> self(this); // the application may end under the dialog
    const QColor chosen = qt3::ColorDialog::getColor(Qt::white, this, "Choose color");
    if (self && chosen.isValid())
        setColor(chosen);
}

void CColorPushButton::drawButton(qt3::Painter* painter) {
    using Style = qt3::Style;
    const Style style = qt3::styleOf(this);
    style.drawPrimitive(Style::PE_ButtonBevel, painter, rect(), colorGroup(),
                        isDown() ? Style::Style_Down : Style::Style_Raised);
    drawButtonLabel(painter);
    if (hasFocus())
        style.drawPrimitive(Style::PE_FocusRect, painter,
                            style.subRect(Style::SR_PushButtonFocusRect), colorGroup(),
                            Style::Style_Default);
}

void CColorPushButton::drawButtonLabel(qt3::Painter* painter) {
    const QPalette::ColorGroup state = !isEnabled() ? QPalette::Disabled
                                       : hasFocus() ? QPalette::Active
                                                    : QPalette::Inactive;
    painter->setPen(qt3::colorGroup(this, state).buttonText());
    painter->setBrush(m_color);
    painter->drawRect(0, 0, width(), height());
    painter->drawText(QRect(0, 0, width(), height()), Qt::AlignCenter, m_color.name());
}

} // namespace TEVU
