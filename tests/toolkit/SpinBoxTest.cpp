#include <qt3/SpinBox.h>

#include "Events.h"
#include "Recorder.h"

#include <qt3/WidgetFunctions.h>

#include <gtest/gtest.h>

#include <qlineedit.h>
#include <qwidget.h>

#include <functional>
#include <ostream>

using support::Lines;

namespace {

/// A spin box with the focus, beside a field that can take it, in [0, 100] at 42.
struct StFocusedBox {
    StFocusedBox() : other(&window), box(0, 100, 1, &window, "box") {
        window.resize(200, 100);
        box.move(0, 50);
        box.setValue(42);
        recorder.tap(&box, "valueChanged(int)", "box");
        support::giveFocus(&box);
        recorder.take();
    }

    /// Replaces the text.
    void type(const char* text) {
        box.selectAll();
        support::typeText(&box, text);
    }

    std::string text() const { return support::text(box.text()); }

    QWidget window;
    QLineEdit other;
    qt3::SpinBox box;
    support::Recorder recorder;
};

struct CommitRow {
    const char* name;
    std::function<void(StFocusedBox&)> commit;
    Lines heard;
    int value;
};

void PrintTo(const CommitRow& row, std::ostream* out) {
    *out << row.name;
}

std::string nameOfRow(const testing::TestParamInfo<CommitRow>& info) {
    return info.param.name;
}

class SpinBoxCommitTest : public testing::TestWithParam<CommitRow> {};

} // namespace

TEST(SpinBoxTest, HasWhatItIsMadeWith) {
    QWidget window;
    const qt3::SpinBox box(5, 50, 3, &window, "box");
    EXPECT_EQ(box.minValue(), 5);
    EXPECT_EQ(box.maxValue(), 50);
    EXPECT_EQ(box.lineStep(), 3);
    EXPECT_EQ(box.parentWidget(), &window);
    EXPECT_EQ(qt3::name(&box), "box");
}

TEST(SpinBoxTest, NumberBelowTheMinimumIsClampedWhenItIsCommitted) {
    StFocusedBox shown;
    shown.box.setMinValue(7);

    shown.type("1\n");

    EXPECT_EQ(shown.box.value(), 7);
    EXPECT_EQ(shown.text(), "7");
    EXPECT_EQ(shown.recorder.take(), (Lines{"box.valueChanged(7)"}));
}

TEST(SpinBoxTest, NumbersAreTypedBetweenPrefixAndSuffix) {
    StFocusedBox shown;
    shown.box.setPrefix("about ");
    shown.box.setSuffix(" px");

    shown.type("17\n");
    EXPECT_EQ(shown.text(), "about 17 px");
    shown.type("8");
    EXPECT_EQ(shown.box.value(), 8);

    EXPECT_EQ(shown.text(), "about 8 px");
    EXPECT_EQ(shown.recorder.take(), (Lines{"box.valueChanged(17)", "box.valueChanged(8)"}));
}

TEST(SpinBoxTest, NumberBelowTheMinimumIsClampedBeforeASuffixToo) {
    StFocusedBox shown;
    shown.box.setMinValue(7);
    shown.box.setSuffix(" px");

    shown.type("1\n");

    EXPECT_EQ(shown.box.value(), 7);
    EXPECT_EQ(shown.text(), "7 px");
}

TEST(SpinBoxTest, LettersAndNumbersOutOfTheRangeAreRefusedBeforeASuffixToo) {
    StFocusedBox shown;
    shown.box.setSuffix(" px");

    shown.type("1x01");

    EXPECT_EQ(shown.box.value(), 10);
    EXPECT_EQ(shown.text(), "10 px");
}

TEST(SpinBoxTest, SignOfAStepDoesNotCount) {
    StFocusedBox shown;
    shown.box.setLineStep(-3);
    shown.box.stepUp();
    EXPECT_EQ(shown.box.value(), 45);
}

TEST(SpinBoxTest, SignAloneGivesWayToTheValueInForce) {
    StFocusedBox shown;
    shown.box.setMinValue(-20);

    shown.type("-\n");

    EXPECT_EQ(shown.box.value(), 42);
    EXPECT_EQ(shown.text(), "42");
}

