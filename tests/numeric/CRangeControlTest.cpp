#include <CRangeControl.h>

#include <VirtualPlaces.h>
#include <Warnings.h>
#include <cmath>
#include <cstddef>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>
#include <ostream>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

namespace {

const double c_nan = std::numeric_limits<double>::quiet_NaN();
const double c_infinity = std::numeric_limits<double>::infinity();

bool same(double a, double b) {
    return (std::isnan(a) && std::isnan(b)) || (a == b && std::signbit(a) == std::signbit(b));
}

enum class Hook { value, range, step };

// One hook call, with all that the hook could see.
struct Call {
    Hook hook;
    double value;
    double previous;
    double minimum;
    double maximum;
    double lineStep;
    double pageStep;
};

bool operator==(const Call& a, const Call& b) {
    return a.hook == b.hook && same(a.value, b.value) && same(a.previous, b.previous) &&
           same(a.minimum, b.minimum) && same(a.maximum, b.maximum) &&
           same(a.lineStep, b.lineStep) && same(a.pageStep, b.pageStep);
}

std::ostream& operator<<(std::ostream& out, const Call& call) {
    const char* const names[] = {"valueChange", "rangeChange", "stepChange"};
    return out << names[static_cast<int>(call.hook)] << "(value " << call.value << ", previous "
               << call.previous << ", range [" << call.minimum << ", " << call.maximum
               << "], steps " << call.lineStep << " and " << call.pageStep << ")";
}

using Calls = std::vector<Call>;
using Lines = std::vector<std::string>;

// Writes down every hook call; what the test wants to do inside of rangeChange() comes after that.
class Control : public TEVU::CRangeControl {
public:
    using CRangeControl::CRangeControl;

    using CRangeControl::directSetValue;
    using CRangeControl::prevValue;

    Calls calls;
    std::function<void()> insideRangeChange;

protected:
    void valueChange() override { note(Hook::value); }

    void rangeChange() override {
        note(Hook::range);
        if (insideRangeChange)
            insideRangeChange();
    }

