#ifndef RUQGUI_CRANGESLIDERSPINBOXED_H
#define RUQGUI_CRANGESLIDERSPINBOXED_H

#include <CRangeSlider.h>
#include <qt3/Export.h>
#include <qt3/Layout.h>
#include <qt3/SpinBox.h>
#include <qt3/Widget.h>

namespace TEVU {

struct StOffsetMapping;

/// A range slider between two spin boxes: a range of whole numbers by mouse or by exact number.
///
/// \code
/// auto* pages = new TEVU::CRangeSliderSpinboxed(Qt::Horizontal, false, 1, 20, 1, 20, this, "pages");
/// connect(pages, SIGNAL(SignalValueChanged(int,int)), this, SLOT(showPages(int,int)));
/// \endcode
/// Inverted, the first spin box shows the upper end, and the slider runs the other way.
///
/// Invariants:
/// 1. The slider works on offsets, in the bound [0, GetMax() - GetMin()]; all signals and setters speak
///    in user values.
/// 2. SignalValueChanged() carries (lower, upper), also when inverted.
/// 3. The slider starts with its lower handle at the beginning, whatever the lower value is: slider and
///    spin boxes are aligned from the first change on, or at once if the lower value is the minimum.
/// 4. No signal is ever blocked: the three children end their exchange because none of them announces a
///    value that it already has.
///
/// Of the children's signals, each change of the slider first updates its spin box and is then passed
/// on: SignalValueChanged(), SignalLowerChanged(), SignalUpperChanged().
///
/// GUI thread only. A copy has the state and the child pointers of its original, whose children they
/// remain: use the copy only as long as the original lives.
class RUQGUI_EXPORT CRangeSliderSpinboxed : public qt3::Widget {
    Q_OBJECT

public:
    /// The range comes first, then the bound. The range is kept as given; the spin boxes clamp what
    /// they show. Announces nothing.
    CRangeSliderSpinboxed(Qt::Orientation orientation, bool inverted, int lower, int upper, int min,
                          int max, QWidget* parent, const char* name);

    /// The shorter forms have the range and the bound [0, 100], and where they do not say otherwise
    /// they are horizontal and not inverted.
    CRangeSliderSpinboxed(Qt::Orientation orientation, bool inverted, QWidget* parent,
                          const char* name);
    CRangeSliderSpinboxed(Qt::Orientation orientation, QWidget* parent, const char* name);
    CRangeSliderSpinboxed(bool inverted, QWidget* parent, const char* name);
    CRangeSliderSpinboxed(QWidget* parent = 0, const char* name = 0);

    CRangeSliderSpinboxed(const CRangeSliderSpinboxed& other);
    CRangeSliderSpinboxed& operator=(const CRangeSliderSpinboxed& other);
    ~CRangeSliderSpinboxed();

    int GetMin() const;
    int GetMax() const;
    int GetLower() const;
    int GetUpper() const;
    int GetRange() const;          ///< GetUpper() - GetLower(): a difference, not a count.
    bool NullRangeEnabled() const; ///< Whether lower may equal upper; true at first.

public slots:
    /// Moves one end through the slider, which clamps it. Does nothing if the value kept for that end
    /// equals \a lower; when inverted, that is minimum + offset and not the user's value.
    void SlotSetLower(int lower);
    void SlotSetUpper(int upper); ///< As SlotSetLower(), for the other end.

    /// Both ends at once. Does nothing if both kept values are equal to the arguments.
    void SlotSetRange(int lower, int upper);

    /// Moves one end of the bound, in the spin boxes and then in the slider, and sets the kept range
    /// anew. Does nothing for the end in force.
    void SlotSetMin(int min);
    void SlotSetMax(int max); ///< As SlotSetMin(), for the other end.

    /// Both ends of the bound, also for those in force.
    void SlotSetBound(int min, int max);

    void SlotEnableNullRange() const;  ///< Lets lower equal upper.
    void SlotDisableNullRange() const; ///< Forbids it; an empty range is repaired at once.

private slots:
    virtual void SlotChangeValSpinBox1(int offset);
    virtual void SlotChangeValSpinBox2(int offset);
    virtual void SlotChangeValRangeSliderLower(int value);
    virtual void SlotChangeValRangeSliderUpper(int value);
    virtual void SlotChangeValRangeSlider(int value1, int value2);
    virtual void SlotCorrectSignalValueChanged(int lowerOffset, int upperOffset);
    virtual void SlotCorrectSignalLowerChanged(int lowerOffset);
    virtual void SlotCorrectSignalUpperChanged(int upperOffset);

public:
signals:
    void SignalValueChanged(int lower, int upper);
    void SignalLowerChanged(int lower);
    void SignalUpperChanged(int upper);

private:
    void InitWidgets();
    void CreateChildren();
    void ArrangeChildren();
    void ConnectChildren();
    StOffsetMapping Mapping() const;
    void SetSliderBound();

    qt3::SpinBox* m_pSpinBox1;      ///< A child: the lower end, or the upper one when inverted.
    qt3::SpinBox* m_pSpinBox2;      ///< A child: the other end.
    CRangeSlider* m_pRangeSlider;   ///< A child.
    qt3::HBoxLayout* m_pHBoxLayout; ///< Null when vertical.
    qt3::VBoxLayout* m_pVBoxLayout; ///< Null when horizontal.
    int m_nStep;
    int m_nMin;
    int m_nMax;
    int m_nValueA;    ///< Minimum + lower offset: the lower value unless inverted.
    int m_nValueB;    ///< Minimum + upper offset: the upper value unless inverted.
    int m_nMirroredA; ///< Maximum - lower offset: the upper value when inverted.
    int m_nMirroredB; ///< Maximum - upper offset: the lower value when inverted.
    Qt::Orientation m_eOrientation;
    bool m_bInverted;
};

} // namespace TEVU

#endif
