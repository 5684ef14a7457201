#include <CRangeSliderSpinboxed.h>

#include "NumberModel.h"
#include "RangeSliderModel.h"
#include "SpinboxedRig.h"
#include "Wording.h"

#include <gtest/gtest.h>
#include <random>
#include <utility>

using support::Lines;

namespace {

class CModel {
public:
    CModel(bool inverted, const StNumbers& start, Lines* lines)
        : m_bInverted(inverted), m_nMin(start.min), m_nMax(start.max), m_nA(start.lower),
          m_nB(start.upper), m_nMirroredA(start.upper), m_nMirroredB(start.lower),
          m_spin1(start.min, start.max, inverted ? start.upper : start.lower),
          m_spin2(start.min, start.max, inverted ? start.lower : start.upper),
          m_slider(0, start.upper - start.lower, 0, start.max - start.min, 100), m_lines(*lines) {
        connectAll();
    }

    void SlotSetLower(int v) {
        int& kept = m_bInverted ? m_nB : m_nA;
        if (kept == v)
            return;
        kept = v;
        if (m_bInverted)
            toSliderUpper(v);
        else
            toSliderLower(v);
    }

    void SlotSetUpper(int v) {
        int& kept = m_bInverted ? m_nA : m_nB;
        if (kept == v)
            return;
        kept = v;
        if (m_bInverted)
            toSliderLower(v);
        else
            toSliderUpper(v);
    }

    void SlotSetRange(int a, int b) {
        if (m_bInverted)
            std::swap(a, b);
        if (m_nA == a && m_nB == b)
            return;
        m_nA = a;
        m_nB = b;
        m_slider.SetRange(offset(a), offset(b));
    }

    void SlotSetMin(int v) {
        if (v == m_nMin)
            return;
        m_nMin = v;
        m_spin1.setMinValue(v);
        m_spin2.setMinValue(m_nMin);
        m_slider.SetMinValue(0);
        setBound();
    }

    void SlotSetMax(int v) {
        if (v == m_nMax)
            return;
        m_nMax = v;
        m_spin1.setMaxValue(v);
        m_spin2.setMaxValue(m_nMax);
        m_slider.SetMaxValue(m_nMax - m_nMin);
        setBound();
    }

    void SlotSetBound(int a, int b) {
        m_nMax = b;
        m_nMin = a;
        m_spin1.setMinValue(a);
        m_spin1.setMaxValue(m_nMax);
        m_spin2.setMinValue(m_nMin);
        m_spin2.setMaxValue(m_nMax);
        m_slider.SetMaxValue(m_nMax - m_nMin);
        setBound();
    }

    std::string state() const {
        const int lower = m_bInverted ? m_nMirroredB : m_nA;
        const int upper = m_bInverted ? m_nMirroredA : m_nB;
        return std::to_string(lower) + ".." + std::to_string(upper) + " in " +
               std::to_string(m_nMin) + ".." + std::to_string(m_nMax) + ", spin boxes " +
               std::to_string(m_spin1.value()) + " and " + std::to_string(m_spin2.value()) +
               ", slider " + m_slider.State();
    }

    bool m_bInverted;
    int m_nMin;
    int m_nMax;
    int m_nA;
    int m_nB;
    int m_nMirroredA;
    int m_nMirroredB;
    CNumberModel m_spin1;
    CNumberModel m_spin2;
    CRangeSliderModel m_slider;

private:
    int offset(int value) const { return m_bInverted ? m_nMax - value : value - m_nMin; }
    int value(int o) const { return m_bInverted ? m_nMax - o : m_nMin + o; }
    void tell(const std::string& line) { m_lines.push_back(line); }

    void toSliderLower(int v) { m_slider.SetLower(offset(v)); }
    void toSliderUpper(int v) { m_slider.SetUpper(offset(v)); }

    void setBound() {
        m_slider.SetBound(0, m_nMax - m_nMin);
        if (m_bInverted)
            m_slider.SetRange(m_nMax - m_nMirroredA, m_nMax - m_nMirroredB);
        else
            m_slider.SetRange(m_nA - m_nMin, m_nB - m_nMin);
    }

    void connectAll() {
        m_spin1.onValueChanged = [this](int v) {
            toSliderLower(v);
            tell(call("spin1.valueChanged", v));
        };
        m_spin2.onValueChanged = [this](int v) {
            toSliderUpper(v);
            tell(call("spin2.valueChanged", v));
        };
        m_slider.onValueChanged = [this](int l, int u) {
            tell(m_bInverted ? call("range.SignalValueChanged", m_nMax - u, m_nMax - l)
                             : call("range.SignalValueChanged", l + m_nMin, u + m_nMin));
            tell(call("slider.ValueChanged", l, u));
        };
        m_slider.onLowerChanged = [this](int o) {
            m_nA = m_nMin + o;
            m_nMirroredA = m_nMax - o;
            m_spin1.setValue(value(o));
            tell(call(m_bInverted ? "range.SignalUpperChanged" : "range.SignalLowerChanged",
                      value(o)));
            tell(call("slider.LowerChanged", o));
        };
        m_slider.onUpperChanged = [this](int o) {
            m_nB = m_nMin + o;
            m_nMirroredB = m_nMax - o;
            m_spin2.setValue(value(o));
            tell(call(m_bInverted ? "range.SignalLowerChanged" : "range.SignalUpperChanged",
                      value(o)));
            tell(call("slider.UpperChanged", o));
        };
    }

