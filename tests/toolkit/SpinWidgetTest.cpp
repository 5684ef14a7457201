#include <qt3/SpinWidget.h>

#include "Events.h"
#include "Recorder.h"

#include <gtest/gtest.h>
#include <limits>
#include <qapplication.h>
#include <qlineedit.h>
#include <qpushbutton.h>
#include <qt3/WheelSteps.h>

using support::Button;
using support::Lines;

// QRect's own output differs between the toolkits.
void PrintTo(const QRect& rect, std::ostream* out) {
    *out << rect.x() << ',' << rect.y() << ' ' << rect.width() << 'x' << rect.height();
}

namespace {

const std::string c_sUp = "spin.stepUpPressed()";
const std::string c_sDown = "spin.stepDownPressed()";

class SpinWidget : public testing::Test {
protected:
    SpinWidget() : m_spin(&m_window) {
        m_window.resize(200, 100);
        m_spin.resize(100, 24);
        m_spin.setEditWidget(new QLineEdit(&m_spin));
        m_recorder.tap(&m_spin, "stepUpPressed()", "spin");
        m_recorder.tap(&m_spin, "stepDownPressed()", "spin");
        support::show(&m_window);
    }

    QPoint up() const { return m_spin.upRect().center(); }
    QPoint down() const { return m_spin.downRect().center(); }
    QPoint elsewhere() const { return QPoint(40, 12); }

    // The lines are added up, because a repeat may come in between.
    bool stepsAgain() {
        return support::waitUntil([this] { return !m_recorder.take().empty(); });
    }

    // As long as a repeat that goes on would need to show itself.
    bool staysQuiet() {
        return !support::waitUntil([this] { return !m_recorder.take().empty(); }, 450);
    }

    QWidget m_window;
    qt3::SpinWidget m_spin;
    support::Recorder m_recorder;
};

} // namespace

TEST_F(SpinWidget, BeginsWithBothButtonsArrowsAndNoEditor) {
    qt3::SpinWidget fresh(&m_window, "fresh");

    EXPECT_TRUE(fresh.isUpEnabled());
    EXPECT_TRUE(fresh.isDownEnabled());
    EXPECT_EQ(fresh.buttonSymbols(), qt3::SpinWidget::UpDownArrows);
    EXPECT_EQ(fresh.editWidget(), nullptr);
    EXPECT_EQ(fresh.focusPolicy(), QLineEdit(&m_window).focusPolicy());
    EXPECT_EQ(support::text(QString::fromLatin1(fresh.name())), "fresh");
}

TEST_F(SpinWidget, EditorBecomesAChildAndTakesTheFocus) {
    qt3::SpinWidget spin(&m_window);
    QLineEdit* editor = new QLineEdit(&m_window);

    spin.setEditWidget(editor);

    EXPECT_EQ(editor->parentWidget(), &spin);
    EXPECT_EQ(spin.editWidget(), editor);
    EXPECT_EQ(spin.focusProxy(), editor);
}

TEST_F(SpinWidget, ButtonsAndEditorShareTheFrame) {
    EXPECT_EQ(m_spin.upRect(), QRect(82, 2, 16, 10));
    EXPECT_EQ(m_spin.downRect(), QRect(82, 12, 16, 10));
    EXPECT_EQ(m_spin.editWidget()->geometry(), QRect(2, 2, 80, 20));
}

TEST_F(SpinWidget, ResizingArrangesAnew) {
    m_spin.resize(120, 30);

    EXPECT_EQ(m_spin.upRect(), QRect(98, 2, 20, 13));
    EXPECT_EQ(m_spin.downRect(), QRect(98, 15, 20, 13));
    EXPECT_EQ(m_spin.editWidget()->geometry(), QRect(2, 2, 96, 26));
}

TEST_F(SpinWidget, ArrangePutsAMovedEditorBack) {
    m_spin.editWidget()->setGeometry(0, 0, 5, 5);

    m_spin.arrange();

    EXPECT_EQ(m_spin.editWidget()->geometry(), QRect(2, 2, 80, 20));
}