TEST(SpinBoxTest, NumbersCanBeTypedWhereOnlyOneIsAllowed) {
    StFocusedBox shown;
    shown.box.setMinValue(100);

    shown.type("007");
    EXPECT_EQ(shown.text(), "007");

    EXPECT_EQ(shown.box.value(), 100);
    EXPECT_EQ(shown.text(), "100");
}

TEST(SpinBoxTest, StepByKeyGoesFromTheTypedNumberAlsoAwayFromAnEnd) {
    StFocusedBox shown;
    shown.box.setValue(0);
    shown.recorder.take();

    shown.type("50");
    support::keyClick(&shown.box, Qt::Key_Down);

    EXPECT_EQ(shown.recorder.take(), (Lines{"box.valueChanged(50)", "box.valueChanged(49)"}));
}

TEST(SpinBoxTest, StepByWheelGoesFromTheTypedNumberAlsoAwayFromAnEnd) {
    StFocusedBox shown;
    shown.box.setValue(100);
    shown.recorder.take();

    shown.type("50");
    support::wheel(&shown.box, 120);

    EXPECT_EQ(shown.recorder.take(), (Lines{"box.valueChanged(50)", "box.valueChanged(51)"}));
}

TEST(SpinBoxTest, NewStepLeavesTypedTextWaiting) {
    StFocusedBox shown;
    shown.type("15");

    shown.box.setLineStep(7);

    EXPECT_EQ(shown.text(), "15");
    EXPECT_EQ(shown.recorder.take(), Lines());
    EXPECT_EQ(shown.box.value(), 15);
    EXPECT_EQ(shown.recorder.take(), (Lines{"box.valueChanged(15)"}));
}

TEST(SpinBoxTest, RefusedKeyDropsTheSelectionSoThatTheNextOneIsAppended) {
    StFocusedBox shown;

    shown.type("-7"); // nothing below 0

    EXPECT_EQ(shown.text(), "42"); // 427 is refused too
    shown.type("-");
    support::keyClick(&shown.box, Qt::Key_Backspace);
    support::typeText(&shown.box, "7");
    EXPECT_EQ(shown.text(), "47");
}

TEST(SpinBoxTest, StartsAtItsMinimumWhateverItsSign) {
    QWidget window;
    EXPECT_EQ(qt3::SpinBox(-50, 50, 1, &window).value(), -50);
    EXPECT_EQ(qt3::SpinBox(-50, -10, 1, &window).value(), -50);
    EXPECT_EQ(qt3::SpinBox(10, 50, 1, &window).value(), 10);
}

TEST(SpinBoxTest, WithoutARangeHasZeroToNinetyNine) {
    QWidget window;
    const qt3::SpinBox box(&window, "box");
    EXPECT_EQ(box.minValue(), 0);
    EXPECT_EQ(box.maxValue(), 99);
    EXPECT_EQ(box.lineStep(), 1);
    EXPECT_EQ(box.value(), 0);
}

TEST(SpinBoxTest, SetValueEmitsOnceAndOnlyForAChange) {
    StFocusedBox focused;
    focused.box.setValue(50);
    EXPECT_EQ(focused.recorder.take(), Lines{"box.valueChanged(50)"});
    focused.box.setValue(50);
    EXPECT_EQ(focused.recorder.take(), Lines());
    focused.box.setValue(500);
    EXPECT_EQ(focused.recorder.take(), Lines{"box.valueChanged(100)"});
    EXPECT_EQ(focused.text(), "100");
}

TEST(SpinBoxTest, SetValueThrowsTypedTextAway) {
    StFocusedBox focused;
    focused.type("77");
    focused.box.setValue(50);
    EXPECT_EQ(focused.recorder.take(), Lines{"box.valueChanged(50)"});
    EXPECT_EQ(focused.box.value(), 50);
    EXPECT_EQ(focused.text(), "50");
}

TEST(SpinBoxTest, RangeThatPushesTheValueEmitsIt) {
    StFocusedBox focused;
    focused.box.setMinValue(60);
    EXPECT_EQ(focused.recorder.take(), Lines{"box.valueChanged(60)"});
    focused.box.setMinValue(0);
    EXPECT_EQ(focused.recorder.take(), Lines());
    focused.box.setMaxValue(40);
    EXPECT_EQ(focused.recorder.take(), Lines{"box.valueChanged(40)"});
}

