#include <CRangeSliderSpinboxed.h>

#include "SpinboxedRig.h"
#include "Wording.h"

#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <qt3/SignalTap.h>

using support::Lines;

TEST(CRangeSliderSpinboxedTest, SliderFirstUpdatesItsSpinBoxThenTheSignalGoesOut) {
    StRig rig;
    Lines heard;
    qt3::SignalTap tap;
    tap.listenToAll(&rig.m_composite, [&](const std::string& signal, const std::string& arguments) {
        heard.push_back(signal + '(' + arguments + ") with " +
                        std::to_string(rig.m_pSpin1->value()) + " and " +
                        std::to_string(rig.m_pSpin2->value()));
    });

    rig.m_pSlider->SetRange(5, 15);

    EXPECT_EQ(heard, (Lines{"SignalValueChanged(5, 15) with 0 and 20",
                            "SignalLowerChanged(5) with 5 and 20",
                            "SignalUpperChanged(15) with 5 and 15"}));
}

TEST(CRangeSliderSpinboxedTest, InvertedSliderFirstUpdatesItsSpinBoxThenTheSignalGoesOut) {
    StRig rig(true);
    Lines heard;
    qt3::SignalTap tap;
    tap.listenToAll(&rig.m_composite, [&](const std::string& signal, const std::string& arguments) {
        heard.push_back(signal + '(' + arguments + ") with " +
                        std::to_string(rig.m_pSpin1->value()) + " and " +
                        std::to_string(rig.m_pSpin2->value()));
    });

    rig.m_pSlider->SetRange(5, 15);

    EXPECT_EQ(heard, (Lines{"SignalValueChanged(85, 95) with 100 and 80",
                            "SignalUpperChanged(95) with 95 and 80",
                            "SignalLowerChanged(85) with 95 and 85"}));
}

namespace {

struct ChangeRow {
    const char* name;
    bool inverted;
    StNumbers numbers;
    std::function<void(StRig&)> act;
    Lines heard;
    const char* state;
};

void PrintTo(const ChangeRow& row, std::ostream* out) {
    *out << row.name;
}

class CRangeSliderSpinboxedChangeTest : public testing::TestWithParam<ChangeRow> {};

} // namespace

TEST_P(CRangeSliderSpinboxedChangeTest, GoesThroughAllChildren) {
    StRig rig(GetParam().inverted, GetParam().numbers);

    GetParam().act(rig);

    EXPECT_EQ(rig.lines(), GetParam().heard);
    EXPECT_EQ(rig.state(), GetParam().state);
}

