#include <CRangeSlider.h>

#include "TalkingRangeSlider.h"
#include "VirtualPlaces.h"
#include "Wording.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <ostream>
#include <qstyle.h>
#include <qstylefactory.h>
#include <qt3/Style.h>
#include <vector>

using support::Lines;
using TEVU::CRangeSlider;

namespace {

const int c_least = std::numeric_limits<int>::min();
const int c_most = std::numeric_limits<int>::max();
const StStart c_middle = {20, 80, 0, 100};

std::string rangeOf(const CRangeSlider& slider) {
    return std::to_string(slider.Lower()) + ".." + std::to_string(slider.Upper()) + " in " +
           std::to_string(slider.Min()) + ".." + std::to_string(slider.Max());
}

} // namespace

// Construction

namespace {

struct ConstructionRow {
    const char* name;
    StStart given;
    const char* expected;
};

void PrintTo(const ConstructionRow& row, std::ostream* out) {
    *out << row.name;
}

class CRangeSliderConstructionTest : public testing::TestWithParam<ConstructionRow> {};

} // namespace

TEST_P(CRangeSliderConstructionTest, Yields) {
    const StStart& given = GetParam().given;
    QWidget parent;
    const CRangeSlider slider(Qt::Horizontal, given.lower, given.upper, given.min, given.max,
                              &parent, "slider");
    EXPECT_EQ(rangeOf(slider), GetParam().expected);
    EXPECT_TRUE(slider.NullRangeEnabled());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CRangeSliderConstructionTest,
    testing::Values(
        ConstructionRow{"AsGiven", c_middle, "20..80 in 0..100"},
        ConstructionRow{"EqualBoundsGrowByOne", {5, 5, 5, 5}, "5..5 in 5..6"},
        ConstructionRow{"EqualBoundsAboveTheRange", {0, 0, 5, 5}, "5..0 in 5..6"},
        ConstructionRow{"UpperAboveTheMaximum", {20, 180, 0, 100}, "20..100 in 0..100"},
        ConstructionRow{"LowerBelowTheMinimum", {-20, 80, 0, 100}, "0..80 in 0..100"},
        ConstructionRow{"ReversedRangeStays", {80, 20, 0, 100}, "80..20 in 0..100"},
        ConstructionRow{"LowerAboveTheMaximumStays", {150, 80, 0, 100}, "150..80 in 0..100"},
        ConstructionRow{"UpperBelowTheMinimumStays", {20, -80, 0, 100}, "20..-80 in 0..100"},
        ConstructionRow{"ReversedBoundStays", {20, 80, 100, 0}, "100..0 in 100..0"}),
    nameOfRow<ConstructionRow>);

TEST(CRangeSliderTest, HasItsParentAndName) {
    QWidget parent;
    const CRangeSlider slider(Qt::Vertical, 0, 1, 0, 1, &parent, "pages");
    EXPECT_EQ(slider.parentWidget(), &parent);
    EXPECT_STREQ(slider.name(), "pages");
}

TEST(CRangeSliderTest, MayBeAWindowOfItsOwn) {
    const CRangeSlider slider(Qt::Vertical, 0, 1, 0, 1, nullptr, nullptr);
    EXPECT_EQ(slider.parentWidget(), nullptr);
    EXPECT_STREQ(slider.name(), "unnamed");
}

// Setters

namespace {

struct SetterRow {
    const char* name;
    StStart start;
    std::function<void(CRangeSlider&)> prepare;
    std::function<void(CRangeSlider&)> act;
    const char* expected;
    const char* ends; ///< As announced() takes it; null where nothing is to be heard.
};

void PrintTo(const SetterRow& row, std::ostream* out) {
    *out << row.name;
}

class CRangeSliderSetterTest : public testing::TestWithParam<SetterRow> {};

} // namespace

TEST_P(CRangeSliderSetterTest, SetsAndAnnounces) {
    const SetterRow& row = GetParam();
    StShownSlider shown(Qt::Horizontal, row.start);
    if (row.prepare)
        row.prepare(shown.m_slider);
    shown.lines();

    row.act(shown.m_slider);

    EXPECT_EQ(shown.m_slider.range(), row.expected);
    EXPECT_EQ(shown.lines(), row.ends ? announced(shown.m_slider, row.ends) : Lines());
}

