#ifndef RUQGUI_CRANGESLIDER_H
#define RUQGUI_CRANGESLIDER_H

#include <qt3/Export.h>
#include <qt3/Painter.h>
#include <qt3/Widget.h>

namespace TEVU {

struct StInterval;

/// A slider with two handles and a bar between them, for a range of whole numbers, both ends inclusive.
///
/// Good for choosing a window of grey values or of pages with the mouse. It takes no keys, no focus and
/// no wheel: where exact numbers matter, take CRangeSliderSpinboxed.
/// \code
/// auto* slider = new TEVU::CRangeSlider(Qt::Horizontal, 20, 80, 0, 255, this, "window");
/// connect(slider, SIGNAL(ValueChanged(int,int)), this, SLOT(setWindow(int,int)));
/// \endcode
/// Smaller values are on the left, or at the top.
///
/// Invariants:
/// 1. Orientation and thickness (the style's scroll bar extent) are fixed at construction.
/// 2. What is on the screen is the picture rendered last; painting never renders.
/// 3. Signals come in the order ValueChanged, LowerChanged, UpperChanged, behind the hook
///    ValueChange(), with the values in force at that moment.
/// 4. The setters keep a range that was inside the bound inside it. They do not keep lower <= upper
///    when the bound moves away from the range, nor when they are given a reversed range.
///
/// GUI thread only. A copy has the state and the picture of its original.
class RUQGUI_EXPORT CRangeSlider : public qt3::Widget {
    Q_OBJECT

public:
    /// The range comes first, then the bound. Equal bounds become [\a min, \a min + 1]. \a upper is
    /// lowered to the maximum and \a lower raised to the minimum; other mismatches stay as given. The
    /// count of values of the bound as given is the greatest allowed one, until SetBound() sets
    /// another. Announces nothing.
    CRangeSlider(Qt::Orientation orientation, int lower, int upper, int min, int max,
                 QWidget* parent, const char* name);
    CRangeSlider(const CRangeSlider& other);
    CRangeSlider& operator=(const CRangeSlider& other);
    ~CRangeSlider();

    int Min() const;
    int Max() const;
    int Lower() const;
    int Upper() const;
    bool NullRangeEnabled() const; ///< Whether lower may equal upper; true at first.

    /// Allows or forbids a range of a single value, then sets the present range again: what is now
    /// forbidden is repaired at once, and announced as SetRange() does.
    void EnableNullRange(bool enable);

    /// The thickness by five times the thickness.
    QSize sizeHint() const override;

    /// sizeHint() with room for the two handles alone.
    QSize minimumSizeHint() const override;

public slots:
    /// Sets both ends, clamped into the bound. Does nothing for the range in force, unless it is a
    /// single value where that is forbidden. A forbidden single value grows by one: downward at the top
    /// of the bound, upward elsewhere. A range with more values than allowed keeps its upper end; of a
    /// reversed one the lower end stays, and the upper one comes to lie just below it.
    /// Then: ValueChange(), ValueChanged(), LowerChanged() if \a lower differed from before,
    /// UpperChanged() if \a upper did.
    void SetRange(int lower, int upper);

    /// Sets the bound; its count of values becomes the greatest allowed one, also when it is reversed
    /// (then the bound collapses to [\a min, \a min]). Pulls upper down to the maximum and lower up to
    /// the minimum. Then: RangeChange(); and, if an end was pulled, ValueChange(), ValueChanged(), and
    /// LowerChanged() or UpperChanged() for each end that was.
    void SetBound(int min, int max);

    /// Moves the lower end alone, at least to the minimum, at most to the upper one (or just below it
    /// where a single value is forbidden), and not so far that the range has more values than allowed.
    /// Does nothing for the value in force. Then: ValueChange(), ValueChanged(),
    /// LowerChanged(), even if clamping led back to the old value.
    void SetLower(int lower);

    /// Moves the upper end alone, in the same manner, with UpperChanged().
    void SetUpper(int upper);

    /// Shifts both ends by \a distance, or refuses if one would leave the bound. Then: ValueChange(),
    /// ValueChanged(), LowerChanged(), UpperChanged(), after a refused move too, so that a spin box
    /// snaps back. Does nothing for 0.
    void Move(int distance);

    /// Stores the minimum and nothing else: no clamping, no announcement, no repainting.
    void SetMinValue(int min);

    /// Stores the maximum and nothing else: no clamping, no announcement, no repainting.
    void SetMaxValue(int max);

signals:
    void ValueChanged(int lower, int upper);
    void LowerChanged(int lower);
    void UpperChanged(int upper);

protected:
    virtual void ValueChange(); ///< Called before each ValueChanged(); empty here.

    /// Called by SetBound() when bound and ends are set, before anything is announced; empty here.
    virtual void RangeChange();

    /// Paints everything into the picture; does not put it on the screen. Without a bar while the
    /// handles overlap: with a reversed range, or in a widget without room for both.
    void RenderPrimitives();

    /// The extent along the long axis, in pixels.
    int Length() const;

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    enum EnGrabState { eNothing = 0, eLowerHandle = 1, eUpperHandle = 2, eBar = 3 };

    bool IsVertical() const;
    StInterval Bound() const;
    void Keep(const StInterval& range);
    void FixThickness();
    void Redraw();
    void Announce(bool lowerChanged, bool upperChanged);
    int AlongAxis(const QPoint& point) const;
    EnGrabState ElementAt(const QPoint& point) const;
    void PlaceElements();
    QRect Segment(int begin, int length) const;
    unsigned FlagsOf(EnGrabState element) const;

    Qt::Orientation m_eOrientation;
    qt3::Pixmap m_buffer; ///< What paintEvent() shows.
    int m_nMin;
    int m_nMax;
    bool m_bNullRangeEnabled;
    int m_nLower;
    int m_nUpper;
    int m_nMinimumWidth; ///< Least count of values; always 0.
    int m_nMaximumWidth; ///< Greatest count of values; that of the bound set last.
    int m_nHandleSize;   ///< Thickness and side of the square handles, in pixels.
    int m_nGrabOffset;   ///< From the edge of what is grabbed to where it was pressed, in pixels.
    EnGrabState m_eGrabState;
    int m_nLowerPixel; ///< Where the bar begins.
    int m_nBarPixels;  ///< How long the bar is.
    QRect m_grooveRect;
    QRect m_barRect;
    QRect m_lowerHandleRect;
    QRect m_upperHandleRect;
    bool m_bKeepUpper; ///< Which end stays when the width is repaired; always true.
};

} // namespace TEVU

#endif
