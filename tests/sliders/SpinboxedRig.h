#ifndef RUQGUI_TESTS_SLIDERS_SPINBOXEDRIG_H
#define RUQGUI_TESTS_SLIDERS_SPINBOXEDRIG_H

#include <CRangeSliderSpinboxed.h>
#include <Events.h>
#include <Recorder.h>
#include <memory>
#include <qwidget.h>
#include <string>

/// The values that the composite starts with, a range and its bound, in the order of the constructor.
struct StNumbers {
    int lower;
    int upper;
    int min;
    int max;
};

inline const StNumbers c_plain = {0, 20, 0, 100};      // the slider starts where the spin boxes are
inline const StNumbers c_inverted = {80, 100, 0, 100}; // the same with the inverted mapping

/// "lower..upper in min..max, spin boxes a and b, slider l..u in 0..w"
inline std::string stateOf(const TEVU::CRangeSliderSpinboxed& composite) {
    auto* parent = const_cast<TEVU::CRangeSliderSpinboxed*>(&composite);
    const auto* spin1 = support::child<qt3::SpinBox>(parent, "spinbox1 ");
    const auto* spin2 = support::child<qt3::SpinBox>(parent, "spinbox2");
    const auto* slider = support::child<TEVU::CRangeSlider>(parent, "rangeslider");
    return std::to_string(composite.GetLower()) + ".." + std::to_string(composite.GetUpper()) +
           " in " + std::to_string(composite.GetMin()) + ".." + std::to_string(composite.GetMax()) +
           ", spin boxes " + std::to_string(spin1->value()) + " and " +
           std::to_string(spin2->value()) + ", slider " + std::to_string(slider->Lower()) + ".." +
           std::to_string(slider->Upper()) + " in " + std::to_string(slider->Min()) + ".." +
           std::to_string(slider->Max());
}

/// The composite with its children, and all that they say.
struct StRig {
    explicit StRig(bool inverted = false) : StRig(inverted, inverted ? c_inverted : c_plain) {}

    StRig(bool inverted, const StNumbers& numbers, Qt::Orientation orientation = Qt::Horizontal)
        : m_pComposite(std::make_unique<TEVU::CRangeSliderSpinboxed>(
              orientation, inverted, numbers.lower, numbers.upper, numbers.min, numbers.max,
              &m_window, "range")),
          m_composite(*m_pComposite) {
        findChildren();
        m_recorder.tapAll(&m_composite, "range");
        m_recorder.tapAll(m_pSlider, "slider");
        m_recorder.tap(m_pSpin1, "valueChanged(int)", "spin1");
        m_recorder.tap(m_pSpin2, "valueChanged(int)", "spin2");
    }

    void findChildren() {
        m_pSpin1 = support::child<qt3::SpinBox>(&m_composite, "spinbox1 ");
        m_pSpin2 = support::child<qt3::SpinBox>(&m_composite, "spinbox2");
        m_pSlider = support::child<TEVU::CRangeSlider>(&m_composite, "rangeslider");
    }

    support::Lines lines() { return m_recorder.take(); }

    /// "lower..upper in min..max, spin boxes a and b, slider l..u in 0..w"
    std::string state() const { return stateOf(m_composite); }

    QWidget m_window;
    std::unique_ptr<TEVU::CRangeSliderSpinboxed> m_pComposite;
    TEVU::CRangeSliderSpinboxed& m_composite;
    qt3::SpinBox* m_pSpin1;
    qt3::SpinBox* m_pSpin2;
    TEVU::CRangeSlider* m_pSlider;
    support::Recorder m_recorder;
};

#endif