    void stepChange() override { note(Hook::step); }

private:
    void note(Hook hook) {
        calls.push_back(
            {hook, value(), prevValue(), minValue(), maxValue(), lineStep(), pageStep()});
    }
};

Control controlAt(double value) {
    Control control;
    control.directSetValue(value);
    return control;
}

TEST(CRangeControlTest, DefaultIsZeroInZeroToNinetyNineWithStepsOneAndTen) {
    const Control control;

    EXPECT_EQ(control.minValue(), 0.0);
    EXPECT_EQ(control.maxValue(), 99.0);
    EXPECT_EQ(control.lineStep(), 1.0);
    EXPECT_EQ(control.pageStep(), 10.0);
    EXPECT_EQ(control.value(), 0.0);
    EXPECT_EQ(control.prevValue(), -1.0);
}

TEST(CRangeControlTest, FiveArgumentsDropTheSignsOfTheStepsAndClampTheValue) {
    const Control control(0.0, 10.0, -2.0, -5.0, 20.0);

    EXPECT_EQ(control.minValue(), 0.0);
    EXPECT_EQ(control.maxValue(), 10.0);
    EXPECT_EQ(control.lineStep(), 2.0);
    EXPECT_EQ(control.pageStep(), 5.0);
    EXPECT_EQ(control.value(), 10.0);
    EXPECT_EQ(control.prevValue(), -1.0);
}

TEST(CRangeControlTest, PreviousValueStartsOneBelowTheMinimumWhateverTheValue) {
    const Control control(-7.5, 10.0, 1.0, 1.0, 3.0);

    EXPECT_EQ(control.value(), 3.0);
    EXPECT_EQ(control.prevValue(), -8.5);
}

TEST(CRangeControlTest, FiveArgumentsClampAValueBelowTheMinimumToIt) {
    const Control control(2.0, 10.0, 1.0, 1.0, -4.0);

    EXPECT_EQ(control.value(), 2.0);
}

TEST(CRangeControlTest, ReversedFiveArgumentRangeIsKeptWithoutWarningAndYieldsTheMinimum) {
    const support::Warnings warnings;

    const Control control(10.0, 0.0, 1.0, 1.0, 5.0);

    EXPECT_EQ(control.minValue(), 10.0);
    EXPECT_EQ(control.maxValue(), 0.0);
    EXPECT_EQ(control.value(), 10.0);
    EXPECT_EQ(control.prevValue(), 9.0);
    EXPECT_EQ(warnings.lines(), Lines());
}

TEST(CRangeControlTest, IsDestroyedThroughItsBase) {
    EXPECT_TRUE(std::has_virtual_destructor<TEVU::CRangeControl>::value);
}

/// Tells where the hooks stand.
class CPlaces : public TEVU::CRangeControl {
public:
    static std::vector<std::ptrdiff_t> take() {
        return {support::placeOf(&CPlaces::valueChange), support::placeOf(&CPlaces::rangeChange),
                support::placeOf(&CPlaces::stepChange)};
    }
};

TEST(CRangeControlTest, HooksStandInTheirOrderBehindTheDestructor) {
    EXPECT_EQ(CPlaces::take(),
              (std::vector<std::ptrdiff_t>{2, 3, 4})); // a destructor has two places
}

TEST(CRangeControlTest, HooksOfTheClassItselfDoNothing) {
    TEVU::CRangeControl control;

    control.setRange(5.0, 8.0);
    control.setSteps(2.0, 3.0);
    control.setValue(7.0);

    EXPECT_EQ(control.minValue(), 5.0);
    EXPECT_EQ(control.maxValue(), 8.0);
    EXPECT_EQ(control.lineStep(), 2.0);
    EXPECT_EQ(control.pageStep(), 3.0);
    EXPECT_EQ(control.value(), 7.0);
}

template <class Row>
std::string nameOfRow(const testing::TestParamInfo<Row>& info) {
    return info.param.name;
}

struct BoundRow {
    const char* name;
    double minimum, maximum, given, expected;
};

void PrintTo(const BoundRow& row, std::ostream* out) {
    *out << row.name;
}

class CRangeControlBoundTest : public testing::TestWithParam<BoundRow> {};

TEST_P(CRangeControlBoundTest, Yields) {
    const BoundRow& row = GetParam();
    const Control control(row.minimum, row.maximum, 1.0, 1.0, row.minimum);

    EXPECT_TRUE(same(control.bound(row.given), row.expected)) << control.bound(row.given);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CRangeControlBoundTest,
    testing::Values(BoundRow{"InsideAsItIs", 0.0, 10.0, 3.25, 3.25},
                    BoundRow{"BelowTheMinimum", 0.0, 10.0, -0.5, 0.0},
                    BoundRow{"AboveTheMaximum", 0.0, 10.0, 10.5, 10.0},
                    BoundRow{"TheMinimum", -2.0, 10.0, -2.0, -2.0},
                    BoundRow{"TheMaximum", -2.0, 10.0, 10.0, 10.0},
                    BoundRow{"NegativeZeroAtAMinimumOfZero", 0.0, 10.0, -0.0, -0.0},
                    BoundRow{"Infinity", 0.0, 10.0, c_infinity, 10.0},
                    BoundRow{"MinusInfinity", 0.0, 10.0, -c_infinity, 0.0},
                    BoundRow{"NaNUnchanged", 0.0, 10.0, c_nan, c_nan},
                    BoundRow{"ReversedBelowBothIsTheMinimum", 10.0, 0.0, -3.0, 10.0},
                    BoundRow{"ReversedBetweenIsTheMinimum", 10.0, 0.0, 5.0, 10.0},
                    BoundRow{"ReversedAtTheMinimumIsTheMaximum", 10.0, 0.0, 10.0, 0.0},
                    BoundRow{"ReversedAboveBothIsTheMaximum", 10.0, 0.0, 11.0, 0.0},
                    BoundRow{"ReversedNaNUnchanged", 10.0, 0.0, c_nan, c_nan}),
    nameOfRow<BoundRow>);

TEST(CRangeControlTest, BoundHasNoSideEffect) {
    Control control = controlAt(7.0);

    control.bound(1000.0);

    EXPECT_EQ(control.value(), 7.0);
    EXPECT_EQ(control.prevValue(), 0.0);
    EXPECT_EQ(control.calls, Calls());
}

TEST(CRangeControlTest, NewValueIsAnnouncedOnceWithThePreviousOneInPlace) {
    Control control = controlAt(7.0);

    control.setValue(12.5);

    EXPECT_EQ(control.calls, (Calls{{Hook::value, 12.5, 7.0, 0.0, 99.0, 1.0, 10.0}}));
    EXPECT_EQ(control.value(), 12.5);
    EXPECT_EQ(control.prevValue(), 7.0);
}

TEST(CRangeControlTest, CurrentValueSetAgainIsNotAnnouncedButBecomesThePreviousOne) {
    Control control = controlAt(7.0);

    control.setValue(7.0);

    EXPECT_EQ(control.calls, Calls());
    EXPECT_EQ(control.value(), 7.0);
    EXPECT_EQ(control.prevValue(), 7.0);
}

TEST(CRangeControlTest, ValueBeyondTheRangeIsClampedBeforeItIsAnnounced) {
    Control control = controlAt(7.0);

    control.setValue(1000.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::value, 99.0, 7.0, 0.0, 99.0, 1.0, 10.0}}));
    EXPECT_EQ(control.value(), 99.0);
}

