#include "CRangeSlider.h"

#include "RangeRules.h"
#include "Saturate.h"

#include <algorithm>
#include <qt3/Events.h>
#include <qt3/Style.h>

namespace TEVU {

namespace {

// Not QRect::contains alone: toolkits differ on rectangles of negative length.
bool hits(const QRect& rect, const QPoint& point) {
    return rect.isValid() && rect.contains(point);
}

using qt3::Style;

/// Draws the elements of one slider, in its colours.
class CElementPainter {
public:
    CElementPainter(const qt3::Widget* slider, bool vertical, qt3::Painter* painter)
        : m_style(qt3::styleOf(slider)), m_colors(slider->colorGroup()),
          m_nFlags((slider->isEnabled() ? Style::Style_Enabled : Style::Style_Default) |
                   (vertical ? Style::Style_Default : Style::Style_Horizontal)),
          m_pPainter(painter) {}

    void Draw(Style::PrimitiveElement element, const QRect& rect, unsigned flags) const {
        if (rect.width() < 0 || rect.height() < 0)
            return; // a bar between handles that overlap: styles complain of it, or draw anything
        m_style.drawPrimitive(element, m_pPainter, rect, m_colors, flags | m_nFlags);
    }

    void DrawHandle(Style::PrimitiveElement arrow, const QRect& rect, unsigned flags) const {
        Draw(Style::PE_ButtonBevel, rect, flags);
        Draw(arrow, rect, flags);
    }

private:
    Style m_style;
    qt3::ColorGroup m_colors;
    unsigned m_nFlags;
    qt3::Painter* m_pPainter;
};

} // namespace

CRangeSlider::CRangeSlider(Qt::Orientation orientation, int lower, int upper, int min, int max,
                           QWidget* parent, const char* name)
    : qt3::Widget(parent, name), m_eOrientation(orientation), m_nMin(min), m_nMax(max),
      m_bNullRangeEnabled(true), m_nLower(lower), m_nUpper(upper), m_nMinimumWidth(0),
      m_nMaximumWidth(countOf({min, max})), m_nHandleSize(0), m_nGrabOffset(0),
      m_eGrabState(eNothing), m_nLowerPixel(0), m_nBarPixels(0), m_bKeepUpper(true) {
    if (m_nMin == m_nMax)
        m_nMax = saturated(m_nMin + 1LL);
    m_nUpper = std::min(m_nUpper, m_nMax);
    m_nLower = std::max(m_nLower, m_nMin);
    m_nHandleSize = qt3::styleOf(this).pixelMetric(Style::PM_ScrollBarExtent);
    qt3::setOpaque(this);
    FixThickness();
    RenderPrimitives();
}

CRangeSlider::CRangeSlider(const CRangeSlider& other) = default;
CRangeSlider& CRangeSlider::operator=(const CRangeSlider& other) = default;
CRangeSlider::~CRangeSlider() = default;

int CRangeSlider::Min() const {
    return m_nMin;
}

int CRangeSlider::Max() const {
    return m_nMax;
}

int CRangeSlider::Lower() const {
    return m_nLower;
}

int CRangeSlider::Upper() const {
    return m_nUpper;
}

bool CRangeSlider::NullRangeEnabled() const {
    return m_bNullRangeEnabled;
}

void CRangeSlider::EnableNullRange(bool enable) {
    m_bNullRangeEnabled = enable;
    SetRange(m_nLower, m_nUpper);
}

QSize CRangeSlider::sizeHint() const {
    return IsVertical() ? QSize(m_nHandleSize, 5 * m_nHandleSize)
                        : QSize(5 * m_nHandleSize, m_nHandleSize);
}

QSize CRangeSlider::minimumSizeHint() const {
    QSize size = sizeHint();
    if (IsVertical())
        size.setHeight(2 * m_nHandleSize);
    else
        size.setWidth(2 * m_nHandleSize);
    return size;
}

void CRangeSlider::SetRange(int lower, int upper) {
    StInterval range = {lower, upper};
    if (m_bNullRangeEnabled || lower != upper) {
        if (lower == m_nLower && upper == m_nUpper)
            return;
    } else {
        range = widened(range, Bound());
    }
    // Measured against what was asked for: an end that is clamped back is still announced.
    const bool lowerChanged = lower != m_nLower || range.nLower != lower;
    const bool upperChanged = upper != m_nUpper || range.nUpper != upper;
    Keep(withWidthRepaired({std::max(range.nLower, m_nMin), std::min(range.nUpper, m_nMax)},
                           {m_nMinimumWidth, m_nMaximumWidth}, m_bKeepUpper));
    Announce(lowerChanged, upperChanged);
}

void CRangeSlider::SetBound(int min, int max) {
    m_nMaximumWidth = countOf({min, max}); // also of a reversed pair
    const bool reversed = min > max;
    m_nMin = reversed && !m_bKeepUpper ? max : min;
    m_nMax = reversed && m_bKeepUpper ? min : max;

    const bool upperChanged = m_nUpper > m_nMax;
    const bool lowerChanged = m_nLower < m_nMin;
    m_nUpper = std::min(m_nUpper, m_nMax);
    m_nLower = std::max(m_nLower, m_nMin);
    RangeChange();
    if (lowerChanged || upperChanged)
        Announce(lowerChanged, upperChanged);
    else
        Redraw();
}

void CRangeSlider::SetLower(int lower) {
    if (lower == m_nLower)
        return;
    int clamped = lower;
    if (lower < m_nMin)
        clamped = m_nMin;
    else if (lower >= m_nUpper)
        clamped = m_bNullRangeEnabled ? m_nUpper : saturated(m_nUpper - 1LL);
    Keep(withLowerRepaired({clamped, m_nUpper}, {m_nMinimumWidth, m_nMaximumWidth}));
    Announce(true, false);
}

void CRangeSlider::SetUpper(int upper) {
    if (upper == m_nUpper)
        return;
    int clamped = upper;
    if (upper > m_nMax)
        clamped = m_nMax;
    else if (upper <= m_nLower)
        clamped = m_bNullRangeEnabled ? m_nLower : saturated(m_nLower + 1LL);
    Keep(withUpperRepaired({m_nLower, clamped}, {m_nMinimumWidth, m_nMaximumWidth}));
    Announce(false, true);
}

void CRangeSlider::Move(int distance) {
    if (distance == 0)
        return;
    const long long lower = static_cast<long long>(m_nLower) + distance;
    const long long upper = static_cast<long long>(m_nUpper) + distance;
    if (upper <= m_nMax && lower >= m_nMin)
        Keep({saturated(lower), saturated(upper)});
    Announce(true, true); // after a refused move too
}

void CRangeSlider::SetMinValue(int min) {
    m_nMin = min;
}

void CRangeSlider::SetMaxValue(int max) {
    m_nMax = max;
}

void CRangeSlider::ValueChange() {}

void CRangeSlider::RangeChange() {}

void CRangeSlider::RenderPrimitives() {
    static const QBrush background(QColor(255, 255, 255));
    qt3::resize(&m_buffer, this, width(), height());
    PlaceElements();
    if (m_buffer.isNull())
        return; // a widget without an area
    qt3::Painter painter(&m_buffer);
    painter.setPen(Qt::NoPen);
    painter.setBrush(background);
    painter.drawRect(rect());

    const CElementPainter elements(this, IsVertical(), &painter);
    elements.Draw(Style::PE_Panel, m_grooveRect, Style::Style_Sunken);
    elements.Draw(Style::PE_ScrollBarSlider, m_barRect, FlagsOf(eBar));
    elements.DrawHandle(IsVertical() ? Style::PE_ArrowDown : Style::PE_ArrowRight,
                        m_lowerHandleRect, FlagsOf(eLowerHandle));
    elements.DrawHandle(IsVertical() ? Style::PE_ArrowUp : Style::PE_ArrowLeft, m_upperHandleRect,
                        FlagsOf(eUpperHandle));
}

void CRangeSlider::PlaceElements() {
    const StAxis axis = {Length(), m_nHandleSize};
    m_nLowerPixel = pixelOf(m_nLower, Bound(), axis);
    const int upperPixel = pixelOf(m_nUpper, Bound(), axis);
    m_nBarPixels = saturated(static_cast<long long>(upperPixel) - m_nLowerPixel);
    m_grooveRect = Segment(0, Length());
    m_barRect = Segment(m_nLowerPixel, m_nBarPixels);
    m_lowerHandleRect =
        Segment(saturated(static_cast<long long>(m_nLowerPixel) - m_nHandleSize), m_nHandleSize);
    m_upperHandleRect = Segment(upperPixel, m_nHandleSize);
}

// A stretch of the long axis over the whole thickness.
QRect CRangeSlider::Segment(int begin, int length) const {
    const int far = 1 << 29; // beyond any screen; twice that still is an int
    begin = std::clamp(begin, -far, far);
    length = std::clamp(length, -far, far);
    return IsVertical() ? QRect(rect().x(), begin, m_nHandleSize, length)
                        : QRect(begin, rect().y(), length, m_nHandleSize);
}

unsigned CRangeSlider::FlagsOf(EnGrabState element) const {
    return element == m_eGrabState ? Style::Style_Down : Style::Style_Default;
}

int CRangeSlider::Length() const {
    return IsVertical() ? height() : width();
}

void CRangeSlider::paintEvent(QPaintEvent*) {
    qt3::bitBlt(this, m_buffer);
}

void CRangeSlider::resizeEvent(QResizeEvent*) {
    FixThickness();
    RenderPrimitives();
    qt3::repaint(this, true);
}

void CRangeSlider::mousePressEvent(QMouseEvent* event) {
    if (!event || event->button() != Qt::LeftButton)
        return;
    const QPoint point = qt3::pos(event);
    const EnGrabState element = ElementAt(point);
    if (element != eNothing) {
        const int edge = element == eUpperHandle ? m_nLowerPixel + m_nBarPixels : m_nLowerPixel;
        m_eGrabState = element;
        m_nGrabOffset = AlongAxis(point) - edge;
    }
    Redraw();
}

CRangeSlider::EnGrabState CRangeSlider::ElementAt(const QPoint& point) const {
    if (hits(m_barRect, point))
        return eBar;
    if (hits(m_lowerHandleRect, point))
        return eLowerHandle;
    return hits(m_upperHandleRect, point) ? eUpperHandle : eNothing;
}

void CRangeSlider::mouseMoveEvent(QMouseEvent* event) {
    if (!event)
        return;
    if (!isVisible()) {
        m_eGrabState = eNothing;
        return;
    }
    const int pixel = saturated(static_cast<long long>(AlongAxis(qt3::pos(event))) - m_nGrabOffset);
    const int value = valueAt(pixel, Bound(), {Length(), m_nHandleSize});
    if (m_eGrabState == eLowerHandle)
        SetLower(value);
    else if (m_eGrabState == eUpperHandle)
        SetUpper(value);
    else if (m_eGrabState == eBar)
        Move(saturated(static_cast<long long>(value) - m_nLower));
}

void CRangeSlider::mouseReleaseEvent(QMouseEvent* event) {
    if (m_eGrabState == eNothing)
        return;
    mouseMoveEvent(event); // so that the last position counts
    m_eGrabState = eNothing;
    Redraw();
}

void CRangeSlider::hideEvent(QHideEvent*) {
    m_eGrabState = eNothing;
}

bool CRangeSlider::IsVertical() const {
    return m_eOrientation == Qt::Vertical;
}

StInterval CRangeSlider::Bound() const {
    return {m_nMin, m_nMax};
}

void CRangeSlider::Keep(const StInterval& range) {
    m_nLower = range.nLower;
    m_nUpper = range.nUpper;
}

void CRangeSlider::FixThickness() {
    if (IsVertical())
        setFixedWidth(m_nHandleSize);
    else
        setFixedHeight(m_nHandleSize);
}

void CRangeSlider::Redraw() {
    RenderPrimitives();
    qt3::repaint(this, false);
}

// The values are read anew for each signal: a slot may have set others.
void CRangeSlider::Announce(bool lowerChanged, bool upperChanged) {
    ValueChange();
    emit ValueChanged(m_nLower, m_nUpper);
    if (lowerChanged)
        emit LowerChanged(m_nLower);
    if (upperChanged)
        emit UpperChanged(m_nUpper);
    Redraw();
}

int CRangeSlider::AlongAxis(const QPoint& point) const {
    return IsVertical() ? point.y() : point.x();
}

} // namespace TEVU
