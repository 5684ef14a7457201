#include <CSpinboxSlider.h>

#include "NumberModel.h"
#include "Wording.h"

#include <Events.h>
#include <Recorder.h>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>
#include <memory>
#include <ostream>
#include <qlayout.h>
#include <random>
#include <type_traits>
#include <vector>

using support::Lines;
using TEVU::CSpinboxSlider;

namespace {

/// Opens the protected slots.
class COpenSlots : public CSpinboxSlider {
public:
    using CSpinboxSlider::_SlotSetValue;
    using CSpinboxSlider::_SlotSetValueFromSlider;
    using CSpinboxSlider::CSpinboxSlider;
    using CSpinboxSlider::SlotSliderMoved;
    using CSpinboxSlider::SlotSliderPressed;
    using CSpinboxSlider::SlotSliderReleased;
};

/// The composite with its children, and all that they say.
struct StRig {
    explicit StRig(bool inverted = false, Qt::Orientation orientation = Qt::Horizontal,
                   int value = 0)
        : m_composite(0, 100, 1, value, orientation, inverted, &m_window, "page"),
          m_slider(*support::child<qt3::Slider>(&m_composite, "slider")),
          m_spin(*support::child<qt3::SpinBox>(&m_composite, "spinbox")) {
        m_recorder.tapAll(&m_composite, "page");
        m_recorder.tap(&m_slider, "valueChanged(int)", "slider");
        m_recorder.tap(&m_spin, "valueChanged(int)", "spin");
    }

    Lines lines() { return m_recorder.take(); }

    /// What the composite alone says.
    Lines announced() {
        Lines own;
        for (const std::string& line : lines()) {
            if (line.rfind("page.", 0) == 0)
                own.push_back(line.substr(5));
        }
        return own;
    }

    std::string state() const {
        return std::to_string(m_composite.GetValue()) + " in " +
               std::to_string(m_composite.GetMinValue()) + ".." +
               std::to_string(m_composite.GetMaxValue()) + ", slider " +
               std::to_string(m_slider.value()) + ", spin box " + std::to_string(m_spin.value());
    }

    std::string steps() const {
        return std::to_string(m_composite.GetStep()) + ", page " +
               std::to_string(m_slider.pageStep()) + ", line " + std::to_string(m_spin.lineStep());
    }

    QWidget m_window;
    COpenSlots m_composite;
    qt3::Slider& m_slider;
    qt3::SpinBox& m_spin;
    support::Recorder m_recorder;
};

} // namespace

// Construction

namespace {

struct ConstructionRow {
    const char* name;
    std::function<CSpinboxSlider*(QWidget*)> make;
    bool vertical;
    bool spinFirst;
    bool inverted;
    bool numbers; ///< 10, 60, 5 and 20 instead of the defaults.
};

void PrintTo(const ConstructionRow& row, std::ostream* out) {
    *out << row.name;
}

class CSpinboxSliderConstructionTest : public testing::TestWithParam<ConstructionRow> {
protected:
    CSpinboxSliderConstructionTest()
        : row(GetParam()), composite(row.make(&window)),
          slider(support::child<qt3::Slider>(composite, "slider")),
          spin(support::child<qt3::SpinBox>(composite, "spinbox")) {}

    const ConstructionRow& row;
    QWidget window;
    CSpinboxSlider* composite;
    qt3::Slider* slider;
    qt3::SpinBox* spin;
};

} // namespace

TEST_P(CSpinboxSliderConstructionTest, HasItsNumbers) {
    EXPECT_EQ(composite->GetMinValue(), row.numbers ? 10 : 0);
    EXPECT_EQ(composite->GetMaxValue(), row.numbers ? 60 : 100);
    EXPECT_EQ(composite->GetStep(), row.numbers ? 5 : 1);
    EXPECT_EQ(composite->GetValue(), row.numbers ? 20 : 0);
    EXPECT_EQ(composite->parentWidget(), &window);
    EXPECT_STREQ(composite->name(), "page");
}

TEST_P(CSpinboxSliderConstructionTest, GivesThemToItsChildren) {
    ASSERT_NE(slider, nullptr);
    ASSERT_NE(spin, nullptr);
    EXPECT_EQ(slider->minValue(), row.numbers ? 10 : 0);
    EXPECT_EQ(slider->maxValue(), row.numbers ? 60 : 100);
    EXPECT_EQ(slider->pageStep(), row.numbers ? 5 : 1);
    EXPECT_EQ(slider->lineStep(), 1);
    EXPECT_EQ(spin->minValue(), row.numbers ? 10 : 0);
    EXPECT_EQ(spin->maxValue(), row.numbers ? 60 : 100);
    EXPECT_EQ(spin->lineStep(), row.numbers ? 5 : 1);
    EXPECT_EQ(slider->parentWidget(), composite);
    EXPECT_EQ(spin->parentWidget(), composite);
}

