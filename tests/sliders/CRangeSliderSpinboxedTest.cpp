#include <CRangeSliderSpinboxed.h>

#include "SpinboxedRig.h"
#include "VirtualPlaces.h"
#include "Wording.h"

#include <cstddef>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <utility>
#include <vector>

using support::Lines;
using TEVU::CRangeSlider;
using TEVU::CRangeSliderSpinboxed;

// Construction

TEST(CRangeSliderSpinboxedTest, ChildrenHaveTheirNamesTheFirstWithATrailingBlank) {
    const StRig rig;
    EXPECT_NE(rig.m_pSpin1, nullptr);
    EXPECT_NE(rig.m_pSpin2, nullptr);
    EXPECT_NE(rig.m_pSlider, nullptr);
    EXPECT_EQ(support::child<qt3::SpinBox>(rig.m_pComposite.get(), "spinbox1"), nullptr);
    EXPECT_EQ(rig.m_pSpin1->parentWidget(), &rig.m_composite);
    EXPECT_EQ(rig.m_pSpin2->parentWidget(), &rig.m_composite);
    EXPECT_EQ(rig.m_pSlider->parentWidget(), &rig.m_composite);
}

TEST(CRangeSliderSpinboxedTest, ChildrenComeInTheOrderInWhichTheyStand) {
    const StRig rig;
    EXPECT_TRUE(standInOrder(&rig.m_composite, {rig.m_pSpin1, rig.m_pSlider, rig.m_pSpin2}));
}

TEST(CRangeSliderSpinboxedTest, HasItsParentAndName) {
    const StRig rig;
    EXPECT_EQ(rig.m_composite.parentWidget(), &rig.m_window);
    EXPECT_STREQ(rig.m_composite.name(), "range");
}

TEST(CRangeSliderSpinboxedTest, SpinBoxesHaveTheBoundAndStepOne) {
    const StRig rig(false, {10, 20, 5, 50});
    for (const qt3::SpinBox* spin : {rig.m_pSpin1, rig.m_pSpin2}) {
        EXPECT_EQ(spin->minValue(), 5);
        EXPECT_EQ(spin->maxValue(), 50);
        EXPECT_EQ(spin->lineStep(), 1);
    }
}

namespace {

struct ConstructionRow {
    const char* name;
    std::function<CRangeSliderSpinboxed*(QWidget*)> make;
    bool vertical;
    const char* expected;
};

void PrintTo(const ConstructionRow& row, std::ostream* out) {
    *out << row.name;
}

class CRangeSliderSpinboxedConstructionTest : public testing::TestWithParam<ConstructionRow> {};

} // namespace

namespace {

const char* const c_defaults = "0..100 in 0..100, spin boxes 0 and 100, slider 0..100 in 0..100";
const char* const c_invertedDefaults =
    "0..100 in 0..100, spin boxes 100 and 0, slider 0..100 in 0..100";

} // namespace

TEST_P(CRangeSliderSpinboxedConstructionTest, Yields) {
    QWidget window;
    CRangeSliderSpinboxed* composite = GetParam().make(&window);
    EXPECT_EQ(stateOf(*composite), GetParam().expected);
    EXPECT_TRUE(composite->NullRangeEnabled());
    EXPECT_EQ(composite->parentWidget(), &window);
    EXPECT_STREQ(composite->name(), "range");
    const QSize hint = support::child<CRangeSlider>(composite, "rangeslider")->sizeHint();
    EXPECT_EQ(hint, GetParam().vertical ? QSize(16, 80) : QSize(80, 16));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CRangeSliderSpinboxedConstructionTest,
    testing::Values(
        ConstructionRow{"AllGiven",
                        [](QWidget* parent) {
                            return new CRangeSliderSpinboxed(Qt::Vertical, false, 7, 20, 5, 50,
                                                             parent, "range");
                        },
                        true, "7..20 in 5..50, spin boxes 7 and 20, slider 0..13 in 0..45"},
        ConstructionRow{"AllGivenInverted",
                        [](QWidget* parent) {
                            return new CRangeSliderSpinboxed(Qt::Horizontal, true, 7, 20, 5, 50,
                                                             parent, "range");
                        },
                        false, "7..20 in 5..50, spin boxes 20 and 7, slider 0..13 in 0..45"},
        ConstructionRow{"OrientationAndInverted",
                        [](QWidget* parent) {
                            return new CRangeSliderSpinboxed(Qt::Vertical, true, parent, "range");
                        },
                        true, c_invertedDefaults},
        ConstructionRow{"OrientationAlone",
                        [](QWidget* parent) {
                            return new CRangeSliderSpinboxed(Qt::Vertical, parent, "range");
                        },
                        true, c_defaults},
        ConstructionRow{
            "InvertedAlone",
            [](QWidget* parent) { return new CRangeSliderSpinboxed(true, parent, "range"); }, false,
            c_invertedDefaults},
        ConstructionRow{
            "NotInvertedAlone",
            [](QWidget* parent) { return new CRangeSliderSpinboxed(false, parent, "range"); },
            false, c_defaults},
        ConstructionRow{"NothingGiven",
                        [](QWidget* parent) { return new CRangeSliderSpinboxed(parent, "range"); },
                        false, c_defaults}),
    nameOfRow<ConstructionRow>);