    Lines& m_lines;
};

/// One random operation, done to both; tells what it was.
class CRandomOperations {
public:
    CRandomOperations(unsigned seed, StRig* rig, CModel* model)
        : m_random(seed), m_rig(*rig), m_model(*model) {}

    std::string step() {
        const int kind = number(0, 13);
        if (kind < 4)
            return setter(kind);
        if (kind < 6)
            return bound();
        return kind < 12 ? child(kind) : nullRange(kind == 12);
    }

private:
    int number(int least, int greatest) {
        return std::uniform_int_distribution<int>(least, greatest)(m_random);
    }
    int value() {
        const int known[] = {m_model.m_nA,         m_model.m_nB,   m_model.m_nMirroredA,
                             m_model.m_nMirroredB, m_model.m_nMin, m_model.m_nMax};
        return number(0, 2) == 0 ? known[number(0, 5)] + number(-1, 1) : number(-60, 160);
    }

    std::string setter(int kind) {
        const int a = value();
        const int b = value();
        if (kind == 0) {
            m_rig.m_composite.SlotSetLower(a);
            m_model.SlotSetLower(a);
            return call("SlotSetLower", a);
        }
        if (kind == 1) {
            m_rig.m_composite.SlotSetUpper(a);
            m_model.SlotSetUpper(a);
            return call("SlotSetUpper", a);
        }
        m_rig.m_composite.SlotSetRange(a, b);
        m_model.SlotSetRange(a, b);
        return call("SlotSetRange", a, b);
    }

    std::string bound() {
        const int kind = number(0, 3);
        const int a = value();
        if (kind == 0) {
            m_rig.m_composite.SlotSetMin(a);
            m_model.SlotSetMin(a);
            return call("SlotSetMin", a);
        }
        if (kind == 1) {
            m_rig.m_composite.SlotSetMax(a);
            m_model.SlotSetMax(a);
            return call("SlotSetMax", a);
        }
        const int min = number(-50, 50);
        const int max = kind == 2 ? a : min + number(0, 150);
        m_rig.m_composite.SlotSetBound(min, max);
        m_model.SlotSetBound(min, max);
        return call("SlotSetBound", min, max);
    }

    std::string child(int kind) {
        const int a = value();
        const int b = value();
        switch (kind) {
        case 6:
            m_rig.m_pSpin1->setValue(a);
            m_model.m_spin1.setValue(a);
            return call("spin1.setValue", a);
        case 7:
            m_rig.m_pSpin2->setValue(a);
            m_model.m_spin2.setValue(a);
            return call("spin2.setValue", a);
        case 8:
            m_rig.m_pSlider->SetLower(a);
            m_model.m_slider.SetLower(a);
            return call("slider.SetLower", a);
        case 9:
            m_rig.m_pSlider->SetUpper(a);
            m_model.m_slider.SetUpper(a);
            return call("slider.SetUpper", a);
        case 10:
            m_rig.m_pSlider->SetRange(a, b);
            m_model.m_slider.SetRange(a, b);
            return call("slider.SetRange", a, b);
        default:
            m_rig.m_pSlider->Move(a - b);
            m_model.m_slider.Move(a - b);
            return call("slider.Move", a - b);
        }
    }

    std::string nullRange(bool enable) {
        if (enable)
            m_rig.m_composite.SlotEnableNullRange();
        else
            m_rig.m_composite.SlotDisableNullRange();
        m_model.m_slider.EnableNullRange(enable);
        return enable ? "SlotEnableNullRange()" : "SlotDisableNullRange()";
    }

    std::mt19937 m_random;
    StRig& m_rig;
    CModel& m_model;
};

class CRangeSliderSpinboxedRandomTest : public testing::TestWithParam<bool> {};

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, CRangeSliderSpinboxedRandomTest, testing::Bool(), nameOfMapping);

TEST_P(CRangeSliderSpinboxedRandomTest, AnySequenceOfOperationsGoesAsTheModelGoes) {
    const bool inverted = GetParam();
    const unsigned seed = inverted ? 31 : 13;
    const StNumbers start = {10, 40, -5, 95};
    Lines expected;
    CModel model(inverted, start, &expected);
    StRig rig(inverted, start);
    CRandomOperations operations(seed, &rig, &model);

    for (int step = 0; step < 50000; ++step) { // 100,000 with both mappings
        const std::string operation = operations.step();
        ASSERT_EQ(rig.lines(), expected)
            << "seed " << seed << ", step " << step << ": " << operation;
        ASSERT_EQ(rig.state(), model.state())
            << "seed " << seed << ", step " << step << ": " << operation;
        expected.clear();
    }
}