TEST(CRangeControlTest, ValueThatIsClampedToTheCurrentOneIsNotAnnounced) {
    Control control = controlAt(99.0);

    control.setValue(1000.0);

    EXPECT_EQ(control.calls, Calls());
    EXPECT_EQ(control.value(), 99.0);
    EXPECT_EQ(control.prevValue(), 99.0);
}

TEST(CRangeControlTest, NothingIsRoundedOrSnappedToAStep) {
    Control control;

    control.setValue(0.1 + 0.2);

    EXPECT_EQ(control.value(), 0.1 + 0.2);
}

TEST(CRangeControlTest, NaNIsStoredAndAnnounced) {
    Control control = controlAt(7.0);

    control.setValue(c_nan);

    EXPECT_EQ(control.calls, (Calls{{Hook::value, c_nan, 7.0, 0.0, 99.0, 1.0, 10.0}}));
    EXPECT_TRUE(std::isnan(control.value()));
    EXPECT_EQ(control.prevValue(), 7.0);
}

TEST(CRangeControlTest, NaNSetAgainIsAnnouncedAgainBecauseItComparesUnequal) {
    Control control = controlAt(c_nan);

    control.setValue(c_nan);

    EXPECT_EQ(control.calls, (Calls{{Hook::value, c_nan, c_nan, 0.0, 99.0, 1.0, 10.0}}));
}

TEST(CRangeControlTest, ValueAfterNaNIsAnnouncedWithNaNAsThePreviousOne) {
    Control control = controlAt(c_nan);

    control.setValue(7.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::value, 7.0, c_nan, 0.0, 99.0, 1.0, 10.0}}));
}

TEST(CRangeControlTest, DirectlySetValueIsClampedAndNotAnnounced) {
    Control control = controlAt(7.0);

    control.directSetValue(-5.0);

    EXPECT_EQ(control.calls, Calls());
    EXPECT_EQ(control.value(), 0.0);
    EXPECT_EQ(control.prevValue(), 7.0);
}

TEST(CRangeControlTest, CurrentValueDirectlySetAgainBecomesThePreviousOne) {
    Control control = controlAt(7.0);

    control.directSetValue(7.0);

    EXPECT_EQ(control.calls, Calls());
    EXPECT_EQ(control.value(), 7.0);
    EXPECT_EQ(control.prevValue(), 7.0);
}

struct StepRow {
    const char* name;
    void (TEVU::CRangeControl::*step)();
    double from, to;
};

void PrintTo(const StepRow& row, std::ostream* out) {
    *out << row.name;
}

class CRangeControlStepTest : public testing::TestWithParam<StepRow> {};