INSTANTIATE_TEST_SUITE_P(
    FromTheChildren, CRangeSliderSpinboxedChangeTest,
    testing::Values(
        ChangeRow{"LowerHandle", false, c_plain, [](StRig& rig) { rig.m_pSlider->SetLower(5); },
                  Lines{"range.SignalValueChanged(5, 20)", "slider.ValueChanged(5, 20)",
                        "spin1.valueChanged(5)", "range.SignalLowerChanged(5)",
                        "slider.LowerChanged(5)"},
                  "5..20 in 0..100, spin boxes 5 and 20, slider 5..20 in 0..100"},
        ChangeRow{"UpperHandleAboveAMinimum",
                  false,
                  {10, 30, 10, 110},
                  [](StRig& rig) { rig.m_pSlider->SetUpper(50); },
                  Lines{"range.SignalValueChanged(10, 60)", "slider.ValueChanged(0, 50)",
                        "spin2.valueChanged(60)", "range.SignalUpperChanged(60)",
                        "slider.UpperChanged(50)"},
                  "10..60 in 10..110, spin boxes 10 and 60, slider 0..50 in 0..100"},
        ChangeRow{"InvertedLowerHandleIsTheUpperValue", true, c_inverted,
                  [](StRig& rig) { rig.m_pSlider->SetLower(5); },
                  Lines{"range.SignalValueChanged(80, 95)", "slider.ValueChanged(5, 20)",
                        "spin1.valueChanged(95)", "range.SignalUpperChanged(95)",
                        "slider.LowerChanged(5)"},
                  "80..95 in 0..100, spin boxes 95 and 80, slider 5..20 in 0..100"},
        ChangeRow{"InvertedUpperHandleIsTheLowerValue", true, c_inverted,
                  [](StRig& rig) { rig.m_pSlider->SetUpper(30); },
                  Lines{"range.SignalValueChanged(70, 100)", "slider.ValueChanged(0, 30)",
                        "spin2.valueChanged(70)", "range.SignalLowerChanged(70)",
                        "slider.UpperChanged(30)"},
                  "70..100 in 0..100, spin boxes 100 and 70, slider 0..30 in 0..100"},
        ChangeRow{"RefusedMoveIsPassedOn", false, c_plain,
                  [](StRig& rig) { rig.m_pSlider->Move(-5); },
                  Lines{"range.SignalValueChanged(0, 20)", "slider.ValueChanged(0, 20)",
                        "range.SignalLowerChanged(0)", "slider.LowerChanged(0)",
                        "range.SignalUpperChanged(20)", "slider.UpperChanged(20)"},
                  "0..20 in 0..100, spin boxes 0 and 20, slider 0..20 in 0..100"},
        ChangeRow{"FirstSpinBox", false, c_plain, [](StRig& rig) { rig.m_pSpin1->setValue(5); },
                  Lines{"range.SignalValueChanged(5, 20)", "slider.ValueChanged(5, 20)",
                        "range.SignalLowerChanged(5)", "slider.LowerChanged(5)",
                        "spin1.valueChanged(5)"},
                  "5..20 in 0..100, spin boxes 5 and 20, slider 5..20 in 0..100"},
        ChangeRow{"SecondSpinBox", false, c_plain, [](StRig& rig) { rig.m_pSpin2->setValue(50); },
                  Lines{"range.SignalValueChanged(0, 50)", "slider.ValueChanged(0, 50)",
                        "range.SignalUpperChanged(50)", "slider.UpperChanged(50)",
                        "spin2.valueChanged(50)"},
                  "0..50 in 0..100, spin boxes 0 and 50, slider 0..50 in 0..100"},
        ChangeRow{"FirstSpinBoxPastTheSecondIsSetBack", false, c_plain,
                  [](StRig& rig) { rig.m_pSpin1->setValue(50); },
                  Lines{"range.SignalValueChanged(20, 20)", "slider.ValueChanged(20, 20)",
                        "spin1.valueChanged(20)", "range.SignalLowerChanged(20)",
                        "slider.LowerChanged(20)", "spin1.valueChanged(50)"},
                  "20..20 in 0..100, spin boxes 20 and 20, slider 20..20 in 0..100"},
        ChangeRow{"FirstSpinBoxPastTheSecondWithoutNullRange", false, c_plain,
                  [](StRig& rig) {
                      rig.m_composite.SlotDisableNullRange();
                      rig.m_pSpin1->setValue(50);
                  },
                  Lines{"range.SignalValueChanged(19, 20)", "slider.ValueChanged(19, 20)",
                        "spin1.valueChanged(19)", "range.SignalLowerChanged(19)",
                        "slider.LowerChanged(19)", "spin1.valueChanged(50)"},
                  "19..20 in 0..100, spin boxes 19 and 20, slider 19..20 in 0..100"},
        ChangeRow{"InvertedFirstSpinBoxIsTheUpperValue", true, c_inverted,
                  [](StRig& rig) { rig.m_pSpin1->setValue(95); },
                  Lines{"range.SignalValueChanged(80, 95)", "slider.ValueChanged(5, 20)",
                        "range.SignalUpperChanged(95)", "slider.LowerChanged(5)",
                        "spin1.valueChanged(95)"},
                  "80..95 in 0..100, spin boxes 95 and 80, slider 5..20 in 0..100"},
        ChangeRow{"InvertedSecondSpinBoxPastTheFirstIsSetBack",
                  true,
                  {80, 100, 0, 100},
                  [](StRig& rig) {
                      rig.m_pSpin1->setValue(90);
                      rig.lines();
                      rig.m_pSpin2->setValue(95);
                  },
                  Lines{"range.SignalValueChanged(90, 90)", "slider.ValueChanged(10, 10)",
                        "spin2.valueChanged(90)", "range.SignalLowerChanged(90)",
                        "slider.UpperChanged(10)", "spin2.valueChanged(95)"},
                  "90..90 in 0..100, spin boxes 90 and 90, slider 10..10 in 0..100"}),
    nameOfRow<ChangeRow>);