TEST_F(SpinWidget, LeftPressStepsAtOnce) {
    support::mousePress(&m_spin, up());
    EXPECT_EQ(m_recorder.take(), Lines{c_sUp});
    support::mouseRelease(&m_spin, up());

    support::mousePress(&m_spin, down());
    EXPECT_EQ(m_recorder.take(), Lines{c_sDown});
    support::mouseRelease(&m_spin, down());
    EXPECT_EQ(m_recorder.take(), Lines{});
}

TEST_F(SpinWidget, PressBesideTheButtonsDoesNothing) {
    support::mouseClick(&m_spin, elsewhere());

    EXPECT_EQ(m_recorder.take(), Lines{});
}

TEST_F(SpinWidget, HeldButtonRepeatsUntilTheRelease) {
    support::mousePress(&m_spin, down());
    m_recorder.take();

    EXPECT_TRUE(stepsAgain());
    EXPECT_TRUE(stepsAgain());
    support::mouseRelease(&m_spin, down());
    m_recorder.take();
    EXPECT_TRUE(staysQuiet());
}

TEST_F(SpinWidget, OtherMouseButtonsDoNotStep) {
    support::mouseClick(&m_spin, up(), Button::Right);
    support::mouseClick(&m_spin, down(), Button::Middle);

    EXPECT_EQ(m_recorder.take(), Lines{});
}

TEST_F(SpinWidget, PressOfAnotherMouseButtonStopsTheRepeat) {
    for (const Button button : {Button::Right, Button::Middle}) {
        support::mousePress(&m_spin, up());
        m_recorder.take();

        support::mousePress(&m_spin, up(), button);

        EXPECT_TRUE(staysQuiet());
        support::mouseRelease(&m_spin, up());
    }
}

TEST_F(SpinWidget, ReleaseOfAnotherMouseButtonIsIgnored) {
    support::mousePress(&m_spin, up());
    m_recorder.take();

    support::mouseRelease(&m_spin, up(), Button::Right);

    EXPECT_TRUE(stepsAgain());
    support::mouseRelease(&m_spin, up());
}

TEST_F(SpinWidget, RepeatPausesWhileTheMouseIsOffTheButton) {
    support::mousePress(&m_spin, up());
    support::mouseMove(&m_spin, elsewhere());
    m_recorder.take();
    EXPECT_TRUE(staysQuiet());

    support::mouseMove(&m_spin, up());
    EXPECT_EQ(m_recorder.take(), Lines{});
    EXPECT_TRUE(stepsAgain());
    EXPECT_TRUE(stepsAgain());
    support::mouseRelease(&m_spin, up());
}

TEST_F(SpinWidget, MovingOntoTheOtherButtonDoesNotStep) {
    support::mousePress(&m_spin, up());
    m_recorder.take();

    support::mouseMove(&m_spin, down());

    EXPECT_TRUE(staysQuiet());
    support::mouseRelease(&m_spin, down());
}

TEST_F(SpinWidget, SecondPressWithoutReleaseStepsOnAnotherButtonOnly) {
    support::mousePress(&m_spin, up());
    support::mousePress(&m_spin, up());
    EXPECT_EQ(m_recorder.take(), Lines{c_sUp});

    support::mousePress(&m_spin, down());
    EXPECT_EQ(m_recorder.take(), Lines{c_sDown});
    EXPECT_TRUE(stepsAgain());
    support::mouseRelease(&m_spin, down());
}

TEST_F(SpinWidget, DoubleClickStepsTwice) {
    support::mouseDoubleClick(&m_spin, up());

    EXPECT_EQ(m_recorder.take(), (Lines{c_sUp, c_sUp}));
}

TEST_F(SpinWidget, DisabledButtonDoesNotTakeAPress) {
    m_spin.setUpEnabled(false);

    support::mouseClick(&m_spin, up());
    EXPECT_EQ(m_recorder.take(), Lines{});
    support::mouseClick(&m_spin, down());
    EXPECT_EQ(m_recorder.take(), Lines{c_sDown});
}