TEST_P(CRangeControlStepTest, MovesAndAnnouncesOnce) {
    const StepRow& row = GetParam();
    Control control(0.0, 20.0, 1.5, 4.0, row.from);

    (control.*row.step)();

    EXPECT_EQ(control.calls, (Calls{{Hook::value, row.to, row.from, 0.0, 20.0, 1.5, 4.0}}));
    EXPECT_EQ(control.value(), row.to);
    EXPECT_EQ(control.prevValue(), row.from);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CRangeControlStepTest,
    testing::Values(StepRow{"LineUp", &TEVU::CRangeControl::addLine, 10.0, 11.5},
                    StepRow{"LineDown", &TEVU::CRangeControl::subtractLine, 10.0, 8.5},
                    StepRow{"PageUp", &TEVU::CRangeControl::addPage, 10.0, 14.0},
                    StepRow{"PageDown", &TEVU::CRangeControl::subtractPage, 10.0, 6.0},
                    StepRow{"LineUpPastTheMaximum", &TEVU::CRangeControl::addLine, 19.0, 20.0},
                    StepRow{"LineDownPastTheMinimum", &TEVU::CRangeControl::subtractLine, 1.0, 0.0},
                    StepRow{"PageUpPastTheMaximum", &TEVU::CRangeControl::addPage, 17.0, 20.0},
                    StepRow{"PageDownPastTheMinimum", &TEVU::CRangeControl::subtractPage, 3.0,
                            0.0}),
    nameOfRow<StepRow>);

class CRangeControlStepAtTheEndTest : public testing::TestWithParam<StepRow> {};

TEST_P(CRangeControlStepAtTheEndTest, NeitherMovesNorAnnouncesButSetsThePreviousValue) {
    const StepRow& row = GetParam();
    Control control(0.0, 20.0, 1.5, 4.0, row.from);

    (control.*row.step)();

    EXPECT_EQ(control.calls, Calls());
    EXPECT_EQ(control.value(), row.to);
    EXPECT_EQ(control.prevValue(), row.to);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CRangeControlStepAtTheEndTest,
    testing::Values(StepRow{"LineUp", &TEVU::CRangeControl::addLine, 20.0, 20.0},
                    StepRow{"LineDown", &TEVU::CRangeControl::subtractLine, 0.0, 0.0},
                    StepRow{"PageUp", &TEVU::CRangeControl::addPage, 20.0, 20.0},
                    StepRow{"PageDown", &TEVU::CRangeControl::subtractPage, 0.0, 0.0}),
    nameOfRow<StepRow>);

TEST(CRangeControlTest, PageOfTenDownFromThreeStopsAtZeroAndIsAnnouncedOnce) {
    Control control = controlAt(3.0);

    control.subtractPage();

    EXPECT_EQ(control.calls, (Calls{{Hook::value, 0.0, 3.0, 0.0, 99.0, 1.0, 10.0}}));
}

TEST(CRangeControlTest, RangeThatHoldsTheValueIsAnnouncedAlone) {
    Control control = controlAt(7.0);

    control.setRange(5.0, 8.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::range, 7.0, 0.0, 5.0, 8.0, 1.0, 10.0}}));
    EXPECT_EQ(control.value(), 7.0);
    EXPECT_EQ(control.prevValue(), 0.0); // no value-setting operation: stays
}

TEST(CRangeControlTest, RangeThatMovesTheValueUpIsAnnouncedBeforeTheValue) {
    Control control = controlAt(2.0);

    control.setRange(5.0, 8.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::range, 2.0, 0.0, 5.0, 8.0, 1.0, 10.0},
                                    {Hook::value, 5.0, 2.0, 5.0, 8.0, 1.0, 10.0}}));
    EXPECT_EQ(control.prevValue(), 2.0);
}

TEST(CRangeControlTest, RangeThatMovesTheValueDownIsAnnouncedBeforeTheValue) {
    Control control = controlAt(50.0);

    control.setRange(5.0, 8.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::range, 50.0, 0.0, 5.0, 8.0, 1.0, 10.0},
                                    {Hook::value, 8.0, 50.0, 5.0, 8.0, 1.0, 10.0}}));
}

TEST(CRangeControlTest, RangeInForceIsNotAnnounced) {
    Control control = controlAt(7.0);

    control.setRange(0.0, 99.0);

    EXPECT_EQ(control.calls, Calls());
    EXPECT_EQ(control.prevValue(), 0.0);
}

TEST(CRangeControlTest, OneNewBoundIsEnoughToAnnounceTheRange) {
    Control control = controlAt(7.0);

    control.setRange(0.0, 98.0);
    control.setRange(1.0, 98.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::range, 7.0, 0.0, 0.0, 98.0, 1.0, 10.0},
                                    {Hook::range, 7.0, 0.0, 1.0, 98.0, 1.0, 10.0}}));
}