TEST(SpinBoxTest, EndOfTheRangeTakesTheOtherEndAlong) {
    StFocusedBox focused;
    focused.box.setMinValue(150);
    EXPECT_EQ(focused.box.maxValue(), 150);
    focused.box.setMaxValue(-20);
    EXPECT_EQ(focused.box.minValue(), -20);
    EXPECT_EQ(focused.box.value(), -20);
}

TEST(SpinBoxTest, NegativeLineStepLosesItsSign) {
    StFocusedBox focused;
    focused.box.setLineStep(-5);
    EXPECT_EQ(focused.box.lineStep(), 5);
    focused.box.stepUp();
    EXPECT_EQ(focused.box.value(), 47);
}

TEST(SpinBoxTest, TypedTextIsNotAnnouncedKeyByKey) {
    StFocusedBox focused;
    focused.type("77");
    EXPECT_EQ(focused.recorder.take(), Lines());
    EXPECT_EQ(focused.text(), "77");
}

TEST_P(SpinBoxCommitTest, CountsTypedText) {
    StFocusedBox focused;
    focused.type("77");

    GetParam().commit(focused);

    EXPECT_EQ(focused.recorder.take(), GetParam().heard);
    EXPECT_EQ(focused.box.value(), GetParam().value);
    EXPECT_EQ(focused.recorder.take(), Lines());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SpinBoxCommitTest,
    testing::Values(
        CommitRow{"Return",
                  [](StFocusedBox& focused) { support::keyClick(&focused.box, Qt::Key_Return); },
                  Lines{"box.valueChanged(77)"}, 77},
        CommitRow{"Enter",
                  [](StFocusedBox& focused) { support::keyClick(&focused.box, Qt::Key_Enter); },
                  Lines{"box.valueChanged(77)"}, 77},
        CommitRow{"LeavingTheBox",
                  [](StFocusedBox& focused) { support::giveFocus(&focused.other); },
                  Lines{"box.valueChanged(77)"}, 77},
        CommitRow{"HidingTheBox",
                  [](StFocusedBox& focused) {
                      focused.box.hide();
                      support::processEvents();
                  },
                  Lines{"box.valueChanged(77)"}, 77},
        CommitRow{"AskingForTheValue",
                  [](StFocusedBox& focused) { EXPECT_EQ(focused.box.value(), 77); },
                  Lines{"box.valueChanged(77)"}, 77},
        CommitRow{"AKeyThatSteps",
                  [](StFocusedBox& focused) { support::keyClick(&focused.box, Qt::Key_Up); },
                  Lines{"box.valueChanged(77)", "box.valueChanged(78)"}, 78},
        CommitRow{"AStepFromCode", [](StFocusedBox& focused) { focused.box.stepDown(); },
                  Lines{"box.valueChanged(77)", "box.valueChanged(76)"}, 76}),
    nameOfRow);

TEST(SpinBoxTest, TypedValueInForceIsNotAnnounced) {
    StFocusedBox focused;
    focused.type("42\n");
    EXPECT_EQ(focused.recorder.take(), Lines());
}

TEST(SpinBoxTest, SecondReturnIsNotAnnounced) {
    StFocusedBox focused;
    focused.type("77\n");
    focused.recorder.take();
    support::keyClick(&focused.box, Qt::Key_Return);
    EXPECT_EQ(focused.recorder.take(), Lines());
}

TEST(SpinBoxTest, TypingOutOfTheRangeIsRefused) {
    StFocusedBox focused;
    support::keyClick(&focused.box, Qt::Key_End);
    support::typeText(&focused.box, "9");
    EXPECT_EQ(focused.text(), "42");
}

TEST(SpinBoxTest, EmptyTextBringsTheOldValueBack) {
    StFocusedBox focused;
    focused.box.selectAll();
    support::keyClick(&focused.box, Qt::Key_Delete);
    support::keyClick(&focused.box, Qt::Key_Return);
    EXPECT_EQ(focused.recorder.take(), Lines());
    EXPECT_EQ(focused.box.value(), 42);
    EXPECT_EQ(focused.text(), "42");
}

TEST(SpinBoxTest, ListenerSeesTheNewValueInTheBox) {
    StFocusedBox focused;
    int seen = 0;
    qt3::SignalTap tap;
    tap.listen(&focused.box, "valueChanged(int)",
               [&](const std::string&) { seen = focused.box.value(); });
    focused.type("77\n");
    EXPECT_EQ(seen, 77);
}