TEST_F(SpinWidget, DisablingTheHeldButtonEndsTheRepeat) {
    support::mousePress(&m_spin, up());
    m_recorder.take();

    m_spin.setUpEnabled(false);

    EXPECT_TRUE(staysQuiet());
    support::mouseRelease(&m_spin, up());
}

TEST_F(SpinWidget, DisablingTheOtherButtonLeavesTheRepeat) {
    support::mousePress(&m_spin, up());
    m_recorder.take();

    m_spin.setDownEnabled(false);

    EXPECT_TRUE(stepsAgain());
    support::mouseRelease(&m_spin, up());
}

TEST_F(SpinWidget, HidingDoesNotEndTheRepeat) {
    support::mousePress(&m_spin, up());
    m_recorder.take();

    m_spin.hide();

    EXPECT_TRUE(stepsAgain());
    support::mouseRelease(&m_spin, up());
}

TEST_F(SpinWidget, LosingTheActiveWindowEndsTheRepeat) {
    QWidget other;
    support::mousePress(&m_spin, up());

    support::show(&other);
    m_recorder.take();

    EXPECT_TRUE(staysQuiet());
}

TEST_F(SpinWidget, FlagsStopTheMouseOnly) {
    m_spin.setUpEnabled(false);
    m_spin.setDownEnabled(false);

    m_spin.stepUp();
    m_spin.stepDown();
    support::wheel(&m_spin, 120);

    EXPECT_EQ(m_recorder.take(), (Lines{c_sUp, c_sDown, c_sUp}));
}

TEST_F(SpinWidget, DisablingTheWidgetKeepsTheFlags) {
    m_spin.setEnabled(false);

    EXPECT_TRUE(m_spin.isUpEnabled());
    EXPECT_TRUE(m_spin.isDownEnabled());
}

TEST_F(SpinWidget, ButtonDisabledWithTheMouseElsewhereStaysTheOneHeld) {
    support::mousePress(&m_spin, up());
    support::mouseMove(&m_spin, elsewhere());
    m_spin.setUpEnabled(false);
    m_spin.setUpEnabled(true);
    m_recorder.take();

    support::mousePress(&m_spin, up()); // no release has come: no further step

    EXPECT_EQ(m_recorder.take(), Lines());
}

TEST_F(SpinWidget, FlagChangedWhileDisabledClearsBothAndEnablingRestoresNothing) {
    m_spin.setEnabled(false);

    m_spin.setUpEnabled(true); // no change
    EXPECT_TRUE(m_spin.isDownEnabled());
    m_spin.setUpEnabled(false);
    EXPECT_FALSE(m_spin.isDownEnabled());
    m_spin.setEnabled(true);
    EXPECT_FALSE(m_spin.isUpEnabled());
    EXPECT_FALSE(m_spin.isDownEnabled());
}

TEST_F(SpinWidget, SymbolsAreStored) {
    m_spin.setButtonSymbols(qt3::SpinWidget::PlusMinus);

    EXPECT_EQ(m_spin.buttonSymbols(), qt3::SpinWidget::PlusMinus);
}

TEST_F(SpinWidget, WheelCountsWholeNotches) {
    struct StRow {
        int nDelta;
        Lines vSteps;
    };
    for (const StRow& row : {StRow{120, {c_sUp}}, StRow{60, {}}, StRow{60, {}}, StRow{119, {}},
                             StRow{240, {c_sUp, c_sUp}}, StRow{-241, {c_sDown, c_sDown}}}) {
        SCOPED_TRACE(row.nDelta);
        support::wheel(&m_spin, row.nDelta);
        EXPECT_EQ(m_recorder.take(), row.vSteps);
    }
}

TEST_F(SpinWidget, WheelOverTheEditorSteps) {
    support::wheel(m_spin.editWidget(), -120);

    EXPECT_EQ(m_recorder.take(), Lines{c_sDown});
}

TEST_F(SpinWidget, SlotsStep) {
    QPushButton button(&m_window);
    QObject::connect(&button, SIGNAL(clicked()), &m_spin, SLOT(stepDown()));

    support::mouseClick(&button);

    EXPECT_EQ(m_recorder.take(), Lines{c_sDown});
}