TEST(CRangeControlTest, ReversedRangeIsReportedAndCollapsesToTheMinimum) {
    Control control = controlAt(2.0);
    const support::Warnings warnings;

    control.setRange(5.0, 1.0);

    EXPECT_EQ(warnings.lines(),
              (Lines{"CRangeControl::setRange: minValue 5.000000 > maxValue 1.000000"}));
    EXPECT_EQ(control.calls, (Calls{{Hook::range, 2.0, 0.0, 5.0, 5.0, 1.0, 10.0},
                                    {Hook::value, 5.0, 2.0, 5.0, 5.0, 1.0, 10.0}}));
    EXPECT_EQ(control.minValue(), 5.0);
    EXPECT_EQ(control.maxValue(), 5.0);
}

TEST(CRangeControlTest, ReversedRangeIsReportedAlsoWhenItCollapsesToTheRangeInForce) {
    Control control(5.0, 5.0, 1.0, 10.0, 5.0);
    const support::Warnings warnings;

    control.setRange(5.0, -0.25);

    EXPECT_EQ(warnings.lines(),
              (Lines{"CRangeControl::setRange: minValue 5.000000 > maxValue -0.250000"}));
    EXPECT_EQ(control.calls, Calls());
}

TEST(CRangeControlTest, ReportRoundsTiesToEvenAndKeepsTheSignOfZeroAsPrintfDoes) {
    Control control = controlAt(2.0);
    const support::Warnings warnings;

    control.setRange(85884.1640625, -0.0);
    control.setRange(0.0000015, -0.0000005);

    EXPECT_EQ(warnings.lines(),
              (Lines{"CRangeControl::setRange: minValue 85884.164062 > maxValue -0.000000",
                     "CRangeControl::setRange: minValue 0.000002 > maxValue -0.000000"}));
}

TEST(CRangeControlTest, ReportWritesLargeNumbersInFullAndInfinitiesAsPrintfDoes) {
    Control control = controlAt(2.0);
    const support::Warnings warnings;

    control.setRange(1e22, -1e20);
    control.setRange(c_infinity, -c_infinity);

    EXPECT_EQ(warnings.lines(),
              (Lines{"CRangeControl::setRange: minValue 10000000000000000000000.000000 > maxValue "
                     "-100000000000000000000.000000",
                     "CRangeControl::setRange: minValue inf > maxValue -inf"}));
}

TEST(CRangeControlTest, RangeOfOnePointIsNotReversed) {
    Control control = controlAt(2.0);
    const support::Warnings warnings;

    control.setRange(3.0, 3.0);

    EXPECT_EQ(warnings.lines(), Lines());
    EXPECT_EQ(control.value(), 3.0);
}

TEST(CRangeControlTest, ReversedRangeOfTheConstructorIsReportedWhenItIsSetAgain) {
    Control control(10.0, 0.0, 1.0, 1.0, 5.0);
    const support::Warnings warnings;

    control.setRange(10.0, 0.0);

    EXPECT_EQ(warnings.lines().size(), 1u);
    EXPECT_EQ(control.calls, (Calls{{Hook::range, 10.0, 9.0, 10.0, 10.0, 1.0, 1.0}}));
}

TEST(CRangeControlTest, NaNValueIsAnnouncedAfterEachNewRangeBecauseItComparesUnequal) {
    Control control = controlAt(c_nan);

    control.setRange(5.0, 8.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::range, c_nan, 0.0, 5.0, 8.0, 1.0, 10.0},
                                    {Hook::value, c_nan, c_nan, 5.0, 8.0, 1.0, 10.0}}));
}

TEST(CRangeControlTest, RangeHookThatMovesAValueInsideTheRangeIsUndoneAndAnnounced) {
    Control control = controlAt(6.0);
    control.insideRangeChange = [&] { control.setValue(7.0); };

    control.setRange(5.0, 8.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::range, 6.0, 0.0, 5.0, 8.0, 1.0, 10.0},
                                    {Hook::value, 7.0, 6.0, 5.0, 8.0, 1.0, 10.0},
                                    {Hook::value, 6.0, 7.0, 5.0, 8.0, 1.0, 10.0}}));
    EXPECT_EQ(control.value(), 6.0);
    EXPECT_EQ(control.prevValue(), 7.0);
}