INSTANTIATE_TEST_SUITE_P(
    FromTheSetters, CRangeSliderSpinboxedChangeTest,
    testing::Values(
        ChangeRow{"Lower", false, c_plain, [](StRig& rig) { rig.m_composite.SlotSetLower(5); },
                  Lines{"range.SignalValueChanged(5, 20)", "slider.ValueChanged(5, 20)",
                        "spin1.valueChanged(5)", "range.SignalLowerChanged(5)",
                        "slider.LowerChanged(5)"},
                  "5..20 in 0..100, spin boxes 5 and 20, slider 5..20 in 0..100"},
        ChangeRow{"LowerInForce", false, c_plain,
                  [](StRig& rig) { rig.m_composite.SlotSetLower(0); }, Lines{},
                  "0..20 in 0..100, spin boxes 0 and 20, slider 0..20 in 0..100"},
        ChangeRow{"LowerPastTheUpper", false, c_plain,
                  [](StRig& rig) { rig.m_composite.SlotSetLower(50); },
                  Lines{"range.SignalValueChanged(20, 20)", "slider.ValueChanged(20, 20)",
                        "spin1.valueChanged(20)", "range.SignalLowerChanged(20)",
                        "slider.LowerChanged(20)"},
                  "20..20 in 0..100, spin boxes 20 and 20, slider 20..20 in 0..100"},
        ChangeRow{"LowerBelowTheMinimum",
                  false,
                  {10, 30, 10, 110},
                  [](StRig& rig) { rig.m_composite.SlotSetLower(-7); },
                  Lines{"range.SignalValueChanged(10, 30)", "slider.ValueChanged(0, 20)",
                        "range.SignalLowerChanged(10)", "slider.LowerChanged(0)"},
                  "10..30 in 10..110, spin boxes 10 and 30, slider 0..20 in 0..100"},
        ChangeRow{"Upper", false, c_plain, [](StRig& rig) { rig.m_composite.SlotSetUpper(50); },
                  Lines{"range.SignalValueChanged(0, 50)", "slider.ValueChanged(0, 50)",
                        "spin2.valueChanged(50)", "range.SignalUpperChanged(50)",
                        "slider.UpperChanged(50)"},
                  "0..50 in 0..100, spin boxes 0 and 50, slider 0..50 in 0..100"},
        ChangeRow{"UpperInForce", false, c_plain,
                  [](StRig& rig) { rig.m_composite.SlotSetUpper(20); }, Lines{},
                  "0..20 in 0..100, spin boxes 0 and 20, slider 0..20 in 0..100"},
        ChangeRow{"Range", false, c_plain, [](StRig& rig) { rig.m_composite.SlotSetRange(30, 60); },
                  Lines{"range.SignalValueChanged(30, 60)", "slider.ValueChanged(30, 60)",
                        "spin1.valueChanged(30)", "range.SignalLowerChanged(30)",
                        "slider.LowerChanged(30)", "spin2.valueChanged(60)",
                        "range.SignalUpperChanged(60)", "slider.UpperChanged(60)"},
                  "30..60 in 0..100, spin boxes 30 and 60, slider 30..60 in 0..100"},
        ChangeRow{"RangeInForce", false, c_plain,
                  [](StRig& rig) { rig.m_composite.SlotSetRange(0, 20); }, Lines{},
                  "0..20 in 0..100, spin boxes 0 and 20, slider 0..20 in 0..100"},
        ChangeRow{"RangeWithOneEndInForce", false, c_plain,
                  [](StRig& rig) { rig.m_composite.SlotSetRange(0, 60); },
                  Lines{"range.SignalValueChanged(0, 60)", "slider.ValueChanged(0, 60)",
                        "spin2.valueChanged(60)", "range.SignalUpperChanged(60)",
                        "slider.UpperChanged(60)"},
                  "0..60 in 0..100, spin boxes 0 and 60, slider 0..60 in 0..100"},
        ChangeRow{"ReversedRange", false, c_plain,
                  [](StRig& rig) {
                      rig.m_composite.SlotSetRange(60, 30);
                      EXPECT_EQ(rig.m_composite.GetRange(), -1);
                  },
                  Lines{"range.SignalValueChanged(60, 59)", "slider.ValueChanged(60, 59)",
                        "spin1.valueChanged(60)", "range.SignalLowerChanged(60)",
                        "slider.LowerChanged(60)", "spin2.valueChanged(59)",
                        "range.SignalUpperChanged(59)", "slider.UpperChanged(59)"},
                  "60..59 in 0..100, spin boxes 60 and 59, slider 60..59 in 0..100"},
        ChangeRow{"InvertedLower", true, c_inverted,
                  [](StRig& rig) { rig.m_composite.SlotSetLower(70); },
                  Lines{"range.SignalValueChanged(70, 100)", "slider.ValueChanged(0, 30)",
                        "spin2.valueChanged(70)", "range.SignalLowerChanged(70)",
                        "slider.UpperChanged(30)"},
                  "70..100 in 0..100, spin boxes 100 and 70, slider 0..30 in 0..100"},
        ChangeRow{"InvertedUpper", true, c_inverted,
                  [](StRig& rig) { rig.m_composite.SlotSetUpper(95); },
                  Lines{"range.SignalValueChanged(80, 95)", "slider.ValueChanged(5, 20)",
                        "spin1.valueChanged(95)", "range.SignalUpperChanged(95)",
                        "slider.LowerChanged(5)"},
                  "80..95 in 0..100, spin boxes 95 and 80, slider 5..20 in 0..100"},
        ChangeRow{"InvertedRange", true, c_inverted,
                  [](StRig& rig) { rig.m_composite.SlotSetRange(30, 60); },
                  Lines{"range.SignalValueChanged(30, 60)", "slider.ValueChanged(40, 70)",
                        "spin1.valueChanged(60)", "range.SignalUpperChanged(60)",
                        "slider.LowerChanged(40)", "spin2.valueChanged(30)",
                        "range.SignalLowerChanged(30)", "slider.UpperChanged(70)"},
                  "30..60 in 0..100, spin boxes 60 and 30, slider 40..70 in 0..100"}),
    nameOfRow<ChangeRow>);

