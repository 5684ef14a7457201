#ifndef RUQGUI_CSPINBOXSLIDER_H
#define RUQGUI_CSPINBOXSLIDER_H

#include <qt3/Export.h>
#include <qt3/Slider.h>
#include <qt3/SpinBox.h>
#include <qt3/Widget.h>

namespace TEVU {

/// A slider and a spin box that edit one whole number together.
///
/// \code
/// auto* page = new TEVU::CSpinboxSlider(1, 20, 1, 1, Qt::Horizontal, this, "page");
/// connect(page, SIGNAL(SignalValueChanged(int)), this, SLOT(showPage(int)));
/// \endcode
/// Inverted, the slider is mirrored: its position is minimum + maximum - value. With the spin box first,
/// that is above the slider, or left of it. A vertical slider has its smallest position at the top.
///
/// Invariants:
/// 1. All signals and setters speak in user values.
/// 2. No signal is ever blocked and no flag guards the exchange of the two children, so that one edit in
///    the spin box announces its value twice: once by way of the slider, and once for itself.
///
/// Setting the value emits through the children: SignalValueChanged() comes only if one of them really
/// changes. The slider's press, move and release are passed on.
///
/// GUI thread only. It cannot be copied.
class RUQGUI_EXPORT CSpinboxSlider : public qt3::Widget {
    Q_OBJECT

public:
    /// \a value and the ends of the range are kept as given. A value outside is clamped by the
    /// children; when \a max lies below \a min, \a min is the only value that they have.
    /// \param step the page step of the slider and the step of the spin box
    /// \param spinFirst the spin box stands before the slider; where it is not given, it does not
    /// \param inverted the slider is mirrored; where it is not given, it is not
    CSpinboxSlider(int min, int max, int step, int value, Qt::Orientation orientation,
                   QWidget* parent, const char* name);
    CSpinboxSlider(int min, int max, int step, int value, Qt::Orientation orientation,
                   bool inverted, QWidget* parent, const char* name);
    CSpinboxSlider(int min, int max, int step, int value, Qt::Orientation orientation,
                   bool spinFirst, bool inverted, QWidget* parent, const char* name);

    /// The forms without numbers have the range [0, 100], the step 1 and the value 0; without an
    /// orientation they are horizontal.
    CSpinboxSlider(QWidget* parent = 0, const char* name = 0);
    CSpinboxSlider(Qt::Orientation orientation, QWidget* parent, const char* name);
    CSpinboxSlider(Qt::Orientation orientation, bool inverted, QWidget* parent, const char* name);
    CSpinboxSlider(Qt::Orientation orientation, bool spinFirst, bool inverted, QWidget* parent,
                   const char* name);
    CSpinboxSlider(bool inverted, QWidget* parent, const char* name);
    CSpinboxSlider(bool spinFirst, bool inverted, QWidget* parent, const char* name);

    CSpinboxSlider(const CSpinboxSlider&) = delete;
    CSpinboxSlider& operator=(const CSpinboxSlider&) = delete;
    ~CSpinboxSlider();

    /// As set or announced last. A value outside the range stays only if both children were at that
    /// end already; else the end takes its place when they announce it.
    int GetValue() const;
    int GetMinValue() const;
    int GetMaxValue() const;
    int GetStep() const;

public slots:
    /// Keeps the value as given, and sets both children, which clamp it. A child that moves announces
    /// where it is: that is kept then, and SignalValueChanged() follows.
    void SlotSetValue(int value);

    /// Moves one end of the range of both children, which take their other end along if that lies
    /// beyond; the one kept here stays. When inverted, that also moves the point at which later values
    /// are mirrored; the slider stays where it is. SignalValueChanged() follows only if a child has to
    /// move into the new range.
    void SlotSetMinValue(int min);
    void SlotSetMaxValue(int max); ///< As SlotSetMinValue(), for the other end.

    void SlotSetStep(int step); ///< The page step of the slider and the step of the spin box.

protected slots:
    void _SlotSetValue(int value);              ///< From the spin box.
    void _SlotSetValueFromSlider(int position); ///< From the slider.
    void SlotSliderPressed();
    void SlotSliderMoved(int position);
    void SlotSliderReleased();

public:
signals:
    void SignalValueChanged(int value);
    void SignalSliderPressed();
    void SignalSliderMoved(int value);
    void SignalSliderReleased();

private:
    void InitWidgets();
    void CreateChildren();
    void ArrangeVertically();
    void ArrangeHorizontally();
    void ConnectChildren();
    int Mirrored(int value) const;

    qt3::Slider* m_pSlider;   ///< A child.
    qt3::SpinBox* m_pSpinBox; ///< A child.
    bool m_bInverted;
    bool m_bSpinFirst;
    Qt::Orientation m_eOrientation;
    int m_nMin;
    int m_nMax;
    int m_nStep;
    int m_nValue;
};

} // namespace TEVU

#endif