TEST(CRangeControlTest, RangeHookThatMovesAValueOutsideTheRangeLeavesTheClampedOneInTheEnd) {
    Control control = controlAt(2.0);
    control.insideRangeChange = [&] { control.directSetValue(7.0); };

    control.setRange(5.0, 8.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::range, 2.0, 0.0, 5.0, 8.0, 1.0, 10.0},
                                    {Hook::value, 5.0, 7.0, 5.0, 8.0, 1.0, 10.0}}));
}

TEST(CRangeControlTest, RangeHookThatSetsTheClampedValueItselfLeavesNothingToAnnounce) {
    Control control = controlAt(2.0);
    control.insideRangeChange = [&] { control.directSetValue(5.0); };

    control.setRange(5.0, 8.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::range, 2.0, 0.0, 5.0, 8.0, 1.0, 10.0}}));
    EXPECT_EQ(control.value(), 5.0);
    EXPECT_EQ(control.prevValue(), 2.0);
}

TEST(CRangeControlTest, ValueIsClampedToTheRangeAsItWasBeforeTheHookChangedItOnceMore) {
    Control control = controlAt(2.0);
    control.insideRangeChange = [&] {
        control.insideRangeChange = nullptr;
        control.setRange(3.0, 8.0);
    };

    control.setRange(5.0, 8.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::range, 2.0, 0.0, 5.0, 8.0, 1.0, 10.0},
                                    {Hook::range, 2.0, 0.0, 3.0, 8.0, 1.0, 10.0},
                                    {Hook::value, 3.0, 2.0, 3.0, 8.0, 1.0, 10.0},
                                    {Hook::value, 5.0, 3.0, 3.0, 8.0, 1.0, 10.0}}));
}

TEST(CRangeControlTest, MinimumBelowTheMaximumKeepsTheMaximum) {
    Control control = controlAt(7.0);

    control.setMinValue(3.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::range, 7.0, 0.0, 3.0, 99.0, 1.0, 10.0}}));
}

TEST(CRangeControlTest, MinimumAboveTheMaximumRaisesItWithoutWarning) {
    Control control = controlAt(7.0);
    const support::Warnings warnings;

    control.setMinValue(150.0);

    EXPECT_EQ(warnings.lines(), Lines());
    EXPECT_EQ(control.calls, (Calls{{Hook::range, 7.0, 0.0, 150.0, 150.0, 1.0, 10.0},
                                    {Hook::value, 150.0, 7.0, 150.0, 150.0, 1.0, 10.0}}));
}

TEST(CRangeControlTest, MaximumAboveTheMinimumKeepsTheMinimum) {
    Control control = controlAt(7.0);

    control.setMaxValue(20.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::range, 7.0, 0.0, 0.0, 20.0, 1.0, 10.0}}));
}

TEST(CRangeControlTest, MaximumBelowTheMinimumLowersItWithoutWarning) {
    Control control;
    const support::Warnings warnings;

    control.setMaxValue(-3.0);

    EXPECT_EQ(warnings.lines(), Lines());
    EXPECT_EQ(control.calls, (Calls{{Hook::range, 0.0, -1.0, -3.0, -3.0, 1.0, 10.0},
                                    {Hook::value, -3.0, 0.0, -3.0, -3.0, 1.0, 10.0}}));
}

TEST(CRangeControlTest, BoundsInForceSetAgainOneByOneAreNotAnnounced) {
    Control control;

    control.setMinValue(0.0);
    control.setMaxValue(99.0);

    EXPECT_EQ(control.calls, Calls());
}

TEST(CRangeControlTest, NewStepsAreAnnouncedOnceAndLeaveTheValueAlone) {
    Control control = controlAt(7.0);

    control.setSteps(0.5, 25.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::step, 7.0, 0.0, 0.0, 99.0, 0.5, 25.0}}));
}

TEST(CRangeControlTest, OneNewStepIsEnoughToAnnounceTheSteps) {
    Control control = controlAt(7.0);

    control.setSteps(1.0, 25.0);
    control.setSteps(0.5, 25.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::step, 7.0, 0.0, 0.0, 99.0, 1.0, 25.0},
                                    {Hook::step, 7.0, 0.0, 0.0, 99.0, 0.5, 25.0}}));
}

