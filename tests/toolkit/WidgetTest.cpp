#include <qt3/Widget.h>

#include "Events.h"
#include "Looks.h"
#include "Specimens.h"

#include <qt3/MetaObject.h>
#include <qt3/Text.h>

#include <gtest/gtest.h>

#include <qapplication.h>
#include <qevent.h>
#include <qstyle.h>
#include <qstylefactory.h>

#include <memory>

using qt3::ascii;
using qt3::fromAscii;
using specimen::CTalkingWidget;
using specimen::Lines;

namespace {

const QColor c_red(255, 0, 0);
const QColor c_green(0, 255, 0);
const QPalette::ColorGroup c_states[] = {QPalette::Active, QPalette::Inactive, QPalette::Disabled};

Lines takeCalls(CTalkingWidget& widget) {
    Lines calls;
    calls.swap(widget.m_vCalls);
    return calls;
}

void sendLanguageChange(QWidget* widget) {
    QEvent event(QEvent::LanguageChange);
    QApplication::sendEvent(widget, &event);
}

} // namespace

TEST(WidgetTest, HasTheParentAndTheNameGiven) {
    QWidget parent;
    const qt3::Widget widget(&parent, "child");
    EXPECT_EQ(widget.parentWidget(), &parent);
    EXPECT_STREQ(widget.name(), "child");
    EXPECT_EQ(qt3::name(&widget), "child");
}

TEST(WidgetTest, WithoutNameIsCalledUnnamed) {
    const qt3::Widget widget;
    EXPECT_STREQ(widget.name(), "unnamed");
    EXPECT_STREQ(widget.name("other"), "other");
    EXPECT_EQ(qt3::name(&widget), "unnamed");
}

TEST(WidgetTest, FlagsMakeADialogOfAChild) {
    QWidget parent;
    const qt3::Widget dialog(&parent, "dialog", qt3::WType_Dialog);
    EXPECT_EQ(dialog.topLevelWidget(), &dialog);
}

TEST(WidgetTest, WithoutFlagsAChildIsNoWindow) {
    QWidget parent;
    const qt3::Widget widget(&parent);
    EXPECT_EQ(widget.topLevelWidget(), &parent);
}

TEST(WidgetTest, CaptionIsWhatWasSet) {
    qt3::Widget widget;
    widget.setCaption(fromAscii("Header Fields"));
    EXPECT_EQ(ascii(widget.caption()), "Header Fields");
}

TEST(WidgetTest, MetaObjectOfADerivedClassContinuesWithTheToolkitsWidget) {
    const CTalkingWidget widget;
    EXPECT_EQ(qt3::className(&widget), "specimen::CTalkingWidget");
    EXPECT_EQ(qt3::superClassName(&widget), "QWidget");
}

TEST(WidgetTest, BackgroundColorReachesAllStates) {
    qt3::Widget widget;
    widget.setPaletteBackgroundColor(c_red);
    EXPECT_EQ(widget.paletteBackgroundColor(), c_red);
    for (const QPalette::ColorGroup state : c_states)
        EXPECT_EQ(qt3::colorGroup(&widget, state).background(), c_red);
}

TEST(WidgetTest, ForegroundColorReachesAllStates) {
    qt3::Widget widget;
    widget.setPaletteForegroundColor(c_green);
    EXPECT_EQ(widget.paletteForegroundColor(), c_green);
    for (const QPalette::ColorGroup state : c_states)
        EXPECT_EQ(qt3::colorGroup(&widget, state).foreground(), c_green);
}

TEST(WidgetTest, VisualBackgroundModeChoosesTheRoleThatIsColored) {
    qt3::Widget widget;
    const QColor before = widget.colorGroup().background();
    widget.setBackgroundMode(qt3::PaletteBackground, qt3::PaletteBase);

    widget.setPaletteBackgroundColor(c_red);

    EXPECT_EQ(widget.colorGroup().base(), c_red);
    EXPECT_EQ(widget.colorGroup().background(), before);
}

TEST(WidgetTest, ColorGroupFollowsTheEnabledState) {
    qt3::Widget widget;
    EXPECT_EQ(widget.colorGroup().text(), qt3::colorGroup(&widget, QPalette::Active).text());
    widget.setEnabled(false);
    EXPECT_EQ(widget.colorGroup().text(), qt3::colorGroup(&widget, QPalette::Disabled).text());
    EXPECT_NE(widget.colorGroup().text(), qt3::colorGroup(&widget, QPalette::Active).text());
}

TEST(WidgetTest, SetEnabledTellsTheChangeOnce) {
    CTalkingWidget widget;
    widget.setEnabled(false);
    EXPECT_EQ(takeCalls(widget), (Lines{"enabledChange(true)", "setEnabled(false)"}));
}

TEST(WidgetTest, SetEnabledToTheSameStateTellsNoChange) {
    CTalkingWidget widget;
    widget.setEnabled(true);
    EXPECT_EQ(takeCalls(widget), (Lines{"setEnabled(true)"}));
}