namespace {

// Pixels that differ within a part of two pictures of the same size.
int differences(const QImage& a, const QImage& b, const QRect& part) {
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            count += support::pixel(a, x, y) != support::pixel(b, x, y) ? 1 : 0;
    return count;
}

} // namespace

TEST_F(SpinWidget, PressedButtonLooksDifferent) {
    const QImage before = support::grab(&m_spin);

    support::mousePress(&m_spin, up());

    const QImage pressed = support::grab(&m_spin);
    EXPECT_GT(differences(before, pressed, m_spin.upRect()), 0);
    EXPECT_EQ(differences(before, pressed, m_spin.downRect()), 0);
    support::mouseRelease(&m_spin, up());
    EXPECT_EQ(differences(before, support::grab(&m_spin), m_spin.rect()), 0);
}

TEST_F(SpinWidget, ButtonPressedWithTheMouseOffItLooksReleased) {
    const QImage before = support::grab(&m_spin);
    support::mousePress(&m_spin, up());

    support::mouseMove(&m_spin, elsewhere());

    EXPECT_EQ(differences(before, support::grab(&m_spin), m_spin.upRect()), 0);
    support::mouseRelease(&m_spin, elsewhere());
}

TEST_F(SpinWidget, DisabledButtonLooksDifferent) {
    const QImage before = support::grab(&m_spin);

    m_spin.setDownEnabled(false);

    const QImage disabled = support::grab(&m_spin);
    EXPECT_GT(differences(before, disabled, m_spin.downRect()), 0);
    EXPECT_EQ(differences(before, disabled, m_spin.upRect()), 0);
}

TEST_F(SpinWidget, PlusAndMinusLookDifferentFromArrows) {
    const QImage arrows = support::grab(&m_spin);

    m_spin.setButtonSymbols(qt3::SpinWidget::PlusMinus);

    const QImage signs = support::grab(&m_spin);
    EXPECT_GT(differences(arrows, signs, m_spin.upRect()), 0);
    EXPECT_GT(differences(arrows, signs, m_spin.downRect()), 0);
}

TEST_F(SpinWidget, NeedsRoomForButtonsAndFrameAroundTheContents) {
    const QSize size = qt3::sizeAround(&m_spin, QSize(50, 16));

    EXPECT_GE(size.width(), 50 + m_spin.downRect().width());
    EXPECT_GE(size.height(), 16 + 4);
}

TEST(WheelSteps, LessThanANotchAddsNothing) {
    qt3::WheelSteps wheel;

    EXPECT_EQ(wheel.take(&wheel, 60), 0);
    EXPECT_EQ(wheel.take(&wheel, 60), 0);
    EXPECT_EQ(wheel.take(&wheel, -119), 0);
}

TEST(WheelSteps, NotchesCountInBothDirections) {
    qt3::WheelSteps wheel;

    EXPECT_EQ(wheel.take(&wheel, 120), 1);
    EXPECT_EQ(wheel.take(&wheel, 359), 2);
    EXPECT_EQ(wheel.take(&wheel, -241), -2);
}

TEST(WheelSteps, AllNotchesOfAnEventCount) {
    qt3::WheelSteps wheel;

    EXPECT_EQ(wheel.take(&wheel, 120 * 5000), 5000);
    // 17895697 notches, of which a float holds the even number below.
    EXPECT_EQ(wheel.take(&wheel, std::numeric_limits<int>::max()), 17895696);
    EXPECT_EQ(wheel.take(&wheel, std::numeric_limits<int>::min()), -17895696);
    EXPECT_EQ(wheel.take(&wheel, 120), 1);
}

TEST(WheelSteps, OwnersMayAlternate) {
    qt3::WheelSteps wheel;
    const int one = 0;
    const int other = 0;

    EXPECT_EQ(wheel.take(&one, 120), 1);
    EXPECT_EQ(wheel.take(&other, -120), -1);
    EXPECT_EQ(wheel.take(&one, 119), 0);
}