TEST(CRangeControlTest, StepsInForceAreNotAnnounced) {
    Control control;

    control.setSteps(1.0, 10.0);

    EXPECT_EQ(control.calls, Calls());
}

TEST(CRangeControlTest, NegatedLineStepInForceIsAnnouncedBecauseSignsAreComparedFirst) {
    Control control = controlAt(7.0);

    control.setSteps(-1.0, 10.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::step, 7.0, 0.0, 0.0, 99.0, 1.0, 10.0}}));
}

TEST(CRangeControlTest, NegatedPageStepInForceIsAnnouncedBecauseSignsAreComparedFirst) {
    Control control = controlAt(7.0);

    control.setSteps(1.0, -10.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::step, 7.0, 0.0, 0.0, 99.0, 1.0, 10.0}}));
}

TEST(CRangeControlTest, NewNegativeStepsLoseTheirSignBeforeTheyAreAnnounced) {
    Control control = controlAt(7.0);

    control.setSteps(-0.5, -25.0);

    EXPECT_EQ(control.calls, (Calls{{Hook::step, 7.0, 0.0, 0.0, 99.0, 0.5, 25.0}}));
}

TEST(CRangeControlTest, StepOfZeroStaysWhereItIs) {
    Control control(0.0, 10.0, 0.0, 0.0, 4.0);

    control.addLine();
    control.subtractPage();

    EXPECT_EQ(control.calls, Calls());
    EXPECT_EQ(control.value(), 4.0);
    EXPECT_EQ(control.prevValue(), 4.0);
}

void expectSameMembers(const Control& a, const Control& b) {
    EXPECT_EQ(a.minValue(), b.minValue());
    EXPECT_EQ(a.maxValue(), b.maxValue());
    EXPECT_EQ(a.lineStep(), b.lineStep());
    EXPECT_EQ(a.pageStep(), b.pageStep());
    EXPECT_EQ(a.value(), b.value());
    EXPECT_EQ(a.prevValue(), b.prevValue());
}

TEST(CRangeControlTest, CopyHasEveryMemberOfTheOriginal) {
    Control original(-2.0, 30.0, 0.5, 5.0, 11.0);
    original.directSetValue(12.0);

    const Control copy(original);

    expectSameMembers(copy, original);
    EXPECT_EQ(copy.prevValue(), 11.0);
}

TEST(CRangeControlTest, AssignmentTakesOverEveryMemberAndAnnouncesNothing) {
    Control original(-2.0, 30.0, 0.5, 5.0, 11.0);
    original.directSetValue(12.0);
    Control target;

    target.CRangeControl::operator=(original);

    expectSameMembers(target, original);
    EXPECT_EQ(target.prevValue(), 11.0);
    EXPECT_EQ(target.calls, Calls());
}

TEST(CRangeControlTest, CopyAndOriginalGoTheirOwnWays) {
    Control original(-2.0, 30.0, 0.5, 5.0, 11.0);
    Control copy(original);

    copy.setRange(0.0, 1.0);
    copy.setSteps(3.0, 4.0);

    EXPECT_EQ(original.calls, Calls());
    EXPECT_EQ(original.value(), 11.0);
    EXPECT_EQ(original.maxValue(), 30.0);
    EXPECT_EQ(original.lineStep(), 0.5);
}

TEST(CRangeControlTest, ReversedRangeIsCopiedAsItIs) {
    const Control original(10.0, 0.0, 1.0, 1.0, 5.0);
    Control copy;
    const support::Warnings warnings;

    copy.CRangeControl::operator=(original);

    expectSameMembers(copy, original);
    EXPECT_EQ(warnings.lines(), Lines());
}

// The rules once more in the plainest form: the members in the open, every hook call appended.
class Model {
public:
    double minimum = 0.0;
    double maximum = 99.0;
    double lineStep = 1.0;
    double pageStep = 10.0;
    double value = 0.0;
    double previous = -1.0;
    Calls calls;
    int warnings = 0;
    double setInsideRangeChange = c_infinity; // infinity: the hook leaves the value alone

    double bound(double v) const {
        if (minimum > v)
            return minimum;
        return v > maximum ? maximum : v;
    }

    void directSetValue(double v) {
        previous = value;
        value = bound(v);
    }

    void setValue(double v) {
        directSetValue(v);
        if (!(value == previous))
            note(Hook::value);
    }