TEST(WidgetTest, SetEnabledThroughThePlainClassReachesTheOverride) {
    CTalkingWidget widget;
    QWidget* const plain = &widget;
    plain->setEnabled(false);
    EXPECT_EQ(takeCalls(widget), (Lines{"enabledChange(true)", "setEnabled(false)"}));
    EXPECT_FALSE(widget.isEnabled());
}

TEST(WidgetTest, DisablingTheParentReachesTheOverride) {
    QWidget parent;
    CTalkingWidget widget(&parent);
    parent.setEnabled(false);
    EXPECT_EQ(takeCalls(widget), (Lines{"enabledChange(true)", "setEnabled(false)"}));
    EXPECT_FALSE(widget.isEnabled());
}

TEST(WidgetTest, EnablingTheParentReachesTheOverride) {
    QWidget parent;
    CTalkingWidget widget(&parent);
    parent.setEnabled(false);
    takeCalls(widget);

    parent.setEnabled(true);

    EXPECT_EQ(takeCalls(widget), (Lines{"enabledChange(false)", "setEnabled(true)"}));
    EXPECT_TRUE(widget.isEnabled());
}

TEST(WidgetTest, DisabledByItselfItStaysSoWhenTheParentIsEnabledAgain) {
    QWidget parent;
    CTalkingWidget widget(&parent);
    widget.setEnabled(false);
    parent.setEnabled(false);
    takeCalls(widget);

    parent.setEnabled(true);

    EXPECT_EQ(takeCalls(widget), Lines());
    EXPECT_FALSE(widget.isEnabled());
}

TEST(WidgetTest, LanguageChangeInvokesTheProtectedSlotOfThatName) {
    CTalkingWidget widget;
    sendLanguageChange(&widget);
    EXPECT_EQ(takeCalls(widget), (Lines{"languageChange"}));
}

TEST(WidgetTest, LanguageChangeReachesChildren) {
    QWidget parent;
    CTalkingWidget widget(&parent);
    sendLanguageChange(&parent);
    EXPECT_EQ(takeCalls(widget), (Lines{"languageChange"}));
}

TEST(WidgetTest, LanguageChangeWithoutThatSlotDoesNothing) {
    qt3::Widget widget;
    sendLanguageChange(&widget);
    EXPECT_EQ(ascii(widget.caption()), "");
}

TEST(WidgetTest, NewStyleIsTold) {
    const std::unique_ptr<QStyle> style(QStyleFactory::create(fromAscii("windows")));
    CTalkingWidget widget;
    widget.setStyle(style.get());
    EXPECT_EQ(takeCalls(widget), (Lines{"styleChange"}));
}

TEST(WidgetTest, RepaintPaintsAtOnceWhileVisible) {
    struct CPainted : qt3::Widget {
        void paintEvent(QPaintEvent*) override { ++m_nPaints; }
        int m_nPaints = 0;
    } widget;
    qt3::repaint(&widget, false);
    EXPECT_EQ(widget.m_nPaints, 0);
    support::show(&widget);
    widget.m_nPaints = 0;

    qt3::repaint(&widget, false);
    qt3::repaint(&widget, true);

    EXPECT_EQ(widget.m_nPaints, 2);
}

TEST(WidgetTest, ClearedPolishKeepsTheWidgetUsable) {
    qt3::Widget widget;
    support::show(&widget);
    qt3::clearPolished(&widget);
    widget.hide();
    support::show(&widget);
    EXPECT_TRUE(widget.isVisible());
}

TEST(WidgetTest, ToolTipIsPlainText) {
    qt3::Widget widget;
    qt3::setToolTip(&widget, fromAscii("<b>1 & 2"));
    EXPECT_EQ(support::toolTip(&widget), "<qt>&lt;b>1 &amp; 2</qt>");
}

TEST(WidgetTest, ToolTipCanBeReplacedAndTakenAway) {
    qt3::Widget widget;
    qt3::setToolTip(&widget, fromAscii("first"));
    qt3::setToolTip(&widget, fromAscii("second"));
    EXPECT_EQ(support::toolTip(&widget), "<qt>second</qt>");
    qt3::setToolTip(&widget, QString());
    EXPECT_EQ(support::toolTip(&widget), "");
    qt3::setToolTip(&widget, QString());
    EXPECT_EQ(support::toolTip(&widget), "");
}

TEST(WidgetTest, ThereIsRoomForWindowsOnTheScreen) {
    qt3::Widget window;
    support::show(&window);
    const QRect room = qt3::availableGeometry(&window);
    EXPECT_GE(room.width(), 640);
    EXPECT_GE(room.height(), 480);
    EXPECT_TRUE(room.contains(window.mapToGlobal(QPoint(0, 0))));
}