// The kept values are minimum + offset, so these comparisons miss. That is how it has always been.
INSTANTIATE_TEST_SUITE_P(
    InvertedComparisonsMiss, CRangeSliderSpinboxedChangeTest,
    testing::Values(
        ChangeRow{"LowerEqualToTheUpperOffsetIsIgnored", true, c_inverted,
                  [](StRig& rig) {
                      rig.m_composite.SlotSetLower(70); // offset 30
                      rig.lines();
                      rig.m_composite.SlotSetLower(30);
                  },
                  Lines{}, "70..100 in 0..100, spin boxes 100 and 70, slider 0..30 in 0..100"},
        ChangeRow{"UpperEqualToTheLowerOffsetIsIgnored", true, c_inverted,
                  [](StRig& rig) {
                      rig.m_composite.SlotSetUpper(95); // offset 5
                      rig.lines();
                      rig.m_composite.SlotSetUpper(5);
                  },
                  Lines{}, "80..95 in 0..100, spin boxes 95 and 80, slider 5..20 in 0..100"},
        ChangeRow{"RangeEqualToTheOffsetsIsIgnored", true, c_inverted,
                  [](StRig& rig) {
                      rig.m_composite.SlotSetRange(30, 60); // offsets 40 and 70
                      rig.lines();
                      rig.m_composite.SlotSetRange(70, 40);
                  },
                  Lines{}, "30..60 in 0..100, spin boxes 60 and 30, slider 40..70 in 0..100"},
        ChangeRow{"LowerAtTheStartIsComparedWithTheUpper", true, c_inverted,
                  [](StRig& rig) { rig.m_composite.SlotSetLower(100); }, Lines{},
                  "80..100 in 0..100, spin boxes 100 and 80, slider 0..20 in 0..100"},
        ChangeRow{"LowerInForceEndsSilentlyInTheSlider", true, c_inverted,
                  [](StRig& rig) { rig.m_composite.SlotSetLower(80); }, Lines{},
                  "80..100 in 0..100, spin boxes 100 and 80, slider 0..20 in 0..100"}),
    nameOfRow<ChangeRow>);