TEST(CRangeSliderSpinboxedTest, MayBeMadeOfNothing) {
    const CRangeSliderSpinboxed composite;
    EXPECT_EQ(composite.parentWidget(), nullptr);
    EXPECT_STREQ(composite.name(), "unnamed");
    EXPECT_EQ(stateOf(composite), c_defaults);
}

TEST(CRangeSliderSpinboxedTest, SliderStartsAtItsBeginningWhateverTheLowerValueIs) {
    const StRig rig(false, {10, 20, 0, 100});
    EXPECT_EQ(rig.state(), "10..20 in 0..100, spin boxes 10 and 20, slider 0..10 in 0..100");
    EXPECT_EQ(rig.m_composite.GetRange(), 10);
}

TEST(CRangeSliderSpinboxedTest, MisalignedSliderRulesTheFirstChange) {
    StRig rig(false, {10, 20, 0, 100});

    rig.m_composite.SlotSetLower(12); // above the slider's upper end at offset 10

    EXPECT_EQ(rig.lines(), (Lines{"range.SignalValueChanged(10, 10)", "slider.ValueChanged(10, 10)",
                                  "range.SignalLowerChanged(10)", "slider.LowerChanged(10)"}));
    EXPECT_EQ(rig.state(), "10..20 in 0..100, spin boxes 10 and 20, slider 10..10 in 0..100");
}

// Layout

TEST(CRangeSliderSpinboxedTest, HorizontallyTheChildrenStandSideBySideWithoutGaps) {
    StRig rig;
    rig.m_composite.resize(400, 60);
    support::show(&rig.m_window);
    EXPECT_EQ(rig.m_pSpin1->x(), 0);
    EXPECT_EQ(rig.m_pSlider->x(), rig.m_pSpin1->x() + rig.m_pSpin1->width());
    EXPECT_EQ(rig.m_pSpin2->x(), rig.m_pSlider->x() + rig.m_pSlider->width());
    EXPECT_EQ(rig.m_pSpin2->x() + rig.m_pSpin2->width(), 400);
}

TEST(CRangeSliderSpinboxedTest, VerticallyTheChildrenStandBelowEachOtherAndCentred) {
    StRig rig(false, c_plain, Qt::Vertical);
    rig.m_composite.resize(100, 400);
    support::show(&rig.m_window);
    EXPECT_EQ(rig.m_pSpin1->y(), 0);
    EXPECT_EQ(rig.m_pSlider->y(), rig.m_pSpin1->y() + rig.m_pSpin1->height());
    EXPECT_EQ(rig.m_pSpin2->y(), rig.m_pSlider->y() + rig.m_pSlider->height());
    EXPECT_EQ(rig.m_pSpin2->y() + rig.m_pSpin2->height(), 400);
    for (const QWidget* child :
         {static_cast<QWidget*>(rig.m_pSpin1), static_cast<QWidget*>(rig.m_pSlider),
          static_cast<QWidget*>(rig.m_pSpin2)})
        EXPECT_NEAR(child->x() + child->width() / 2, 50, 1);
}

TEST(CRangeSliderSpinboxedTest, SpinBoxesKeepTheSizeTheyHadForTheFirstBound) {
    StRig rig(false, {0, 20, 0, 100});
    const QSize hint = qt3::SpinBox(0, 100, 1, &rig.m_window).sizeHint();
    rig.m_composite.SlotSetMax(100000000);
    for (const qt3::SpinBox* spin : {rig.m_pSpin1, rig.m_pSpin2}) {
        EXPECT_EQ(spin->minimumSize(), hint);
        EXPECT_EQ(spin->maximumSize(), hint);
    }
}

// Null range