namespace {

using Action = std::function<void(CRangeSlider&)>;

const Action c_asItIs;
const char* const c_silence = nullptr;

Action setRange(int lower, int upper) {
    return [=](CRangeSlider& slider) { slider.SetRange(lower, upper); };
}
Action setBound(int min, int max) {
    return [=](CRangeSlider& slider) { slider.SetBound(min, max); };
}
Action setLower(int lower) {
    return [=](CRangeSlider& slider) { slider.SetLower(lower); };
}
Action setUpper(int upper) {
    return [=](CRangeSlider& slider) { slider.SetUpper(upper); };
}
Action moveBy(int distance) {
    return [=](CRangeSlider& slider) { slider.Move(distance); };
}
Action setMinValue(int min) {
    return [=](CRangeSlider& slider) { slider.SetMinValue(min); };
}
Action setMaxValue(int max) {
    return [=](CRangeSlider& slider) { slider.SetMaxValue(max); };
}
Action enableNullRange(bool enable) {
    return [=](CRangeSlider& slider) { slider.EnableNullRange(enable); };
}
Action both(const Action& first, const Action& second) {
    return [=](CRangeSlider& slider) {
        first(slider);
        second(slider);
    };
}

const Action c_noNullRange = enableNullRange(false);

/// One value, and that is not allowed any more; nothing has repaired it yet.
Action forbiddenAt(int value) {
    return both(c_noNullRange, both(setBound(value, value), setBound(0, 100)));
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    SetRange, CRangeSliderSetterTest,
    testing::Values(
        SetterRow{"BothEnds", c_middle, c_asItIs, setRange(30, 60), "30..60 in 0..100", "LU"},
        SetterRow{"LowerAlone", c_middle, c_asItIs, setRange(30, 80), "30..80 in 0..100", "L"},
        SetterRow{"UpperAlone", c_middle, c_asItIs, setRange(20, 70), "20..70 in 0..100", "U"},
        SetterRow{"RangeInForceIsSilent", c_middle, c_asItIs, setRange(20, 80), "20..80 in 0..100",
                  c_silence},
        SetterRow{"LowerIsRaisedToTheMinimum", c_middle, c_asItIs, setRange(-10, 80),
                  "0..80 in 0..100", "L"},
        SetterRow{"UpperIsLoweredToTheMaximum", c_middle, c_asItIs, setRange(20, 150),
                  "20..100 in 0..100", "U"},
        SetterRow{"RequestClampedBackIsAnnounced",
                  {0, 80, 0, 100},
                  c_asItIs,
                  setRange(-5, 80),
                  "0..80 in 0..100",
                  "L"},
        SetterRow{"ReversedRangeHasItsUpperRaised", c_middle, c_asItIs, setRange(60, 30),
                  "60..59 in 0..100", "LU"},
        SetterRow{"RangeReversedByOneStays", c_middle, c_asItIs, setRange(60, 59),
                  "60..59 in 0..100", "LU"},
        SetterRow{"RangeAboveTheBound", c_middle, c_asItIs, setRange(150, 170),
                  "150..149 in 0..100", "LU"},
        SetterRow{"RangeBelowTheBound", c_middle, c_asItIs, setRange(-20, -10), "0..-1 in 0..100",
                  "LU"},
        SetterRow{"SingleValueWhereAllowed", c_middle, c_asItIs, setRange(50, 50),
                  "50..50 in 0..100", "LU"},
        SetterRow{"TooWideKeepsItsUpperEnd", c_middle, setMaxValue(200), setRange(0, 150),
                  "50..150 in 0..200", "LU"},
        SetterRow{"WidestIsThatOfTheArgumentsOfAGrownBound",
                  {5, 5, 5, 5},
                  c_asItIs,
                  setRange(5, 6),
                  "6..6 in 5..6",
                  "U"},
        SetterRow{"ExtremesAreClamped", c_middle, c_asItIs, setRange(c_least, c_most),
                  "0..100 in 0..100", "LU"},
        SetterRow{"ReversedExtremesHaveTheUpperRaised", c_middle, c_asItIs,
                  setRange(c_most, c_least), "2147483647..2147483646 in 0..100", "LU"}),
    nameOfRow<SetterRow>);

INSTANTIATE_TEST_SUITE_P(
    SetRangeWithoutNullRange, CRangeSliderSetterTest,
    testing::Values(SetterRow{"SingleValueGrowsUpward", c_middle, c_noNullRange, setRange(50, 50),
                              "50..51 in 0..100", "LU"},
                    SetterRow{"SingleValueAtTheTopGrowsDownward", c_middle, c_noNullRange,
                              setRange(100, 100), "99..100 in 0..100", "LU"},
                    SetterRow{"SingleValueAtTheBottomGrowsUpward", c_middle, c_noNullRange,
                              setRange(0, 0), "0..1 in 0..100", "LU"},
                    SetterRow{"GrowthUpwardAnnouncesTheUpperThoughRequestedAsItWas",
                              {20, 50, 0, 100},
                              c_noNullRange,
                              setRange(50, 50),
                              "50..51 in 0..100",
                              "LU"},
                    SetterRow{"GrowthUpwardFromTheLowerAnnouncesTheUpperAlone", c_middle,
                              c_noNullRange, setRange(20, 20), "20..21 in 0..100", "U"},
                    SetterRow{"GrowthDownwardFromTheUpperAnnouncesTheLowerAlone",
                              {20, 100, 0, 100},
                              c_noNullRange,
                              setRange(100, 100),
                              "99..100 in 0..100",
                              "L"},
                    SetterRow{"SingleValueAboveTheTopGrowsUpwardAndIsClampedApart", c_middle,
                              c_noNullRange, setRange(150, 150), "150..149 in 0..100", "LU"},
                    SetterRow{"WiderRangeInForceIsSilent", c_middle, c_noNullRange,
                              setRange(20, 80), "20..80 in 0..100", c_silence},
                    SetterRow{"BoundOfASingleValueLeavesNoRoomButAnnounces", c_middle,
                              both(c_noNullRange, setBound(50, 50)), setRange(50, 50),
                              "50..50 in 50..50", "U"}),
    nameOfRow<SetterRow>);

INSTANTIATE_TEST_SUITE_P(
    EnableNullRange, CRangeSliderSetterTest,
    testing::Values(SetterRow{"ForbiddenWithRoomIsSilent", c_middle, c_asItIs,
                              enableNullRange(false), "20..80 in 0..100", c_silence},
                    SetterRow{"ForbiddenRepairsUpward",
                              {50, 50, 0, 100},
                              c_asItIs,
                              enableNullRange(false),
                              "50..51 in 0..100",
                              "U"},
                    SetterRow{"ForbiddenRepairsDownwardAtTheTop",
                              {100, 100, 0, 100},
                              c_asItIs,
                              enableNullRange(false),
                              "99..100 in 0..100",
                              "L"},
                    SetterRow{"ForbiddenRepairsUpwardAtTheBottom",
                              {0, 0, 0, 100},
                              c_asItIs,
                              enableNullRange(false),
                              "0..1 in 0..100",
                              "U"},
                    SetterRow{"ForbiddenAgainRepairsWhatCameInBetween", c_middle, forbiddenAt(50),
                              enableNullRange(false), "50..51 in 0..100", "U"},
                    SetterRow{"AllowedIsSilent",
                              {50, 50, 0, 100},
                              c_asItIs,
                              enableNullRange(true),
                              "50..50 in 0..100",
                              c_silence}),
    nameOfRow<SetterRow>);

INSTANTIATE_TEST_SUITE_P(
    SetLower, CRangeSliderSetterTest,
    testing::Values(
        SetterRow{"Inside", c_middle, c_asItIs, setLower(30), "30..80 in 0..100", "L"},
        SetterRow{"ValueInForceIsSilent", c_middle, c_asItIs, setLower(20), "20..80 in 0..100",
                  c_silence},
        SetterRow{"BelowTheMinimum", c_middle, c_asItIs, setLower(-5), "0..80 in 0..100", "L"},
        SetterRow{"ClampedBackIsAnnounced",
                  {0, 80, 0, 100},
                  c_asItIs,
                  setLower(-5),
                  "0..80 in 0..100",
                  "L"},
        SetterRow{"AtTheUpper", c_middle, c_asItIs, setLower(80), "80..80 in 0..100", "L"},
        SetterRow{"AboveTheUpper", c_middle, c_asItIs, setLower(90), "80..80 in 0..100", "L"},
        SetterRow{"AtTheUpperWithoutNullRange", c_middle, c_noNullRange, setLower(80),
                  "79..80 in 0..100", "L"},
        SetterRow{"AboveTheUpperWithoutNullRange", c_middle, c_noNullRange, setLower(90),
                  "79..80 in 0..100", "L"},
        SetterRow{"TooWideIsRaised", c_middle, setMinValue(-100), setLower(-90),
                  "-20..80 in -100..100", "L"},
        SetterRow{"BelowAMinimumAboveTheUpperEndsJustAboveTheUpper", c_middle, setBound(200, 300),
                  setLower(150), "81..80 in 200..300", "L"},
        SetterRow{"NegativeWidestShrinksTheRange",
                  {0, 100, 0, 100},
                  setBound(10, 5),
                  setLower(7),
                  "11..10 in 10..10",
                  "L"},
        SetterRow{"LeastInt", c_middle, c_asItIs, setLower(c_least), "0..80 in 0..100", "L"},
        SetterRow{"GreatestInt", c_middle, c_asItIs, setLower(c_most), "80..80 in 0..100", "L"}),
    nameOfRow<SetterRow>);

INSTANTIATE_TEST_SUITE_P(
    SetUpper, CRangeSliderSetterTest,
    testing::Values(
        SetterRow{"Inside", c_middle, c_asItIs, setUpper(70), "20..70 in 0..100", "U"},
        SetterRow{"ValueInForceIsSilent", c_middle, c_asItIs, setUpper(80), "20..80 in 0..100",
                  c_silence},
        SetterRow{"AboveTheMaximum", c_middle, c_asItIs, setUpper(150), "20..100 in 0..100", "U"},
        SetterRow{"ClampedBackIsAnnounced",
                  {20, 100, 0, 100},
                  c_asItIs,
                  setUpper(150),
                  "20..100 in 0..100",
                  "U"},
        SetterRow{"AtTheLower", c_middle, c_asItIs, setUpper(20), "20..20 in 0..100", "U"},
        SetterRow{"BelowTheLower", c_middle, c_asItIs, setUpper(10), "20..20 in 0..100", "U"},
        SetterRow{"AtTheLowerWithoutNullRange", c_middle, c_noNullRange, setUpper(20),
                  "20..21 in 0..100", "U"},
        SetterRow{"BelowTheLowerWithoutNullRange", c_middle, c_noNullRange, setUpper(10),
                  "20..21 in 0..100", "U"},
        SetterRow{"TooWideIsLowered", c_middle, setMaxValue(200), setUpper(190),
                  "20..120 in 0..200", "U"},
        SetterRow{"AboveAMaximumBelowTheLowerEndsJustBelowTheLower", c_middle, setBound(-100, -50),
                  setUpper(0), "20..19 in -100..-50", "U"},
        SetterRow{"NegativeWidestShrinksTheRange",
                  {0, 100, 0, 100},
                  setBound(10, 5),
                  setUpper(15),
                  "10..9 in 10..10",
                  "U"},
        SetterRow{"LeastInt", c_middle, c_asItIs, setUpper(c_least), "20..20 in 0..100", "U"},
        SetterRow{"GreatestInt", c_middle, c_asItIs, setUpper(c_most), "20..100 in 0..100", "U"}),
    nameOfRow<SetterRow>);

INSTANTIATE_TEST_SUITE_P(
    Move, CRangeSliderSetterTest,
    testing::Values(
        SetterRow{"Up", c_middle, c_asItIs, moveBy(10), "30..90 in 0..100", "LU"},
        SetterRow{"Down", c_middle, c_asItIs, moveBy(-10), "10..70 in 0..100", "LU"},
        SetterRow{"ByNothingIsSilent", c_middle, c_asItIs, moveBy(0), "20..80 in 0..100",
                  c_silence},
        SetterRow{"ToTheMaximum", c_middle, c_asItIs, moveBy(20), "40..100 in 0..100", "LU"},
        SetterRow{"ToTheMinimum", c_middle, c_asItIs, moveBy(-20), "0..60 in 0..100", "LU"},
        SetterRow{"PastTheMaximumIsRefusedButAnnounced", c_middle, c_asItIs, moveBy(21),
                  "20..80 in 0..100", "LU"},
        SetterRow{"PastTheMinimumIsRefusedButAnnounced", c_middle, c_asItIs, moveBy(-21),
                  "20..80 in 0..100", "LU"},
        SetterRow{"ReversedRangeKeepsItsWidth",
                  {80, 20, 0, 100},
                  c_asItIs,
                  moveBy(5),
                  "85..25 in 0..100",
                  "LU"},
        SetterRow{"ReversedRangeIsHeldByItsOwnEndsOnly",
                  {80, 20, 0, 100},
                  c_asItIs,
                  moveBy(60),
                  "140..80 in 0..100",
                  "LU"},
        SetterRow{"LeastIntIsRefused", c_middle, c_asItIs, moveBy(c_least), "20..80 in 0..100",
                  "LU"},
        SetterRow{"GreatestIntIsRefused", c_middle, c_asItIs, moveBy(c_most), "20..80 in 0..100",
                  "LU"}),
    nameOfRow<SetterRow>);

INSTANTIATE_TEST_SUITE_P(
    StoredBound, CRangeSliderSetterTest,
    testing::Values(SetterRow{"MinimumIsStoredAlone", c_middle, c_asItIs, setMinValue(50),
                              "20..80 in 50..100", c_silence},
                    SetterRow{"MaximumIsStoredAlone", c_middle, c_asItIs, setMaxValue(50),
                              "20..80 in 0..50", c_silence},
                    SetterRow{"MinimumAboveTheMaximumToo", c_middle, c_asItIs, setMinValue(150),
                              "20..80 in 150..100", c_silence},
                    SetterRow{"MaximumEqualToTheMinimumToo", c_middle, c_asItIs, setMaxValue(0),
                              "20..80 in 0..0", c_silence}),
    nameOfRow<SetterRow>);

namespace {

class CRangeSliderBoundTest : public testing::TestWithParam<SetterRow> {};

} // namespace

TEST_P(CRangeSliderBoundTest, TellsTheBoundFirstWithEndsThatAreAlreadyPulled) {
    const SetterRow& row = GetParam();
    StShownSlider shown(Qt::Horizontal, row.start);
    shown.lines();

    row.act(shown.m_slider);

    EXPECT_EQ(shown.m_slider.range(), row.expected);
    Lines expected = row.ends ? announced(shown.m_slider, row.ends) : Lines{"paint"};
    expected.insert(expected.begin(), std::string("RangeChange with ") + row.expected);
    EXPECT_EQ(shown.lines(), expected);
}

INSTANTIATE_TEST_SUITE_P(
    SetBound, CRangeSliderBoundTest,
    testing::Values(
        SetterRow{"Wider", c_middle, c_asItIs, setBound(-50, 200), "20..80 in -50..200", nullptr},
        SetterRow{"InForce", c_middle, c_asItIs, setBound(0, 100), "20..80 in 0..100", nullptr},
        SetterRow{"AtTheEnds", c_middle, c_asItIs, setBound(20, 80), "20..80 in 20..80", nullptr},
        SetterRow{"NarrowerOnBothSides", c_middle, c_asItIs, setBound(30, 70), "30..70 in 30..70",
                  "LU"},
        SetterRow{"PullsTheLowerAlone", c_middle, c_asItIs, setBound(30, 200), "30..80 in 30..200",
                  "L"},
        SetterRow{"PullsTheUpperAlone", c_middle, c_asItIs, setBound(0, 50), "20..50 in 0..50",
                  "U"},
        SetterRow{"WhollyAboveLeavesTheUpperBehind", c_middle, c_asItIs, setBound(200, 300),
                  "200..80 in 200..300", "L"},
        SetterRow{"WhollyBelowLeavesTheLowerBehind", c_middle, c_asItIs, setBound(-100, -50),
                  "20..-50 in -100..-50", "U"},
        SetterRow{"ReversedCollapsesToItsFirst",
                  {0, 100, 0, 100},
                  c_asItIs,
                  setBound(10, 5),
                  "10..10 in 10..10",
                  "LU"},
        SetterRow{"ReversedBelowTheLower", c_middle, c_asItIs, setBound(10, 5), "20..10 in 10..10",
                  "U"},
        SetterRow{"SingleValue", c_middle, c_asItIs, setBound(50, 50), "50..50 in 50..50", "LU"},
        SetterRow{"AllOfInt", c_middle, c_asItIs, setBound(c_least, c_most),
                  "20..80 in -2147483648..2147483647", nullptr},
        SetterRow{"AllOfIntReversed", c_middle, c_asItIs, setBound(c_most, c_least),
                  "2147483647..80 in 2147483647..2147483647", "L"}),
    nameOfRow<SetterRow>);

TEST(CRangeSliderTest, NewBoundAllowsItsOwnWidth) {
    QWidget parent;
    CRangeSlider slider(Qt::Horizontal, 20, 80, 0, 100, &parent, "slider");
    slider.SetBound(0, 200);

    slider.SetRange(0, 200);

    EXPECT_EQ(rangeOf(slider), "0..200 in 0..200");
}

TEST(CRangeSliderTest, EnabledNullRangeIsTold) {
    QWidget parent;
    CRangeSlider slider(Qt::Horizontal, 20, 80, 0, 100, &parent, "slider");
    slider.EnableNullRange(false);
    EXPECT_FALSE(slider.NullRangeEnabled());
    slider.EnableNullRange(true);
    EXPECT_TRUE(slider.NullRangeEnabled());
}

TEST(CRangeSliderTest, BlockedSignalsLeaveHookAndPicture) {
    StShownSlider shown(Qt::Horizontal, c_middle);
    shown.lines();
    shown.m_slider.blockSignals(true);

    shown.m_slider.SetLower(30);

    EXPECT_EQ(shown.lines(), (Lines{"ValueChange with 30..80 in 0..100", "paint"}));
}

TEST(CRangeSliderTest, HooksOfTheClassItselfDoNothing) {
    QWidget parent;
    CRangeSlider slider(Qt::Horizontal, 20, 80, 0, 100, &parent, "slider");
    slider.SetBound(30, 70);
    EXPECT_EQ(rangeOf(slider), "30..70 in 30..70");
}

namespace {

/// Tells where the hooks stand.
class CPlaces : public CRangeSlider {
public:
    static std::vector<std::ptrdiff_t> take() {
        return {support::placeOf(&CPlaces::ValueChange), support::placeOf(&CPlaces::RangeChange)};
    }
};

} // namespace

TEST(CRangeSliderTest, HooksStandInTheirOrder) {
    EXPECT_TRUE(support::standInARow(CPlaces::take())) << testing::PrintToString(CPlaces::take());
}

TEST(CRangeSliderTest, HiddenSliderAnnouncesWithoutPainting) {
    QWidget parent;
    CTalkingRangeSlider slider(Qt::Horizontal, c_middle, &parent);
    support::Recorder recorder;
    slider.talkTo(&recorder);

    slider.SetLower(30);

    EXPECT_EQ(recorder.take(), (Lines{"ValueChange with 30..80 in 0..100",
                                      "slider.ValueChanged(30, 80)", "slider.LowerChanged(30)"}));
}

TEST(CRangeSliderTest, SetterCalledByAListenerIsSeenByTheSignalsThatFollow) {
    StShownSlider shown(Qt::Horizontal, c_middle);
    qt3::SignalTap tap;
    tap.listen(&shown.m_slider, "ValueChanged(int,int)", [&](const std::string& arguments) {
        if (arguments == "30, 60")
            shown.m_slider.SetLower(40);
    });
    shown.lines();

    shown.m_slider.SetRange(30, 60);

    EXPECT_EQ(shown.lines(),
              (Lines{"ValueChange with 30..60 in 0..100", "slider.ValueChanged(30, 60)",
                     "ValueChange with 40..60 in 0..100", "slider.ValueChanged(40, 60)",
                     "slider.LowerChanged(40)", "paint", "slider.LowerChanged(40)",
                     "slider.UpperChanged(60)", "paint"}));
}

TEST(CRangeSliderTest, KeysAndWheelChangeNothing) {
    StShownSlider shown(Qt::Horizontal, c_middle);
    shown.lines();

    support::sendKey(&shown.m_slider, Qt::Key_Up);
    support::sendKey(&shown.m_slider, Qt::Key_Left);
    support::wheel(&shown.m_slider, 120);

    EXPECT_EQ(shown.lines(), Lines());
    EXPECT_EQ(static_cast<int>(shown.m_slider.focusPolicy()), 0);
}

// Meta-object

TEST(CRangeSliderTest, MetaObjectTellsTheClass) {
    const CRangeSlider slider(Qt::Horizontal, 20, 80, 0, 100, nullptr, "slider");
    EXPECT_EQ(qt3::className(&slider), "TEVU::CRangeSlider");
    EXPECT_EQ(qt3::superClassName(&slider), "QWidget");
    EXPECT_EQ(qt3::furtherEntries(&slider), 0);
    EXPECT_TRUE(slider.inherits("TEVU::CRangeSlider"));
}

TEST(CRangeSliderTest, SlotsAndSignalsHaveTheirOrder) {
    const CRangeSlider slider(Qt::Horizontal, 20, 80, 0, 100, nullptr, "slider");
    EXPECT_EQ(tableLines(qt3::slotTable(&slider)),
              (Lines{"public SetRange(int,int)", "public SetBound(int,int)", "public SetLower(int)",
                     "public SetUpper(int)", "public Move(int)", "public SetMinValue(int)",
                     "public SetMaxValue(int)"}));
    EXPECT_EQ(tableLines(qt3::signalTable(&slider)),
              (Lines{"public ValueChanged(int,int)", "public LowerChanged(int)",
                     "public UpperChanged(int)"}));
}

TEST(CRangeSliderTest, SignalsDriveTheSlotsOfAnotherByTheirText) {
    QWidget parent;
    CRangeSlider source(Qt::Horizontal, 20, 80, 0, 100, &parent, "source");
    CRangeSlider target(Qt::Horizontal, 0, 100, 0, 100, &parent, "target");
    ASSERT_TRUE(
        QObject::connect(&source, "2ValueChanged( int, int )", &target, "1SetRange( int, int )"));
    CRangeSlider bound(Qt::Horizontal, 0, 0, 0, 100, &parent, "bound");
    ASSERT_TRUE(QObject::connect(&source, "2LowerChanged(int)", &bound, "1SetMinValue(int)"));
    ASSERT_TRUE(QObject::connect(&source, "2UpperChanged(int)", &bound, "1SetMaxValue(int)"));

    source.SetRange(30, 60);

    EXPECT_EQ(rangeOf(target), "30..60 in 0..100");
    EXPECT_EQ(rangeOf(bound), "0..0 in 30..60");
}

// Size

namespace {

class CRangeSliderSizeTest : public testing::TestWithParam<Qt::Orientation> {
protected:
    bool vertical() const { return GetParam() == Qt::Vertical; }
    QSize size(int along, int across) const {
        return vertical() ? QSize(across, along) : QSize(along, across);
    }
};

int across(bool vertical, const QSize& size) {
    return vertical ? size.width() : size.height();
}

int extentOf(const QWidget& widget) {
    return qt3::styleOf(&widget).pixelMetric(qt3::Style::PM_ScrollBarExtent);
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, CRangeSliderSizeTest, testing::Values(Qt::Horizontal, Qt::Vertical),
                         nameOfOrientation);

TEST_P(CRangeSliderSizeTest, HintsAreFiveAndTwoTimesTheThickness) {
    const CRangeSlider slider(GetParam(), 20, 80, 0, 100, nullptr, "slider");
    EXPECT_EQ(slider.sizeHint(), size(80, 16));
    EXPECT_EQ(slider.minimumSizeHint(), size(32, 16));
}

TEST_P(CRangeSliderSizeTest, MinimumHintStartsFromTheOverriddenHint) {
    struct CThick : CRangeSlider {
        using CRangeSlider::CRangeSlider;
        QSize sizeHint() const override { return QSize(50, 70); }
    };
    const CThick slider(GetParam(), 20, 80, 0, 100, nullptr, "slider");
    EXPECT_EQ(slider.minimumSizeHint(), vertical() ? QSize(50, 32) : QSize(32, 70));
}

TEST_P(CRangeSliderSizeTest, ThicknessIsFixedFromTheBeginning) {
    QWidget parent;
    const CRangeSlider slider(GetParam(), 20, 80, 0, 100, &parent, "slider");
    EXPECT_EQ(across(vertical(), slider.size()), 16);
    EXPECT_EQ(across(vertical(), slider.minimumSize()), 16);
    EXPECT_EQ(across(vertical(), slider.maximumSize()), 16);
    EXPECT_GT(across(!vertical(), slider.maximumSize()), 10000);
}

TEST_P(CRangeSliderSizeTest, ResizingFixesTheThicknessAgain) {
    StShownSlider shown(GetParam(), c_middle);
    shown.m_slider.setMinimumSize(1, 1);
    shown.m_slider.setMaximumSize(1000, 1000);

    shown.m_slider.resize(size(150, 40));

    EXPECT_EQ(shown.m_slider.size(), size(150, 16));
    EXPECT_EQ(across(vertical(), shown.m_slider.maximumSize()), 16);
}

TEST_P(CRangeSliderSizeTest, LengthIsTheLongSide) {
    QWidget parent;
    CTalkingRangeSlider slider(GetParam(), c_middle, &parent);
    slider.resize(size(150, 16));
    EXPECT_EQ(slider.Length(), 150);
}

TEST_P(CRangeSliderSizeTest, ThicknessIsReadFromTheStyleOnlyOnce) {
    std::vector<std::unique_ptr<QStyle>> styles; // each outlives the slider
    StShownSlider shown(GetParam(), c_middle);
    const QStringList keys = QStyleFactory::keys();
    for (int i = 0; i < static_cast<int>(keys.size()) && extentOf(shown.m_slider) == 16; ++i) {
        styles.emplace_back(QStyleFactory::create(keys[i]));
        shown.m_slider.setStyle(styles.back().get());
    }
    ASSERT_NE(extentOf(shown.m_slider), 16) << "no style with another extent of the scroll bar";

    shown.m_slider.resize(size(150, 16));

    EXPECT_EQ(across(vertical(), shown.m_slider.size()), 16);
    EXPECT_EQ(shown.m_slider.sizeHint(), size(80, 16));
}

// Copies

TEST(CRangeSliderCopyTest, HasTheStateOfItsOriginal) {
    QWidget parent;
    CRangeSlider original(Qt::Vertical, 20, 80, 0, 100, &parent, "original");
    original.EnableNullRange(false);
    original.SetMaxValue(300);

    const CRangeSlider copy(original);

    EXPECT_EQ(rangeOf(copy), "20..80 in 0..300");
    EXPECT_FALSE(copy.NullRangeEnabled());
    EXPECT_EQ(copy.parentWidget(), &parent);
    EXPECT_STREQ(copy.name(), "original");
    EXPECT_EQ(copy.sizeHint(), QSize(16, 80));
    EXPECT_EQ(copy.maximumSize(), original.maximumSize());
}

TEST(CRangeSliderCopyTest, HasTheWidestWidthOfItsOriginal) {
    QWidget parent;
    CRangeSlider original(Qt::Horizontal, 20, 80, 0, 100, &parent, "original");
    original.SetMaxValue(300);
    CRangeSlider copy(original);

    copy.SetUpper(300);

    EXPECT_EQ(rangeOf(copy), "20..120 in 0..300");
}

TEST(CRangeSliderCopyTest, GoesItsOwnWay) {
    QWidget parent;
    CRangeSlider original(Qt::Horizontal, 20, 80, 0, 100, &parent, "original");
    CRangeSlider copy(original);

    copy.SetLower(30);
    original.SetUpper(70);

    EXPECT_EQ(rangeOf(copy), "30..80 in 0..100");
    EXPECT_EQ(rangeOf(original), "20..70 in 0..100");
}

TEST(CRangeSliderCopyTest, SignalsOfTheCopyDoNotReachTheListenersOfTheOriginal) {
    QWidget parent;
    CRangeSlider original(Qt::Horizontal, 20, 80, 0, 100, &parent, "original");
    support::Recorder recorder;
    recorder.tapAll(&original, "original");
    CRangeSlider copy(original);

    copy.SetLower(30);

    EXPECT_EQ(recorder.take(), Lines());
}

TEST(CRangeSliderCopyTest, OriginalAndCopyEndInEitherOrder) {
    QWidget parent;
    auto original = std::make_unique<CRangeSlider>(Qt::Horizontal, 20, 80, 0, 100, &parent, "a");
    auto copy = std::make_unique<CRangeSlider>(*original);
    original.reset();
    copy->SetLower(30);
    EXPECT_EQ(rangeOf(*copy), "30..80 in 0..100");

    auto second = std::make_unique<CRangeSlider>(*copy);
    second.reset();
    copy->SetLower(40);
    EXPECT_EQ(rangeOf(*copy), "40..80 in 0..100");
}

TEST(CRangeSliderCopyTest, AssignmentTakesOverEverythingButTheParent) {
    QWidget parent;
    QWidget other;
    CRangeSlider source(Qt::Vertical, 20, 80, 0, 100, &parent, "source");
    source.EnableNullRange(false);
    source.SetMaxValue(300);
    CRangeSlider target(Qt::Horizontal, 1, 2, 0, 3, &other, "target");

    target = source;

    EXPECT_EQ(rangeOf(target), "20..80 in 0..300");
    EXPECT_FALSE(target.NullRangeEnabled());
    EXPECT_EQ(target.sizeHint(), QSize(16, 80));
    EXPECT_EQ(target.parentWidget(), &other);
    target.SetUpper(300);
    EXPECT_EQ(rangeOf(target), "20..120 in 0..300");
}

TEST(CRangeSliderCopyTest, AssignmentToItselfChangesNothing) {
    QWidget parent;
    CRangeSlider slider(Qt::Horizontal, 20, 80, 0, 100, &parent, "slider");
    CRangeSlider& same = slider;
    slider = same;
    EXPECT_EQ(rangeOf(slider), "20..80 in 0..100");
}

TEST(CRangeSliderCopyTest, CopyOfAPressedSliderIsPressedToo) {
    StShownSlider shown(Qt::Horizontal, c_middle);
    shown.press(28);

    CRangeSlider copy(shown.m_slider);
    support::show(&copy);
    support::mouseMove(&copy, shown.at(38));

    EXPECT_EQ(rangeOf(copy), "31..80 in 0..100");
}