TEST(WidgetTest, SizePolicyKeepsHeightForWidth) {
    qt3::Widget widget;
    qt3::setSizePolicy(&widget, QSizePolicy::Preferred, QSizePolicy::Fixed);
    EXPECT_EQ(widget.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    EXPECT_FALSE(widget.sizePolicy().hasHeightForWidth());
}

namespace {

/// A widget of which everything differs from a fresh one, and its parent.
struct StOriginal {
    QWidget parent;
    std::unique_ptr<qt3::Widget> widget{new qt3::Widget(&parent, "original")};

    StOriginal() {
        widget->setMinimumSize(10, 20);
        widget->setMaximumSize(300, 400);
        widget->setGeometry(5, 6, 70, 80);
        widget->setSizePolicy(QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed));
        widget->setPaletteBackgroundColor(c_red);
        widget->setCaption(fromAscii("caption"));
        widget->setEnabled(false);
        new QWidget(widget.get());
    }
};

void expectTakenOver(const qt3::Widget& copy) {
    EXPECT_EQ(copy.minimumSize(), QSize(10, 20));
    EXPECT_EQ(copy.maximumSize(), QSize(300, 400));
    EXPECT_EQ(copy.geometry(), QRect(5, 6, 70, 80));
    EXPECT_EQ(copy.sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed));
    EXPECT_EQ(copy.paletteBackgroundColor(), c_red);
    EXPECT_EQ(ascii(copy.caption()), "caption");
    EXPECT_FALSE(copy.isEnabled());
    EXPECT_STREQ(copy.name(), "original");
}

} // namespace

TEST(WidgetCopyTest, CopyTakesOverWhatCanBeRead) {
    const StOriginal original;
    const qt3::Widget copy(*original.widget);
    expectTakenOver(copy);
    EXPECT_EQ(copy.parentWidget(), &original.parent);
}

TEST(WidgetCopyTest, CopyHasNoChildrenAndIsHidden) {
    const StOriginal original;
    qt3::Widget copy(*original.widget);
    EXPECT_TRUE(support::descendants(&copy).empty());
    EXPECT_FALSE(copy.isVisible());
}

TEST(WidgetCopyTest, CopyOfADialogIsADialog) {
    QWidget parent;
    const qt3::Widget dialog(&parent, "dialog", qt3::WType_Dialog);
    const qt3::Widget copy(dialog);
    EXPECT_EQ(copy.topLevelWidget(), &copy);
    EXPECT_EQ(copy.parentWidget(), &parent);
}

TEST(WidgetCopyTest, CopyOfAnUnnamedWidgetIsUnnamed) {
    const qt3::Widget original;
    const qt3::Widget copy(original);
    EXPECT_STREQ(copy.name(), "unnamed");
}

TEST(WidgetCopyTest, CopyOfAWidgetDisabledByItsParentIsEnabledWithIt) {
    QWidget parent;
    const qt3::Widget original(&parent);
    parent.setEnabled(false);
    const qt3::Widget copy(original);
    EXPECT_FALSE(copy.isEnabled());
    parent.setEnabled(true);
    EXPECT_TRUE(copy.isEnabled());
}

TEST(WidgetCopyTest, CopyFollowsTheApplicationsColorsIfTheOriginalDoes) {
    QWidget parent;
    const qt3::Widget original(&parent);
    const qt3::Widget copy(original);
    parent.setPalette(QPalette(c_green));
    EXPECT_EQ(qt3::colorGroup(&copy, QPalette::Active).button(), c_green);
}

TEST(WidgetCopyTest, OriginalCanGoFirst) {
    StOriginal original;
    const qt3::Widget copy(*original.widget);
    original.widget.reset();
    expectTakenOver(copy);
}

TEST(WidgetCopyTest, CopyCanGoFirst) {
    const StOriginal original;
    std::unique_ptr<qt3::Widget> copy(new qt3::Widget(*original.widget));
    copy.reset();
    expectTakenOver(*original.widget);
}

TEST(WidgetCopyTest, AssignmentKeepsTheParent) {
    const StOriginal original;
    QWidget parent;
    qt3::Widget target(&parent, "target");
    target = *original.widget;
    expectTakenOver(target);
    EXPECT_EQ(target.parentWidget(), &parent);
}

TEST(WidgetCopyTest, AssignmentToItselfChangesNothing) {
    const StOriginal original;
    qt3::Widget& same = *original.widget;
    same = *original.widget;
    expectTakenOver(same);
}

TEST(WidgetCopyTest, TakingOverTheEnabledStateReachesSetEnabledForAChange) {
    CTalkingWidget target;
    qt3::Widget source;
    qt3::takeOver(&target, &source);
    EXPECT_EQ(takeCalls(target), Lines());

    source.setEnabled(false);
    qt3::takeOver(&target, &source);

    EXPECT_EQ(takeCalls(target), (Lines{"enabledChange(true)", "setEnabled(false)"}));
}

TEST(WidgetCopyTest, TakingOverTheEnabledStateInADisabledParentReachesNothingYet) {
    QWidget parent;
    CTalkingWidget target(&parent);
    qt3::Widget source;
    source.setEnabled(false);
    parent.setEnabled(false);
    takeCalls(target);

    qt3::takeOver(&target, &source);
    parent.setEnabled(true);

    EXPECT_EQ(takeCalls(target), Lines());
    EXPECT_FALSE(target.isEnabled());
}