TEST(CRangeSliderSpinboxedTest, NullRangeIsTheSliders) {
    StRig rig;
    const CRangeSliderSpinboxed& readOnly = rig.m_composite;
    readOnly.SlotDisableNullRange();
    EXPECT_FALSE(rig.m_composite.NullRangeEnabled());
    EXPECT_FALSE(rig.m_pSlider->NullRangeEnabled());
    readOnly.SlotEnableNullRange();
    EXPECT_TRUE(rig.m_composite.NullRangeEnabled());
    EXPECT_TRUE(rig.m_pSlider->NullRangeEnabled());
    EXPECT_EQ(rig.lines(), Lines());
}

TEST(CRangeSliderSpinboxedTest, DisabledNullRangeIsRepairedInUserValues) {
    StRig rig(false, {10, 30, 10, 110});
    rig.m_composite.SlotSetRange(20, 20);
    rig.lines();

    rig.m_composite.SlotDisableNullRange();

    EXPECT_EQ(rig.lines(), (Lines{"range.SignalValueChanged(20, 21)", "slider.ValueChanged(10, 11)",
                                  "spin2.valueChanged(21)", "range.SignalUpperChanged(21)",
                                  "slider.UpperChanged(11)"}));
    EXPECT_EQ(rig.m_composite.GetRange(), 1);
}

// Typing and dragging

namespace {

void typeInto(qt3::SpinBox* spin, const char* text) {
    support::giveFocus(spin);
    spin->selectAll();
    support::typeText(spin, text);
}

} // namespace

TEST(CRangeSliderSpinboxedTest, TypedValueCountsWithReturn) {
    StRig rig;
    typeInto(rig.m_pSpin1, "15");
    EXPECT_EQ(rig.lines(), Lines());

    support::typeText(rig.m_pSpin1, "\n");

    EXPECT_EQ(rig.lines(), (Lines{"range.SignalValueChanged(15, 20)", "slider.ValueChanged(15, 20)",
                                  "range.SignalLowerChanged(15)", "slider.LowerChanged(15)",
                                  "spin1.valueChanged(15)"}));
}

TEST(CRangeSliderSpinboxedTest, TypedValuePastTheUpperIsSetBack) {
    StRig rig;

    typeInto(rig.m_pSpin1, "50\n");

    EXPECT_EQ(rig.lines(), (Lines{"range.SignalValueChanged(20, 20)", "slider.ValueChanged(20, 20)",
                                  "spin1.valueChanged(20)", "range.SignalLowerChanged(20)",
                                  "slider.LowerChanged(20)", "spin1.valueChanged(50)"}));
    EXPECT_EQ(rig.state(), "20..20 in 0..100, spin boxes 20 and 20, slider 20..20 in 0..100");
    EXPECT_EQ(support::text(rig.m_pSpin1->text()), "20");
}

TEST(CRangeSliderSpinboxedTest, TypedValueIsTheUpperOneWhenInverted) {
    StRig rig(true);

    typeInto(rig.m_pSpin1, "95\n");

    EXPECT_EQ(rig.state(), "80..95 in 0..100, spin boxes 95 and 80, slider 5..20 in 0..100");
}

TEST(CRangeSliderSpinboxedTest, DraggedHandleChangesItsSpinBox) {
    StRig rig(true);
    rig.m_pSlider->setFixedWidth(132); // 100 pixels between the handles, which are at 0 and 36
    support::show(&rig.m_window);
    rig.lines();

    support::mouseDrag(rig.m_pSlider, QPoint(8, 8), QPoint(12, 8));

    EXPECT_EQ(rig.lines(), (Lines{"range.SignalValueChanged(80, 95)", "slider.ValueChanged(5, 20)",
                                  "spin1.valueChanged(95)", "range.SignalUpperChanged(95)",
                                  "slider.LowerChanged(5)"}));
}

// Meta-object

namespace {

/// Tells the calls of the private slots, and does nothing else in them.
class CTellingComposite : public CRangeSliderSpinboxed {
public:
    CTellingComposite() : CRangeSliderSpinboxed(false, nullptr, "range") {}

    Lines take() { return std::exchange(m_vLines, Lines()); }