TEST_P(CSpinboxSliderConstructionTest, MakesTheSliderFirstWhereverItStands) {
    EXPECT_TRUE(standInOrder(composite, {slider, spin}));
}

TEST_P(CSpinboxSliderConstructionTest, MirrorsTheSliderWhenInverted) {
    const int value = row.numbers ? 20 : 0;
    EXPECT_EQ(spin->value(), value);
    EXPECT_EQ(slider->value(), row.inverted ? (row.numbers ? 50 : 100) : value);
}

TEST_P(CSpinboxSliderConstructionTest, PutsItsChildrenInOrderWithoutMarginOrGap) {
    composite->resize(row.vertical ? QSize(120, 300) : QSize(300, 60));
    support::show(&window);
    EXPECT_EQ(slider->orientation() == Qt::Vertical, row.vertical);
    const QRect first = row.spinFirst ? spin->geometry() : slider->geometry();
    const QRect second = row.spinFirst ? slider->geometry() : spin->geometry();
    if (row.vertical) {
        EXPECT_EQ(first.top(), 0);
        EXPECT_EQ(second.top(), first.bottom() + 1);
        EXPECT_EQ(second.bottom(), 299);
    } else {
        EXPECT_EQ(first.left(), 0);
        EXPECT_EQ(second.left(), first.right() + 1);
        EXPECT_EQ(second.right(), 299);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CSpinboxSliderConstructionTest,
    testing::Values(
        ConstructionRow{"NumbersAndOrientation",
                        [](QWidget* parent) {
                            return new CSpinboxSlider(10, 60, 5, 20, Qt::Vertical, parent, "page");
                        },
                        true, false, false, true},
        ConstructionRow{"NumbersOrientationAndInverted",
                        [](QWidget* parent) {
                            return new CSpinboxSlider(10, 60, 5, 20, Qt::Horizontal, true, parent,
                                                      "page");
                        },
                        false, false, true, true},
        ConstructionRow{"NumbersOrientationAndSpinFirst",
                        [](QWidget* parent) {
                            return new CSpinboxSlider(10, 60, 5, 20, Qt::Vertical, true, false,
                                                      parent, "page");
                        },
                        true, true, false, true},
        ConstructionRow{"NumbersOrientationAndTheSecondFlag",
                        [](QWidget* parent) {
                            return new CSpinboxSlider(10, 60, 5, 20, Qt::Vertical, false, true,
                                                      parent, "page");
                        },
                        true, false, true, true},
        ConstructionRow{"Nothing",
                        [](QWidget* parent) { return new CSpinboxSlider(parent, "page"); }, false,
                        false, false, false},
        ConstructionRow{
            "OrientationAlone",
            [](QWidget* parent) { return new CSpinboxSlider(Qt::Vertical, parent, "page"); }, true,
            false, false, false},
        ConstructionRow{
            "OrientationAndInverted",
            [](QWidget* parent) { return new CSpinboxSlider(Qt::Vertical, true, parent, "page"); },
            true, false, true, false},
        ConstructionRow{"OrientationAndSpinFirst",
                        [](QWidget* parent) {
                            return new CSpinboxSlider(Qt::Vertical, true, false, parent, "page");
                        },
                        true, true, false, false},
        ConstructionRow{"OrientationAndTheSecondFlag",
                        [](QWidget* parent) {
                            return new CSpinboxSlider(Qt::Horizontal, false, true, parent, "page");
                        },
                        false, false, true, false},
        ConstructionRow{"InvertedAlone",
                        [](QWidget* parent) { return new CSpinboxSlider(true, parent, "page"); },
                        false, false, true, false},
        ConstructionRow{"NotInvertedAlone",
                        [](QWidget* parent) { return new CSpinboxSlider(false, parent, "page"); },
                        false, false, false, false},
        ConstructionRow{
            "SpinFirst",
            [](QWidget* parent) { return new CSpinboxSlider(true, false, parent, "page"); }, false,
            true, false, false},
        ConstructionRow{
            "TheSecondFlag",
            [](QWidget* parent) { return new CSpinboxSlider(false, true, parent, "page"); }, false,
            false, true, false}),
    nameOfRow<ConstructionRow>);

TEST(CSpinboxSliderTest, MayBeMadeOfNothing) {
    const CSpinboxSlider composite;
    EXPECT_EQ(composite.parentWidget(), nullptr);
    EXPECT_STREQ(composite.name(), "unnamed");
    EXPECT_EQ(composite.GetMaxValue(), 100);
}

TEST(CSpinboxSliderTest, VerticalSliderStandsBetweenTwoSpacers) {
    StRig rig(false, Qt::Vertical);
    rig.m_composite.resize(120, 300);
    support::show(&rig.m_window);
    EXPECT_GE(rig.m_slider.x(), 10);
    EXPECT_LE(rig.m_slider.x() + rig.m_slider.width(), 110);
    EXPECT_NEAR(rig.m_slider.x() + rig.m_slider.width() / 2, 60, 1);
    EXPECT_EQ(rig.m_spin.width(), 120);
}

TEST(CSpinboxSliderTest, SpacersAreTenPixelsWideAndNoLess) {
    StRig rig(false, Qt::Vertical);
    rig.m_spin.setFixedWidth(5); // the slider's row alone decides
    support::show(&rig.m_window);
    const int least = rig.m_composite.layout()->minimumSize().width();
    EXPECT_EQ(least, 10 + rig.m_slider.minimumSizeHint().width() + 10);
    rig.m_composite.resize(least, 300);
    EXPECT_EQ(rig.m_slider.x(), 10);
}

TEST(CSpinboxSliderTest, ValueOutsideAtTheStartIsKeptWhileTheChildrenClamp) {
    QWidget window;
    const CSpinboxSlider composite(0, 100, 1, 150, Qt::Horizontal, true, &window, "page");
    auto* parent = const_cast<CSpinboxSlider*>(&composite);
    EXPECT_EQ(composite.GetValue(), 150);
    EXPECT_EQ(support::child<qt3::SpinBox>(parent, "spinbox")->value(), 100);
    EXPECT_EQ(support::child<qt3::Slider>(parent, "slider")->value(), 0);
}

TEST(CSpinboxSliderTest, CannotBeCopied) {
    EXPECT_FALSE(std::is_copy_constructible<CSpinboxSlider>::value);
    EXPECT_FALSE(std::is_copy_assignable<CSpinboxSlider>::value);
}

// What is set and heard

namespace {

struct ChangeRow {
    const char* name;
    bool inverted;
    int start;
    std::function<void(StRig&)> act;
    Lines heard;
    const char* state;
};

void PrintTo(const ChangeRow& row, std::ostream* out) {
    *out << row.name;
}

class CSpinboxSliderChangeTest : public testing::TestWithParam<ChangeRow> {};

} // namespace

TEST_P(CSpinboxSliderChangeTest, GoesThroughBothChildren) {
    StRig rig(GetParam().inverted, Qt::Horizontal, GetParam().start);

    GetParam().act(rig);

    EXPECT_EQ(rig.lines(), GetParam().heard);
    EXPECT_EQ(rig.state(), GetParam().state);
}

INSTANTIATE_TEST_SUITE_P(
    Value, CSpinboxSliderChangeTest,
    testing::Values(
        ChangeRow{"SetterAnnouncesTwice", false, 0,
                  [](StRig& rig) { rig.m_composite.SlotSetValue(30); },
                  Lines{"page.SignalValueChanged(30)", "slider.valueChanged(30)",
                        "page.SignalValueChanged(30)", "spin.valueChanged(30)"},
                  "30 in 0..100, slider 30, spin box 30"},
        ChangeRow{"SpinBoxAnnouncesTwice", false, 0, [](StRig& rig) { rig.m_spin.setValue(30); },
                  Lines{"page.SignalValueChanged(30)", "slider.valueChanged(30)",
                        "page.SignalValueChanged(30)", "spin.valueChanged(30)"},
                  "30 in 0..100, slider 30, spin box 30"},
        ChangeRow{"SliderAnnouncesTwice", false, 0, [](StRig& rig) { rig.m_slider.setValue(30); },
                  Lines{"page.SignalValueChanged(30)", "spin.valueChanged(30)",
                        "page.SignalValueChanged(30)", "slider.valueChanged(30)"},
                  "30 in 0..100, slider 30, spin box 30"},
        ChangeRow{"InvertedSetter", true, 0, [](StRig& rig) { rig.m_composite.SlotSetValue(30); },
                  Lines{"page.SignalValueChanged(30)", "slider.valueChanged(70)",
                        "page.SignalValueChanged(30)", "spin.valueChanged(30)"},
                  "30 in 0..100, slider 70, spin box 30"},
        ChangeRow{"InvertedSpinBox", true, 0, [](StRig& rig) { rig.m_spin.setValue(30); },
                  Lines{"page.SignalValueChanged(30)", "slider.valueChanged(70)",
                        "page.SignalValueChanged(30)", "spin.valueChanged(30)"},
                  "30 in 0..100, slider 70, spin box 30"},
        ChangeRow{"InvertedSlider", true, 30, [](StRig& rig) { rig.m_slider.setValue(80); },
                  Lines{"page.SignalValueChanged(20)", "spin.valueChanged(20)",
                        "page.SignalValueChanged(20)", "slider.valueChanged(80)"},
                  "20 in 0..100, slider 80, spin box 20"},
        ChangeRow{"ValueInForceIsSilent", false, 30,
                  [](StRig& rig) { rig.m_composite.SlotSetValue(30); }, Lines{},
                  "30 in 0..100, slider 30, spin box 30"},
        ChangeRow{"ValueBeyondAChildThatIsAtItsEndIsKeptAsGiven", false, 100,
                  [](StRig& rig) { rig.m_composite.SlotSetValue(150); }, Lines{},
                  "150 in 0..100, slider 100, spin box 100"},
        ChangeRow{"ValueBelowAChildThatIsAtItsEndIsKeptAsGiven", true, 0,
                  [](StRig& rig) { rig.m_composite.SlotSetValue(-7); }, Lines{},
                  "-7 in 0..100, slider 100, spin box 0"},
        // The children that move to their end announce it, and that is what is kept then.
        ChangeRow{"ValueBeyondIsReplacedByTheEndThatTheChildrenAnnounce", false, 50,
                  [](StRig& rig) { rig.m_composite.SlotSetValue(150); },
                  Lines{"page.SignalValueChanged(100)", "slider.valueChanged(100)",
                        "page.SignalValueChanged(100)", "spin.valueChanged(100)"},
                  "100 in 0..100, slider 100, spin box 100"}),
    nameOfRow<ChangeRow>);

INSTANTIATE_TEST_SUITE_P(
    Range, CSpinboxSliderChangeTest,
    testing::Values(ChangeRow{"MinimumBelowTheValueIsSilent", false, 30,
                              [](StRig& rig) { rig.m_composite.SlotSetMinValue(-20); }, Lines{},
                              "30 in -20..100, slider 30, spin box 30"},
                    ChangeRow{"MinimumAboveTheValuePushesTheSliderFirst", false, 5,
                              [](StRig& rig) { rig.m_composite.SlotSetMinValue(10); },
                              Lines{"page.SignalValueChanged(10)", "spin.valueChanged(10)",
                                    "page.SignalValueChanged(10)", "slider.valueChanged(10)"},
                              "10 in 10..100, slider 10, spin box 10"},
                    ChangeRow{"MaximumBelowTheValuePushesTheSliderFirst", false, 50,
                              [](StRig& rig) { rig.m_composite.SlotSetMaxValue(40); },
                              Lines{"page.SignalValueChanged(40)", "spin.valueChanged(40)",
                                    "page.SignalValueChanged(40)", "slider.valueChanged(40)"},
                              "40 in 0..40, slider 40, spin box 40"},
                    ChangeRow{"InvertedMinimumMovesTheMirrorNotTheSlider", true, 30,
                              [](StRig& rig) { rig.m_composite.SlotSetMinValue(20); }, Lines{},
                              "30 in 20..100, slider 70, spin box 30"},
                    ChangeRow{"InvertedSameValueIsMirroredAtTheNewPoint", true, 30,
                              [](StRig& rig) {
                                  rig.m_composite.SlotSetMinValue(20);
                                  rig.m_composite.SlotSetValue(30);
                              },
                              Lines{"page.SignalValueChanged(30)", "slider.valueChanged(90)"},
                              "30 in 20..100, slider 90, spin box 30"},
                    ChangeRow{"InvertedMaximumMovesTheMirrorForTheSlider", true, 30,
                              [](StRig& rig) {
                                  rig.m_composite.SlotSetMaxValue(200);
                                  rig.m_slider.setValue(80);
                              },
                              Lines{"page.SignalValueChanged(120)", "spin.valueChanged(120)",
                                    "page.SignalValueChanged(120)", "slider.valueChanged(80)"},
                              "120 in 0..200, slider 80, spin box 120"},
                    ChangeRow{"InvertedMinimumThatPushesTheSliderAnnouncesTheMirroredValue", true,
                              70, [](StRig& rig) { rig.m_composite.SlotSetMinValue(50); },
                              Lines{"page.SignalValueChanged(100)", "spin.valueChanged(100)",
                                    "page.SignalValueChanged(100)", "slider.valueChanged(50)"},
                              "100 in 50..100, slider 50, spin box 100"},
                    ChangeRow{"MinimumAboveTheMaximumTakesTheChildrenAlong", false, 50,
                              [](StRig& rig) { rig.m_composite.SlotSetMinValue(150); },
                              Lines{"page.SignalValueChanged(100)", "spin.valueChanged(100)",
                                    "page.SignalValueChanged(100)", "slider.valueChanged(150)",
                                    "page.SignalValueChanged(150)", "spin.valueChanged(150)"},
                              "150 in 150..100, slider 150, spin box 150"}),
    nameOfRow<ChangeRow>);

TEST(CSpinboxSliderTest, StepIsThePageOfTheSliderAndTheLineOfTheSpinBox) {
    StRig rig;

    rig.m_composite.SlotSetStep(7);

    EXPECT_EQ(rig.m_composite.GetStep(), 7);
    EXPECT_EQ(rig.m_slider.pageStep(), 7);
    EXPECT_EQ(rig.m_slider.lineStep(), 1);
    EXPECT_EQ(rig.m_spin.lineStep(), 7);
    rig.m_spin.stepUp();
    EXPECT_EQ(rig.m_composite.GetValue(), 7);
}

TEST(CSpinboxSliderTest, NegativeStepIsKeptWhileTheChildrenDropTheSign) {
    StRig rig;
    rig.m_composite.SlotSetStep(-5);
    EXPECT_EQ(rig.m_composite.GetStep(), -5);
    EXPECT_EQ(rig.m_slider.pageStep(), 5);
    EXPECT_EQ(rig.m_spin.lineStep(), 5);
}

TEST(CSpinboxSliderTest, ExchangedEndsAreOneValueForTheChildren) {
    QWidget window;
    CSpinboxSlider composite(50, 10, 1, 20, Qt::Horizontal, true, &window, "page");
    auto* const spin = support::child<qt3::SpinBox>(&composite, "spinbox");
    support::show(&window);

    support::keyClick(spin, Qt::Key_Up);
    composite.SlotSetValue(30);

    EXPECT_EQ(spin->value(), 50);
    EXPECT_EQ(spin->minValue(), 50);
    EXPECT_EQ(spin->maxValue(), 50);
    EXPECT_EQ(composite.GetMaxValue(), 10);
}

TEST(CSpinboxSliderTest, TypedValueCountsWithReturn) {
    StRig rig;
    support::giveFocus(&rig.m_spin);
    rig.m_spin.selectAll();
    support::typeText(&rig.m_spin, "42");
    EXPECT_EQ(rig.announced(), Lines());

    support::typeText(&rig.m_spin, "\n");

    EXPECT_EQ(rig.announced(), (Lines{"SignalValueChanged(42)", "SignalValueChanged(42)"}));
    EXPECT_EQ(rig.m_slider.value(), 42);
}

TEST(CSpinboxSliderTest, ExtremesAreMirroredWithoutOverflow) {
    const int least = std::numeric_limits<int>::min();
    const int most = std::numeric_limits<int>::max();
    QWidget window;
    CSpinboxSlider composite(0, most, 1, most, Qt::Horizontal, true, &window, "page");
    EXPECT_EQ(support::child<qt3::Slider>(&composite, "slider")->value(), 0);

    composite.SlotSetValue(least);
    EXPECT_EQ(composite.GetValue(), 0); // what the children announce
    EXPECT_EQ(support::child<qt3::Slider>(&composite, "slider")->value(), most);
}

// The mouse on the slider

namespace {

class CSpinboxSliderMouseTest : public testing::TestWithParam<Qt::Orientation> {};

/// A handle of 11 pixels has 200 pixels to go then: two for each value.
void giveTwoPixelsAValue(StRig& rig) {
    if (rig.m_slider.orientation() == Qt::Vertical)
        rig.m_slider.setFixedHeight(211);
    else
        rig.m_slider.setFixedWidth(211);
    support::show(&rig.m_window);
    rig.m_composite.resize(rig.m_composite.sizeHint());
    support::processEvents();
    rig.lines();
}

QPoint middleOfHandle(const StRig& rig, int position) {
    return rig.m_slider.orientation() == Qt::Vertical
               ? QPoint(rig.m_slider.width() / 2, 2 * position + 5)
               : QPoint(2 * position + 5, rig.m_slider.height() / 2);
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, CSpinboxSliderMouseTest,
                         testing::Values(Qt::Horizontal, Qt::Vertical), nameOfOrientation);

TEST_P(CSpinboxSliderMouseTest, PressMovesAndReleaseArePassedOn) {
    StRig rig(false, GetParam(), 30);
    giveTwoPixelsAValue(rig);

    support::mousePress(&rig.m_slider, middleOfHandle(rig, 30));
    EXPECT_EQ(rig.announced(), Lines{"SignalSliderPressed()"});
    support::mouseMove(&rig.m_slider, middleOfHandle(rig, 40));
    EXPECT_EQ(rig.announced(),
              (Lines{"SignalSliderMoved(40)", "SignalValueChanged(40)", "SignalValueChanged(40)"}));
    support::mouseRelease(&rig.m_slider, middleOfHandle(rig, 40));
    EXPECT_EQ(rig.announced(), Lines{"SignalSliderReleased()"});
    EXPECT_EQ(rig.state(), "40 in 0..100, slider 40, spin box 40");
}

TEST_P(CSpinboxSliderMouseTest, InvertedMovesArePassedOnInUserValues) {
    StRig rig(true, GetParam(), 30);
    giveTwoPixelsAValue(rig);

    support::mouseDrag(&rig.m_slider, middleOfHandle(rig, 70), middleOfHandle(rig, 80));

    EXPECT_EQ(rig.announced(),
              (Lines{"SignalSliderPressed()", "SignalSliderMoved(20)", "SignalValueChanged(20)",
                     "SignalValueChanged(20)", "SignalSliderReleased()"}));
    EXPECT_EQ(rig.state(), "20 in 0..100, slider 80, spin box 20");
}

// Begun beyond the range, the value comes into it, and then is set: the handle is where the value is.
TEST_P(CSpinboxSliderMouseTest, HandleIsAtAValueThatWasBeyondTheRangeAtFirst) {
    StRig rig(false, GetParam(), 150);
    giveTwoPixelsAValue(rig);
    rig.m_composite.SlotSetMaxValue(200); // a pixel a value
    rig.m_slider.setValue(150);
    rig.lines();

    support::mousePress(&rig.m_slider, middleOfHandle(rig, 75));
    EXPECT_EQ(rig.announced(), Lines{"SignalSliderPressed()"});
    support::mouseRelease(&rig.m_slider, middleOfHandle(rig, 75));
    EXPECT_EQ(rig.state(), "150 in 0..200, slider 150, spin box 150");
}

// The smallest position is on the left or at the top: this drags towards the other end.
TEST_P(CSpinboxSliderMouseTest, SmallestPositionIsAtTheBeginning) {
    StRig rig(false, GetParam());
    giveTwoPixelsAValue(rig);

    support::mouseDrag(&rig.m_slider, middleOfHandle(rig, 0), middleOfHandle(rig, 100));

    EXPECT_EQ(rig.m_composite.GetValue(), 100);
}

// Meta-object

TEST(CSpinboxSliderTest, MetaObjectTellsTheClass) {
    const CSpinboxSlider composite;
    EXPECT_EQ(qt3::className(&composite), "TEVU::CSpinboxSlider");
    EXPECT_EQ(qt3::superClassName(&composite), "QWidget");
    EXPECT_EQ(qt3::furtherEntries(&composite), 0);
}

TEST(CSpinboxSliderTest, SlotsAndSignalsHaveTheirOrderAndAccess) {
    const CSpinboxSlider composite;
    EXPECT_EQ(tableLines(qt3::slotTable(&composite)),
              (Lines{"public SlotSetValue(int)", "public SlotSetMinValue(int)",
                     "public SlotSetMaxValue(int)", "public SlotSetStep(int)",
                     "protected _SlotSetValue(int)", "protected _SlotSetValueFromSlider(int)",
                     "protected SlotSliderPressed()", "protected SlotSliderMoved(int)",
                     "protected SlotSliderReleased()"}));
    EXPECT_EQ(tableLines(qt3::signalTable(&composite)),
              (Lines{"public SignalValueChanged(int)", "public SignalSliderPressed()",
                     "public SignalSliderMoved(int)", "public SignalSliderReleased()"}));
}

TEST(CSpinboxSliderTest, ProtectedSlotsAnnounceTheValueInForceToo) {
    QWidget window;
    COpenSlots composite(0, 100, 1, 30, Qt::Horizontal, true, &window, "page");
    support::Recorder recorder;
    recorder.tapAll(&composite, "page");

    composite._SlotSetValue(30);
    composite._SlotSetValueFromSlider(70);
    composite.SlotSliderPressed();
    composite.SlotSliderMoved(75);
    composite.SlotSliderReleased();

    EXPECT_EQ(recorder.take(), (Lines{"page.SignalValueChanged(30)", "page.SignalValueChanged(30)",
                                      "page.SignalSliderPressed()", "page.SignalSliderMoved(25)",
                                      "page.SignalSliderReleased()"}));
}

TEST(CSpinboxSliderTest, SlotOfTheSpinBoxAnnouncesItsArgument) {
    QWidget window;
    COpenSlots composite(0, 100, 1, 100, Qt::Horizontal, &window, "page");
    support::Recorder recorder;
    recorder.tapAll(&composite, "page");

    composite._SlotSetValue(150);

    EXPECT_EQ(recorder.take(), Lines{"page.SignalValueChanged(150)"});
    EXPECT_EQ(composite.GetValue(), 150);
}

TEST(CSpinboxSliderTest, SlotOfTheSliderAnnouncesWhatIsKeptInTheEnd) {
    QWidget window;
    COpenSlots composite(0, 100, 1, 50, Qt::Horizontal, &window, "page");
    support::Recorder recorder;
    recorder.tapAll(&composite, "page");

    composite._SlotSetValueFromSlider(150); // the spin box makes it 100

    EXPECT_EQ(recorder.take(),
              (Lines{"page.SignalValueChanged(100)", "page.SignalValueChanged(100)",
                     "page.SignalValueChanged(100)"}));
    EXPECT_EQ(composite.GetValue(), 100);
}

TEST(CSpinboxSliderTest, ProtectedSlotsAreReachedByTheirText) {
    StRig rig;
    qt3::SpinBox source(0, 100, 1, &rig.m_window);
    ASSERT_TRUE(QObject::connect(&source, "2valueChanged( int )", &rig.m_composite,
                                 "1_SlotSetValue( int )"));
    ASSERT_TRUE(QObject::connect(&source, "2valueChanged( int )", &rig.m_composite,
                                 "1SlotSliderReleased()"));

    source.setValue(42);

    EXPECT_EQ(rig.m_composite.GetValue(), 42);
    EXPECT_EQ(rig.announced().back(), "SignalSliderReleased()");
}

// Random operations beside a model

namespace {

class CModel {
public:
    CModel(bool inverted, Lines* lines)
        : m_bInverted(inverted), m_slider(0, 100, mirrored(0)), m_spin(0, 100, 0), m_lines(*lines) {
        m_slider.onValueChanged = [this](int s) { fromSlider(s); };
        m_spin.onValueChanged = [this](int v) { fromSpinBox(v); };
    }

    void SlotSetValue(int v) {
        m_nValue = v;
        m_spin.setValue(v);
        m_slider.setValue(mirrored(v));
    }

    void SlotSetMinValue(int v) {
        m_nMin = v;
        m_slider.setMinValue(v);
        m_spin.setMinValue(v);
    }

    void SlotSetMaxValue(int v) {
        m_nMax = v;
        m_slider.setMaxValue(v);
        m_spin.setMaxValue(v);
    }

    std::string state() const {
        return std::to_string(m_nValue) + " in " + std::to_string(m_nMin) + ".." +
               std::to_string(m_nMax) + ", slider " + std::to_string(m_slider.value()) +
               ", spin box " + std::to_string(m_spin.value());
    }

    std::string steps() const {
        const std::string size = std::to_string(std::abs(m_nStep));
        return std::to_string(m_nStep) + ", page " + size + ", line " + size;
    }

    void SlotSetStep(int v) { m_nStep = v; }
    void stepUp() { m_spin.setValue(m_spin.value() + std::abs(m_nStep)); }
    void stepDown() { m_spin.setValue(m_spin.value() - std::abs(m_nStep)); }

    void SlotSliderPressed() { m_lines.push_back("page.SignalSliderPressed()"); }
    void SlotSliderMoved(int s) { tell("page.SignalSliderMoved", mirrored(s)); }
    void SlotSliderReleased() { m_lines.push_back("page.SignalSliderReleased()"); }

    void _SlotSetValue(int v) {
        SlotSetValue(v);
        tell("page.SignalValueChanged", v);
    }

    void _SlotSetValueFromSlider(int s) {
        m_nValue = mirrored(s);
        m_spin.setValue(m_nValue);
        m_slider.setValue(mirrored(m_nValue));
        tell("page.SignalValueChanged", m_nValue);
    }

private:
    int mirrored(int value) const { return m_bInverted ? m_nMin + m_nMax - value : value; }
    void tell(const char* name, int value) { m_lines.push_back(call(name, value)); }

    void fromSpinBox(int v) {
        _SlotSetValue(v);
        tell("spin.valueChanged", v);
    }

    void fromSlider(int s) {
        _SlotSetValueFromSlider(s);
        tell("slider.valueChanged", s);
    }

    bool m_bInverted;
    int m_nMin = 0;
    int m_nMax = 100;
    int m_nValue = 0;
    int m_nStep = 1;

public:
    CNumberModel m_slider;
    CNumberModel m_spin;

private:
    Lines& m_lines;
};

class CSpinboxSliderRandomTest : public testing::TestWithParam<bool> {};

struct StOperation {
    const char* name;
    void (*onBoth)(StRig& rig, CModel& model, int number);
};

const StOperation c_operations[] = {
    {"SlotSetValue",
     [](StRig& rig, CModel& model, int number) {
         rig.m_composite.SlotSetValue(number);
         model.SlotSetValue(number);
     }},
    {"SlotSetMinValue",
     [](StRig& rig, CModel& model, int number) {
         rig.m_composite.SlotSetMinValue(number);
         model.SlotSetMinValue(number);
     }},
    {"SlotSetMaxValue",
     [](StRig& rig, CModel& model, int number) {
         rig.m_composite.SlotSetMaxValue(number);
         model.SlotSetMaxValue(number);
     }},
    {"SlotSetStep",
     [](StRig& rig, CModel& model, int number) {
         rig.m_composite.SlotSetStep(number / 10);
         model.SlotSetStep(number / 10);
     }},
    {"slider.setValue",
     [](StRig& rig, CModel& model, int number) {
         rig.m_slider.setValue(number);
         model.m_slider.setValue(number);
     }},
    {"spin.setValue",
     [](StRig& rig, CModel& model, int number) {
         rig.m_spin.setValue(number);
         model.m_spin.setValue(number);
     }},
    {"spin.stepUp",
     [](StRig& rig, CModel& model, int) {
         rig.m_spin.stepUp();
         model.stepUp();
     }},
    {"spin.stepDown",
     [](StRig& rig, CModel& model, int) {
         rig.m_spin.stepDown();
         model.stepDown();
     }},
    {"_SlotSetValue",
     [](StRig& rig, CModel& model, int number) {
         rig.m_composite._SlotSetValue(number);
         model._SlotSetValue(number);
     }},
    {"_SlotSetValueFromSlider",
     [](StRig& rig, CModel& model, int number) {
         rig.m_composite._SlotSetValueFromSlider(number);
         model._SlotSetValueFromSlider(number);
     }},
    {"SlotSliderPressed",
     [](StRig& rig, CModel& model, int) {
         rig.m_composite.SlotSliderPressed();
         model.SlotSliderPressed();
     }},
    {"SlotSliderMoved",
     [](StRig& rig, CModel& model, int number) {
         rig.m_composite.SlotSliderMoved(number);
         model.SlotSliderMoved(number);
     }},
    {"SlotSliderReleased",
     [](StRig& rig, CModel& model, int) {
         rig.m_composite.SlotSliderReleased();
         model.SlotSliderReleased();
     }},
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, CSpinboxSliderRandomTest, testing::Bool(), nameOfMapping);

TEST_P(CSpinboxSliderRandomTest, AnySequenceOfOperationsGoesAsTheModelGoes) {
    const unsigned seed = GetParam() ? 4242 : 2424;
    std::mt19937 random(seed);
    Lines expected;
    CModel model(GetParam(), &expected);
    StRig rig(GetParam());

    for (int step = 0; step < 50000; ++step) { // 100,000 with both mappings
        const StOperation& chosen = c_operations[random() % std::size(c_operations)];
        const int number = std::uniform_int_distribution<int>(-60, 160)(random);
        chosen.onBoth(rig, model, number);
        const std::string operation = call(chosen.name, number);
        ASSERT_EQ(rig.lines(), expected)
            << "seed " << seed << ", step " << step << ": " << operation;
        ASSERT_EQ(rig.state(), model.state())
            << "seed " << seed << ", step " << step << ": " << operation;
        ASSERT_EQ(rig.steps(), model.steps());
        expected.clear();
    }
}