    void addLine() { setValue(value + lineStep); }
    void subtractLine() { setValue(value - lineStep); }
    void addPage() { setValue(value + pageStep); }
    void subtractPage() { setValue(value - pageStep); }

    void setRange(double low, double high) {
        if (low > high) {
            ++warnings;
            high = low;
        }
        if (low == minimum && high == maximum)
            return;
        minimum = low;
        maximum = high;
        const double clamped = bound(value);
        note(Hook::range);
        if (setInsideRangeChange != c_infinity)
            setValue(setInsideRangeChange);
        if (clamped == value)
            return;
        previous = value;
        value = clamped;
        note(Hook::value);
    }

    void setMinValue(double v) { setRange(v, v > maximum ? v : maximum); }
    void setMaxValue(double v) { setRange(minimum > v ? v : minimum, v); }

    void setSteps(double line, double page) {
        if (line == lineStep && page == pageStep)
            return;
        lineStep = line < 0 ? -line : line;
        pageStep = page < 0 ? -page : page;
        note(Hook::step);
    }

private:
    void note(Hook hook) {
        calls.push_back({hook, value, previous, minimum, maximum, lineStep, pageStep});
    }
};

// Few different numbers, so that equal arguments, ends of the range and reversed ranges are
// frequent.
double anyNumber(std::mt19937& random) {
    const double special[] = {0.0, -0.0, 0.1, 1e300, -1e300, c_infinity, -c_infinity, c_nan};
    const unsigned choice = random() % 100;
    if (choice < std::size(special))
        return special[choice];
    return (static_cast<int>(random() % 41) - 20) * 0.5;
}

// For the control and for the model.
template <class Target>
void apply(Target& target, unsigned operation, double a, double b) {
    switch (operation) {
    case 0:
        return target.setValue(a);
    case 1:
        return target.directSetValue(a);
    case 2:
        return target.addLine();
    case 3:
        return target.subtractLine();
    case 4:
        return target.addPage();
    case 5:
        return target.subtractPage();
    case 6:
        return target.setRange(a, b);
    case 7:
        return target.setMinValue(a);
    case 8:
        return target.setMaxValue(a);
    default:
        return target.setSteps(a, b);
    }
}

void expectSameState(const Control& control, const Model& model) {
    EXPECT_TRUE(same(control.minValue(), model.minimum));
    EXPECT_TRUE(same(control.maxValue(), model.maximum));
    EXPECT_TRUE(same(control.lineStep(), model.lineStep));
    EXPECT_TRUE(same(control.pageStep(), model.pageStep));
    EXPECT_TRUE(same(control.value(), model.value));
    EXPECT_TRUE(same(control.prevValue(), model.previous));
    EXPECT_EQ(control.calls, model.calls);
}

void runBesideModel(Control& control, Model& model, unsigned seed) {
    std::mt19937 random(seed);
    const support::Warnings warnings;
    for (int i = 0; i < 100000; ++i) {
        SCOPED_TRACE("operation " + std::to_string(i));
        const unsigned operation = random() % 10;
        const double a = anyNumber(random);
        const double b = anyNumber(random);
        apply(control, operation, a, b);
        apply(model, operation, a, b);
        expectSameState(control, model);
        if (testing::Test::HasFailure())
            return;
        control.calls.clear();
        model.calls.clear();
    }
    EXPECT_EQ(static_cast<int>(warnings.lines().size()), model.warnings);
}

TEST(CRangeControlTest, AnySequenceOfOperationsGoesAsInTheModel) {
    Control control;
    Model model;

    runBesideModel(control, model, 4711);
}

TEST(CRangeControlTest, AnySequenceGoesAsInTheModelWithAHookThatSetsTheValueToo) {
    Control control;
    Model model;
    control.insideRangeChange = [&] { control.setValue(1.5); };
    model.setInsideRangeChange = 1.5;

    runBesideModel(control, model, 815);
}

TEST(CRangeControlTest, AnySequenceGoesAsInTheModelFromAReversedRange) {
    Control control(10.0, 0.0, 1.0, 10.0, 5.0);
    Model model;
    model.minimum = 10.0;
    model.maximum = 0.0;
    model.value = 10.0;
    model.previous = 9.0;

    runBesideModel(control, model, 1234);
}

} // namespace
