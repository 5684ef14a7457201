#include <CRangeSlider.h>

#include "RangeSliderModel.h"
#include "TalkingRangeSlider.h"
#include "Wording.h"

#include <gtest/gtest.h>

using support::Button;
using support::Lines;

namespace {

const StStart c_middle = {20, 80, 0, 100}; // on 132 pixels: handles at 20 and 96, bar at 36

class CRangeSliderMouseTest : public testing::TestWithParam<Qt::Orientation> {
protected:
    CRangeSliderMouseTest() : shown(GetParam(), c_middle), slider(shown.m_slider) { lines(); }

    Lines lines() { return shown.lines(); }

    StShownSlider shown;
    CTalkingRangeSlider& slider;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, CRangeSliderMouseTest, testing::Values(Qt::Horizontal, Qt::Vertical),
                         nameOfOrientation);

TEST_P(CRangeSliderMouseTest, PressPaintsOnly) {
    shown.press(28);
    EXPECT_EQ(lines(), Lines{"paint"});
    EXPECT_EQ(slider.range(), "20..80 in 0..100");
}

TEST_P(CRangeSliderMouseTest, LowerHandleMovesTheLowerEnd) {
    shown.press(28);
    lines();
    shown.move(38);
    EXPECT_EQ(slider.range(), "31..80 in 0..100");
    EXPECT_EQ(lines(), announced(slider, "L"));
}

TEST_P(CRangeSliderMouseTest, UpperHandleMovesTheUpperEnd) {
    shown.press(100);
    lines();
    shown.move(90);
    EXPECT_EQ(slider.range(), "20..71 in 0..100");
    EXPECT_EQ(lines(), announced(slider, "U"));
}

TEST_P(CRangeSliderMouseTest, BarMovesBothEndsByTheSame) {
    shown.press(50);
    lines();
    shown.move(60);
    EXPECT_EQ(slider.range(), "31..91 in 0..100");
    EXPECT_EQ(lines(), announced(slider, "LU"));
}

TEST_P(CRangeSliderMouseTest, MoveOnTheSpotMovesByOneBecauseTheMappingAddsAPixel) {
    shown.press(28);
    shown.move(28);
    EXPECT_EQ(slider.Lower(), 21);
    shown.release(27);
    EXPECT_EQ(slider.Lower(), 20);
}

TEST_P(CRangeSliderMouseTest, BarPulledPastTheEndIsRefusedWholeButAnnounced) {
    shown.press(50);
    lines();
    shown.move(131);
    EXPECT_EQ(slider.range(), "20..80 in 0..100");
    EXPECT_EQ(lines(), announced(slider, "LU"));
}

TEST_P(CRangeSliderMouseTest, HandlePulledPastTheOtherStopsThere) {
    shown.press(28);
    shown.move(130);
    EXPECT_EQ(slider.range(), "80..80 in 0..100");
}

TEST_P(CRangeSliderMouseTest, HandlePulledFarOutsideStopsAtTheBound) {
    shown.press(28);
    shown.move(-5000);
    EXPECT_EQ(slider.Lower(), 0);
    shown.release(-5000);
    shown.press(100);
    shown.move(5000);
    EXPECT_EQ(slider.Upper(), 100);
}

TEST_P(CRangeSliderMouseTest, GrabLastsFromMoveToMove) {
    shown.press(28);
    for (const int along : {38, 48, 33})
        shown.move(along);
    EXPECT_EQ(slider.Lower(), 26);
}

TEST_P(CRangeSliderMouseTest, ReleaseAppliesItsPositionThenPaintsOnceMore) {
    shown.press(28);
    lines();
    shown.release(38);
    Lines expected = announced(slider, "L");
    expected.push_back("paint");
    EXPECT_EQ(slider.range(), "31..80 in 0..100");
    EXPECT_EQ(lines(), expected);
}

TEST_P(CRangeSliderMouseTest, ReleaseGoesThroughTheVirtualMoveHandler) {
    slider.m_bTellMoves = true;
    shown.press(28);
    lines();
    shown.release(27);
    EXPECT_EQ(lines(), (Lines{"mouseMoveEvent", "paint"}));
}

TEST_P(CRangeSliderMouseTest, ReleaseWithoutAGrabDoesNothing) {
    slider.m_bTellMoves = true;
    shown.release(28);
    EXPECT_EQ(lines(), Lines());
}

TEST_P(CRangeSliderMouseTest, MoveAfterTheReleaseDoesNothing) {
    shown.press(28);
    shown.release(38);
    lines();
    shown.move(60);
    EXPECT_EQ(lines(), Lines());
}

TEST_P(CRangeSliderMouseTest, MoveWithoutAPressDoesNothing) {
    shown.move(28);
    EXPECT_EQ(lines(), Lines());
}

TEST_P(CRangeSliderMouseTest, OtherButtonsDoNotEvenPaint) {
    for (const Button button : {Button::Right, Button::Middle}) {
        shown.press(28, button);
        shown.move(60);
        EXPECT_EQ(lines(), Lines());
    }
}

TEST_P(CRangeSliderMouseTest, OtherButtonDuringADragLeavesTheGrab) {
    shown.press(28);
    shown.press(50, Button::Right);
    shown.move(38);
    EXPECT_EQ(slider.range(), "31..80 in 0..100");
}

TEST_P(CRangeSliderMouseTest, ReleaseOfAnyButtonEndsTheGrab) {
    shown.press(28);
    support::mouseRelease(&slider, shown.at(38), Button::Right);
    EXPECT_EQ(slider.Lower(), 31);
    lines();
    shown.move(60);
    EXPECT_EQ(lines(), Lines());
}

TEST_P(CRangeSliderMouseTest, MoveWithAnotherButtonStillDrags) {
    shown.press(28);
    support::mouseMove(&slider, shown.at(38), Button::Right);
    EXPECT_EQ(slider.Lower(), 31);
}

TEST_P(CRangeSliderMouseTest, PressOutsideOfAllElementsPaintsOnly) {
    shown.press(5);
    EXPECT_EQ(lines(), Lines{"paint"});
    shown.move(60);
    EXPECT_EQ(lines(), Lines());
}

TEST_P(CRangeSliderMouseTest, PressOutsideDuringADragLeavesTheGrabAndItsOffset) {
    shown.press(28);
    shown.press(5);
    shown.move(38);
    EXPECT_EQ(slider.range(), "31..80 in 0..100");
}

TEST_P(CRangeSliderMouseTest, SecondPressGrabsAnotherElement) {
    shown.press(28);
    shown.press(100);
    shown.move(90);
    EXPECT_EQ(slider.range(), "20..71 in 0..100");
}

TEST_P(CRangeSliderMouseTest, DoubleClickCountsAsAPress) {
    support::mouseDoubleClick(&slider, shown.at(5));
    EXPECT_EQ(lines(), (Lines{"paint", "paint"}));
}

TEST_P(CRangeSliderMouseTest, NullEventsDoNothing) {
    slider.mousePressEvent(nullptr);
    slider.mouseMoveEvent(nullptr);
    slider.mouseReleaseEvent(nullptr);
    EXPECT_EQ(lines(), Lines());
    EXPECT_EQ(slider.range(), "20..80 in 0..100");
}

TEST_P(CRangeSliderMouseTest, NullMoveLeavesTheGrabAndNullReleaseEndsIt) {
    shown.press(28);
    lines();
    slider.mouseMoveEvent(nullptr);
    EXPECT_EQ(lines(), Lines());
    shown.move(38);
    EXPECT_EQ(slider.Lower(), 31);
    lines();

    slider.mouseReleaseEvent(nullptr);

    EXPECT_EQ(lines(), Lines{"paint"});
    shown.move(60);
    EXPECT_EQ(slider.Lower(), 31);
}

TEST_P(CRangeSliderMouseTest, HidingEndsTheDrag) {
    shown.press(28);
    slider.hide();
    support::show(&slider);
    lines();
    shown.move(60);
    shown.release(60);
    EXPECT_EQ(lines(), Lines());
}

TEST_P(CRangeSliderMouseTest, HidingTheWindowEndsTheDrag) {
    shown.press(28);
    shown.m_window.hide();
    shown.m_window.show();
    support::processEvents();
    lines();
    shown.move(60);
    EXPECT_EQ(lines(), Lines());
}

TEST_P(CRangeSliderMouseTest, MoveWhileHiddenEndsTheDragWithoutMoving) {
    slider.hide();
    shown.press(28); // only code can do this; the grab holds
    lines();
    shown.move(38);
    EXPECT_EQ(lines(), Lines());
    support::show(&slider);
    lines();
    shown.move(38);
    EXPECT_EQ(lines(), Lines());
}

TEST_P(CRangeSliderMouseTest, ReleaseWhileHiddenDoesNotMoveEither) {
    slider.hide();
    shown.press(28);
    shown.release(38);
    EXPECT_EQ(slider.range(), "20..80 in 0..100");
}

TEST_P(CRangeSliderMouseTest, GrabbedInTheDarkItIsDraggedWhenShown) {
    slider.hide();
    shown.press(28);
    support::show(&slider);
    shown.move(38);
    EXPECT_EQ(slider.range(), "31..80 in 0..100");
}

TEST_P(CRangeSliderMouseTest, BarWithoutLengthLeavesThePressToTheHandles) {
    slider.SetRange(50, 50);
    shown.press(66);
    shown.release(75);
    EXPECT_EQ(slider.range(), "50..60 in 0..100");

    slider.SetRange(50, 50);
    shown.press(65);
    shown.release(55);
    EXPECT_EQ(slider.range(), "41..50 in 0..100");
}

TEST_P(CRangeSliderMouseTest, ReversedRangeHasNoBarAndItsLowerHandleIsHitFirst) {
    slider.SetRange(60, 20); // becomes 60..59, where the handles share a pixel
    shown.press(75);
    lines();
    shown.move(65);

    EXPECT_EQ(slider.range(), "51..59 in 0..100");
    EXPECT_EQ(lines(), announced(slider, "L"));
}

TEST_P(CRangeSliderMouseTest, HitsAreThoseOfTheLastRendering) {
    slider.SetMinValue(-100); // would be 36 -> 76
    shown.press(36);
    lines();
    shown.move(36);
    // Grabbed the bar, with an offset that was right before: (36 - 0 - 16 + 1) / 0.5 - 100
    EXPECT_EQ(slider.range(), "-58..2 in -100..100");
}

TEST_P(CRangeSliderMouseTest, BoundOfASingleValueCanBeDraggedWithoutEffect) {
    slider.SetBound(50, 50);
    lines();
    for (const int along : {5, 20}) {
        shown.press(along);
        shown.move(100);
        shown.move(-100);
        shown.release(60);
    }
    EXPECT_EQ(slider.range(), "50..50 in 50..50");
}

TEST_P(CRangeSliderMouseTest, WithoutRoomADragGoesToTheEnds) {
    StShownSlider narrow(GetParam(), c_middle, 32); // both ends at 16: no bar
    narrow.press(5);
    narrow.move(0);
    EXPECT_EQ(narrow.m_slider.range(), "0..80 in 0..100");
    narrow.release(30);
    EXPECT_EQ(narrow.m_slider.range(), "80..80 in 0..100");
}

TEST_P(CRangeSliderMouseTest, EveryPointGrabsWhatIsPaintedThere) {
    for (int along = -2; along <= 134; ++along) {
        for (const int across : {-1, 0, 7, 15, 16}) {
            CRangeSliderModel model(20, 80, 0, 100, 132);
            Lines expected;
            model.TellTo(&expected, true);
            slider.SetRange(20, 80);
            lines();

            support::mousePress(&slider, shown.at(along, across));
            shown.move(along + 20);
            support::mouseRelease(&slider, shown.at(along + 20, across));
            model.Press(along, across);
            model.Drag(along + 20);
            model.Release(along + 20);

            ASSERT_EQ(lines(), expected) << along << ", " << across;
        }
    }
}

TEST_P(CRangeSliderMouseTest, EveryMoveOfEveryElementIsTheModels) {
    slider.m_bTellPaintings = false;
    for (const int grabbed : {20, 28, 35, 36, 50, 95, 96, 104, 111}) {
        CRangeSliderModel model(20, 80, 0, 100, 132);
        Lines expected;
        model.TellTo(&expected, false);
        slider.SetRange(20, 80);
        lines();

        shown.press(grabbed);
        model.Press(grabbed, 8);
        for (int along = -40; along <= 170; ++along) {
            shown.move(along);
            model.Drag(along);
            ASSERT_EQ(lines(), expected) << grabbed << " to " << along;
            expected.clear();
        }
        shown.release(28);
        model.Release(28);
        ASSERT_EQ(slider.range(), model.State()) << grabbed;
    }
}