    static std::vector<std::ptrdiff_t> places() {
        using support::placeOf;
        using CTelling = CTellingComposite;
        return {placeOf(&CTelling::SlotChangeValSpinBox1),
                placeOf(&CTelling::SlotChangeValSpinBox2),
                placeOf(&CTelling::SlotChangeValRangeSliderLower),
                placeOf(&CTelling::SlotChangeValRangeSliderUpper),
                placeOf(&CTelling::SlotChangeValRangeSlider),
                placeOf(&CTelling::SlotCorrectSignalValueChanged),
                placeOf(&CTelling::SlotCorrectSignalLowerChanged),
                placeOf(&CTelling::SlotCorrectSignalUpperChanged)};
    }

private:
    void SlotChangeValSpinBox1(int o) override { tell(call("ChangeValSpinBox1", o)); }
    void SlotChangeValSpinBox2(int o) override { tell(call("ChangeValSpinBox2", o)); }
    void SlotChangeValRangeSliderLower(int v) override {
        tell(call("ChangeValRangeSliderLower", v));
    }
    void SlotChangeValRangeSliderUpper(int v) override {
        tell(call("ChangeValRangeSliderUpper", v));
    }
    void SlotChangeValRangeSlider(int a, int b) override {
        tell(call("ChangeValRangeSlider", a, b));
    }
    void SlotCorrectSignalValueChanged(int l, int u) override {
        tell(call("CorrectSignalValueChanged", l, u));
    }
    void SlotCorrectSignalLowerChanged(int l) override {
        tell(call("CorrectSignalLowerChanged", l));
    }
    void SlotCorrectSignalUpperChanged(int u) override {
        tell(call("CorrectSignalUpperChanged", u));
    }

    void tell(const std::string& line) { m_vLines.push_back(line); }

    Lines m_vLines;
};

} // namespace

TEST(CRangeSliderSpinboxedTest, MetaObjectTellsTheClass) {
    const CRangeSliderSpinboxed composite;
    EXPECT_EQ(qt3::className(&composite), "TEVU::CRangeSliderSpinboxed");
    EXPECT_EQ(qt3::superClassName(&composite), "QWidget");
    EXPECT_EQ(qt3::furtherEntries(&composite), 0);
}

TEST(CRangeSliderSpinboxedTest, SlotsAndSignalsHaveTheirOrderAndAccess) {
    const CRangeSliderSpinboxed composite;
    EXPECT_EQ(
        tableLines(qt3::slotTable(&composite)),
        (Lines{"public SlotSetLower(int)", "public SlotSetUpper(int)",
               "public SlotSetRange(int,int)", "public SlotSetMin(int)", "public SlotSetMax(int)",
               "public SlotSetBound(int,int)", "public SlotEnableNullRange()",
               "public SlotDisableNullRange()", "private SlotChangeValSpinBox1(int)",
               "private SlotChangeValSpinBox2(int)", "private SlotChangeValRangeSliderLower(int)",
               "private SlotChangeValRangeSliderUpper(int)",
               "private SlotChangeValRangeSlider(int,int)",
               "private SlotCorrectSignalValueChanged(int,int)",
               "private SlotCorrectSignalLowerChanged(int)",
               "private SlotCorrectSignalUpperChanged(int)"}));
    EXPECT_EQ(tableLines(qt3::signalTable(&composite)),
              (Lines{"public SignalValueChanged(int,int)", "public SignalLowerChanged(int)",
                     "public SignalUpperChanged(int)"}));
}

TEST(CRangeSliderSpinboxedTest, PrivateSlotsStandInTheOrderOfTheTable) {
    EXPECT_TRUE(support::standInARow(CTellingComposite::places()))
        << testing::PrintToString(CTellingComposite::places());
}

TEST(CRangeSliderSpinboxedTest, ConnectionsCallTheOverridesInTheirOrder) {
    CTellingComposite composite;
    auto* slider = support::child<CRangeSlider>(&composite, "rangeslider");

    slider->SetRange(10, 60);
    EXPECT_EQ(composite.take(), (Lines{"CorrectSignalValueChanged(10, 60)", "ChangeValSpinBox1(10)",
                                       "CorrectSignalLowerChanged(10)", "ChangeValSpinBox2(60)",
                                       "CorrectSignalUpperChanged(60)"}));

    support::child<qt3::SpinBox>(&composite, "spinbox1 ")->setValue(7);
    support::child<qt3::SpinBox>(&composite, "spinbox2")->setValue(70);
    EXPECT_EQ(composite.take(),
              (Lines{"ChangeValRangeSliderLower(7)", "ChangeValRangeSliderUpper(70)"}));
}

TEST(CRangeSliderSpinboxedTest, SettersCallTheOverrides) {
    CTellingComposite composite;

    composite.SlotSetLower(5);
    composite.SlotSetUpper(50);
    composite.SlotSetRange(6, 60);

    EXPECT_EQ(composite.take(),
              (Lines{"ChangeValRangeSliderLower(5)", "ChangeValRangeSliderUpper(50)",
                     "ChangeValRangeSlider(6, 60)"}));
}

