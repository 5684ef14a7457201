#include <qt3/Slider.h>

#include "Events.h"
#include "Recorder.h"

#include <qt3/WidgetFunctions.h>

#include <gtest/gtest.h>

#include <qwidget.h>

using support::Lines;

namespace {

/// A slider on the screen whose handle of 11 pixels has two pixels to go for each of 100 values.
struct StShownSlider {
    explicit StShownSlider(Qt::Orientation orientation, int value)
        : slider(0, 100, 10, value, orientation, &window, "slider") {
        window.resize(300, 300);
        if (orientation == Qt::Vertical)
            slider.setGeometry(0, 0, 30, 211);
        else
            slider.setGeometry(0, 0, 211, 30);
        support::giveFocus(&slider);
        for (const char* signal :
             {"valueChanged(int)", "sliderMoved(int)", "sliderPressed()", "sliderReleased()"})
            recorder.tap(&slider, signal, "slider");
    }

    QPoint handle(int position) const {
        return slider.orientation() == Qt::Vertical ? QPoint(15, 2 * position + 5)
                                                    : QPoint(2 * position + 5, 15);
    }

    int valueAfter(int key) {
        support::keyClick(&slider, key);
        return slider.value();
    }

    QWidget window;
    qt3::Slider slider;
    support::Recorder recorder;
};

class SliderDragTest : public testing::TestWithParam<Qt::Orientation> {};

std::string nameOfOrientation(const testing::TestParamInfo<Qt::Orientation>& info) {
    return info.param == Qt::Vertical ? "Vertical" : "Horizontal";
}

} // namespace

TEST(SliderTest, HasWhatItIsMadeWith) {
    QWidget window;
    const qt3::Slider slider(10, 60, 5, 20, Qt::Vertical, &window, "slider");
    EXPECT_EQ(slider.minValue(), 10);
    EXPECT_EQ(slider.maxValue(), 60);
    EXPECT_EQ(slider.pageStep(), 5);
    EXPECT_EQ(slider.lineStep(), 1);
    EXPECT_EQ(slider.value(), 20);
    EXPECT_TRUE(slider.orientation() == Qt::Vertical);
    EXPECT_EQ(slider.parentWidget(), &window);
    EXPECT_EQ(qt3::name(&slider), "slider");
}

TEST(SliderTest, ValueOutsideIsClampedAtTheStart) {
    QWidget window;
    EXPECT_EQ(qt3::Slider(10, 60, 5, 90, Qt::Vertical, &window).value(), 60);
    EXPECT_EQ(qt3::Slider(10, 60, 5, 0, Qt::Vertical, &window).value(), 10);
}

TEST(SliderTest, NegativePageStepLosesItsSign) {
    QWidget window;
    qt3::Slider slider(0, 100, 10, 0, Qt::Horizontal, &window);
    slider.setPageStep(-5);
    EXPECT_EQ(slider.pageStep(), 5);
}

TEST(SliderTest, SetValueEmitsOnceAndOnlyForAChange) {
    StShownSlider shown(Qt::Horizontal, 0);
    shown.slider.setValue(30);
    EXPECT_EQ(shown.recorder.take(), Lines{"slider.valueChanged(30)"});
    shown.slider.setValue(30);
    EXPECT_EQ(shown.recorder.take(), Lines());
    shown.slider.setValue(300);
    EXPECT_EQ(shown.recorder.take(), Lines{"slider.valueChanged(100)"});
    shown.slider.setValue(200);
    EXPECT_EQ(shown.recorder.take(), Lines());
}

TEST(SliderTest, RangeThatPushesTheValueEmitsIt) {
    StShownSlider shown(Qt::Horizontal, 50);
    shown.slider.setMinValue(60);
    EXPECT_EQ(shown.recorder.take(), Lines{"slider.valueChanged(60)"});
    shown.slider.setMinValue(0);
    EXPECT_EQ(shown.recorder.take(), Lines());
    shown.slider.setMaxValue(40);
    EXPECT_EQ(shown.recorder.take(), Lines{"slider.valueChanged(40)"});
}

TEST(SliderTest, EndOfTheRangeTakesTheOtherEndAlong) {
    StShownSlider shown(Qt::Horizontal, 50);
    shown.slider.setMinValue(150);
    EXPECT_EQ(shown.slider.maxValue(), 150);
    shown.slider.setMaxValue(-20);
    EXPECT_EQ(shown.slider.minValue(), -20);
    EXPECT_EQ(shown.slider.value(), -20);
}

INSTANTIATE_TEST_SUITE_P(Both, SliderDragTest, testing::Values(Qt::Horizontal, Qt::Vertical),
                         nameOfOrientation);

TEST_P(SliderDragTest, MinimumIsOnTheLeftOrAtTheTop) {
    StShownSlider shown(GetParam(), 0);
    support::mouseDrag(&shown.slider, shown.handle(0), shown.handle(100));
    EXPECT_EQ(shown.slider.value(), 100);
    support::mouseDrag(&shown.slider, shown.handle(100), shown.handle(0));
    EXPECT_EQ(shown.slider.value(), 0);
}

TEST_P(SliderDragTest, TellsPressThenEachMoveBeforeItsValueThenRelease) {
    StShownSlider shown(GetParam(), 30);
    support::mouseDrag(&shown.slider, shown.handle(30), shown.handle(40), 2);
    EXPECT_EQ(shown.recorder.take(), (Lines{"slider.sliderPressed()", "slider.sliderMoved(35)",
                                            "slider.valueChanged(35)", "slider.sliderMoved(40)",
                                            "slider.valueChanged(40)", "slider.sliderReleased()"}));
}

TEST(SliderTest, ArrowsMoveAVerticalHandleTheWayTheyPoint) {
    StShownSlider shown(Qt::Vertical, 50);
    EXPECT_EQ(shown.valueAfter(Qt::Key_Up), 49);
    EXPECT_EQ(shown.valueAfter(Qt::Key_Down), 50);
}

TEST(SliderTest, ArrowsMoveAHorizontalHandleTheWayTheyPoint) {
    StShownSlider shown(Qt::Horizontal, 50);
    EXPECT_EQ(shown.valueAfter(Qt::Key_Left), 49);
    EXPECT_EQ(shown.valueAfter(Qt::Key_Right), 50);
}

TEST(SliderTest, WheelAwayFromTheUserMovesAVerticalHandleUp) {
    StShownSlider shown(Qt::Vertical, 50);
    support::wheel(&shown.slider, 120);
    EXPECT_LT(shown.slider.value(), 50);
}