INSTANTIATE_TEST_SUITE_P(
    Bounds, CRangeSliderSpinboxedChangeTest,
    testing::Values(
        ChangeRow{"MinimumThatPushesTheFirstSpinBox", false, c_plain,
                  [](StRig& rig) { rig.m_composite.SlotSetMin(10); },
                  Lines{"spin1.valueChanged(10)", "range.SignalValueChanged(10, 20)",
                        "slider.ValueChanged(0, 10)", "range.SignalLowerChanged(10)",
                        "slider.LowerChanged(0)", "range.SignalUpperChanged(20)",
                        "slider.UpperChanged(10)"},
                  "10..20 in 10..100, spin boxes 10 and 20, slider 0..10 in 0..90"},
        ChangeRow{"LowerMinimumShiftsTheOffsets", false, c_plain,
                  [](StRig& rig) { rig.m_composite.SlotSetMin(-50); },
                  Lines{"range.SignalValueChanged(0, 20)", "slider.ValueChanged(50, 70)",
                        "range.SignalLowerChanged(0)", "slider.LowerChanged(50)",
                        "range.SignalUpperChanged(20)", "slider.UpperChanged(70)"},
                  "0..20 in -50..100, spin boxes 0 and 20, slider 50..70 in 0..150"},
        ChangeRow{"MinimumInForce", false, c_plain,
                  [](StRig& rig) {
                      rig.m_pSlider->SetBound(0, 50);
                      rig.lines();
                      rig.m_composite.SlotSetMin(0);
                  },
                  Lines{}, "0..20 in 0..100, spin boxes 0 and 20, slider 0..20 in 0..50"},
        ChangeRow{"MaximumThatPushesTheSecondSpinBox", false, c_plain,
                  [](StRig& rig) { rig.m_composite.SlotSetMax(15); },
                  Lines{"range.SignalValueChanged(0, 15)", "slider.ValueChanged(0, 15)",
                        "range.SignalUpperChanged(15)", "slider.UpperChanged(15)",
                        "spin2.valueChanged(15)"},
                  "0..15 in 0..15, spin boxes 0 and 15, slider 0..15 in 0..15"},
        ChangeRow{"GreaterMaximum", false, c_plain,
                  [](StRig& rig) { rig.m_composite.SlotSetMax(200); }, Lines{},
                  "0..20 in 0..200, spin boxes 0 and 20, slider 0..20 in 0..200"},
        ChangeRow{"MaximumInForce", false, c_plain,
                  [](StRig& rig) {
                      rig.m_pSlider->SetBound(0, 50);
                      rig.lines();
                      rig.m_composite.SlotSetMax(100);
                  },
                  Lines{}, "0..20 in 0..100, spin boxes 0 and 20, slider 0..20 in 0..50"},
        ChangeRow{"InvertedGreaterMaximumShiftsTheOffsets", true, c_inverted,
                  [](StRig& rig) { rig.m_composite.SlotSetMax(150); },
                  Lines{"range.SignalValueChanged(80, 100)", "slider.ValueChanged(50, 70)",
                        "range.SignalUpperChanged(100)", "slider.LowerChanged(50)",
                        "range.SignalLowerChanged(80)", "slider.UpperChanged(70)"},
                  "80..100 in 0..150, spin boxes 100 and 80, slider 50..70 in 0..150"},
        ChangeRow{"InvertedLowerMinimum", true, c_inverted,
                  [](StRig& rig) { rig.m_composite.SlotSetMin(-50); }, Lines{},
                  "80..100 in -50..100, spin boxes 100 and 80, slider 0..20 in 0..150"},
        ChangeRow{"BoundThatPushesBothSpinBoxes", false, c_plain,
                  [](StRig& rig) { rig.m_composite.SlotSetBound(30, 90); },
                  Lines{"spin1.valueChanged(30)", "range.SignalValueChanged(30, 30)",
                        "slider.ValueChanged(0, 0)", "range.SignalUpperChanged(30)",
                        "slider.UpperChanged(0)", "spin2.valueChanged(30)",
                        "range.SignalValueChanged(30, 30)", "slider.ValueChanged(0, 0)",
                        "range.SignalLowerChanged(30)", "slider.LowerChanged(0)"},
                  "30..30 in 30..90, spin boxes 30 and 30, slider 0..0 in 0..60"},
        ChangeRow{"BoundInForceIsSetAllTheSame", false, c_plain,
                  [](StRig& rig) {
                      rig.m_pSlider->SetBound(0, 50);
                      rig.lines();
                      rig.m_composite.SlotSetBound(0, 100);
                  },
                  Lines{}, "0..20 in 0..100, spin boxes 0 and 20, slider 0..20 in 0..100"}),
    nameOfRow<ChangeRow>);