TEST(CRangeSliderSpinboxedTest, BoundsReachTheSliderWithoutTheOverrides) {
    CTellingComposite composite;

    composite.SlotSetBound(0, 200);

    EXPECT_EQ(composite.take(), Lines());
}

TEST(CRangeSliderSpinboxedTest, PrivateSlotsAreReachedByTheirText) {
    StRig rig;
    qt3::SpinBox source(0, 100, 1, &rig.m_window);
    ASSERT_TRUE(QObject::connect(&source, "2valueChanged( int )", &rig.m_composite,
                                 "1SlotChangeValRangeSliderUpper( int )"));
    ASSERT_TRUE(QObject::connect(&source, "2valueChanged( int )", &rig.m_composite,
                                 "1SlotCorrectSignalLowerChanged( int )"));

    source.setValue(50);

    EXPECT_EQ(rig.lines(), (Lines{"range.SignalValueChanged(0, 50)", "slider.ValueChanged(0, 50)",
                                  "spin2.valueChanged(50)", "range.SignalUpperChanged(50)",
                                  "slider.UpperChanged(50)", "range.SignalLowerChanged(50)"}));
}

TEST(CRangeSliderSpinboxedTest, SlotsWithTwoArgumentsAreReachedByTheirText) {
    StRig rig(true);
    CRangeSlider source(Qt::Horizontal, 0, 100, 0, 100, &rig.m_window, "source");
    ASSERT_TRUE(QObject::connect(&source, "2ValueChanged( int, int )", &rig.m_composite,
                                 "1SlotChangeValRangeSlider( int, int )"));

    source.SetRange(40, 90);

    // The slot takes the values of the first and the second spin box, whichever is greater.
    EXPECT_EQ(rig.state(), "41..40 in 0..100, spin boxes 40 and 41, slider 60..59 in 0..100");
}

// Copies

TEST(CRangeSliderSpinboxedCopyTest, HasTheStateOfItsOriginalAndNoChildren) {
    StRig rig(true);
    rig.m_composite.SlotSetRange(30, 60);

    CRangeSliderSpinboxed copy(rig.m_composite);

    EXPECT_EQ(copy.GetLower(), 30);
    EXPECT_EQ(copy.GetUpper(), 60);
    EXPECT_EQ(copy.GetMin(), 0);
    EXPECT_EQ(copy.GetMax(), 100);
    EXPECT_EQ(copy.parentWidget(), &rig.m_window);
    EXPECT_STREQ(copy.name(), "range");
    EXPECT_EQ(support::child<CRangeSlider>(&copy), nullptr);
    EXPECT_EQ(support::child<qt3::SpinBox>(&copy), nullptr);
}

TEST(CRangeSliderSpinboxedCopyTest, SetsTheChildrenOfItsOriginalWhoseSignalsStay) {
    StRig rig;
    CRangeSliderSpinboxed copy(rig.m_composite);
    rig.m_recorder.tapAll(&copy, "copy");

    copy.SlotSetLower(5);

    EXPECT_EQ(rig.lines(), (Lines{"range.SignalValueChanged(5, 20)", "slider.ValueChanged(5, 20)",
                                  "spin1.valueChanged(5)", "range.SignalLowerChanged(5)",
                                  "slider.LowerChanged(5)"}));
    EXPECT_EQ(copy.GetLower(), 5);
}

TEST(CRangeSliderSpinboxedCopyTest, OriginalAndCopyEndInEitherOrder) {
    QWidget window;
    auto original = std::make_unique<CRangeSliderSpinboxed>(&window, "range");
    { const CRangeSliderSpinboxed shortLived(*original); }
    original->SlotSetLower(5);
    EXPECT_EQ(original->GetLower(), 5);

    const CRangeSliderSpinboxed copy(*original);
    original.reset();
    EXPECT_EQ(copy.GetLower(), 5);
}

TEST(CRangeSliderSpinboxedCopyTest, AssignmentTakesOverTheStateAndTheChildren) {
    StRig source;
    StRig target(true);

    target.m_composite = source.m_composite;

    EXPECT_EQ(target.m_composite.GetLower(), 0);
    EXPECT_EQ(target.m_composite.GetUpper(), 20);
    target.m_composite.SlotSetUpper(50);
    EXPECT_EQ(source.m_pSlider->Upper(), 50);
    EXPECT_EQ(target.m_pSlider->Upper(), 20);
}
