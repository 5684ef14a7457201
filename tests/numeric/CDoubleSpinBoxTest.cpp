#include "CDoubleSpinBox.h"

#include "CDoubleSpinBoxValidator.h"
#include "Events.h"
#include "Recorder.h"
#include "VirtualPlaces.h"
#include "Warnings.h"

#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <memory>
#include <qlineedit.h>
#include <qstyle.h>
#include <qstylefactory.h>
#include <qt3/LineEdit.h>
#include <qt3/MetaObject.h>
#include <qt3/SignalTap.h>
#include <qt3/SpinWidget.h>
#include <qt3/WidgetFunctions.h>
#include <qwidget.h>
#include <utility>
#include <vector>

using support::Lines;
using support::Modifier;

namespace {

// Opens what is protected, and writes down the calls of what can be overridden.
class Box : public TEVU::CDoubleSpinBox {
public:
    using TEVU::CDoubleSpinBox::CDoubleSpinBox;
    using TEVU::CDoubleSpinBox::currentValueText;
    using TEVU::CDoubleSpinBox::interpretText;
    using TEVU::CDoubleSpinBox::mapTextToValue;
    using TEVU::CDoubleSpinBox::mapValueToText;

    QLineEdit* editor() { return support::child<QLineEdit>(this, "LineEdit_DoubleSpinbox"); }
    qt3::SpinWidget* spin() { return support::child<qt3::SpinWidget>(this, "SpinWidget"); }
    std::string shown() const { return support::text(text()); }

    // Does not interpret pending text, as value() does.
    double stored() const { return CRangeControl::value(); }

    support::Recorder* m_pCalls = nullptr;
    int m_nKeys = 0;

protected:
    void updateDisplay() override {
        add("updateDisplay");
        TEVU::CDoubleSpinBox::updateDisplay();
    }

    void interpretText() override {
        add("interpretText");
        TEVU::CDoubleSpinBox::interpretText();
    }

    void keyPressEvent(QKeyEvent* event) override {
        ++m_nKeys;
        TEVU::CDoubleSpinBox::keyPressEvent(event);
    }

private:
    void add(const std::string& call) {
        if (m_pCalls)
            m_pCalls->add(call);
    }
};

/// Counts the events of one type that come to a widget from now on.
class CEventCount : public QObject {
public:
    CEventCount(QWidget* widget, QEvent::Type type) : m_eType(type) {
        support::processEvents(); // what is due already does not count
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        m_nCount += event->type() == m_eType ? 1 : 0;
        return false;
    }

    int take() { return std::exchange(m_nCount, 0); }

private:
    const QEvent::Type m_eType;
    int m_nCount = 0;
};

/// Counts how often a widget is painted from now on.
class CPaintCount : public CEventCount {
public:
    explicit CPaintCount(QWidget* widget) : CEventCount(widget, QEvent::Paint) {}
};

/// Counts the wheel events that its children leave to it.
class CCountingParent : public QWidget {
public:
    int m_nWheels = 0;

protected:
    void wheelEvent(QWheelEvent*) override { ++m_nWheels; }
};

class CDoubleSpinBox : public testing::Test {
protected:
    CDoubleSpinBox() : m_box(0.0, 10.0, 1.0, &m_window, "box"), m_other(&m_window) {
        m_window.resize(300, 100);
        m_box.resize(100, 24);
        m_other.setGeometry(150, 0, 100, 24);
        m_recorder.tapAll(&m_box, "box");
        support::show(&m_window);
    }

    void recordCallsToo() { m_box.m_pCalls = &m_recorder; }

    // As a user: into the box, all selected, typed over.
    void type(const char* text) {
        support::giveFocus(&m_box);
        m_box.editor()->selectAll();
        support::typeText(&m_box, text);
    }

    void leave() { support::giveFocus(&m_other); }

    bool canStepUp() { return m_box.spin()->isUpEnabled(); }
    bool canStepDown() { return m_box.spin()->isDownEnabled(); }

    QWidget m_window;
    Box m_box;
    QLineEdit m_other;
    support::Recorder m_recorder;
};

Lines change(const std::string& value, const std::string& text) {
    return {"box.valueChanged(" + value + ")", "box.valueChanged(\"" + text + "\")"};
}

Lines operator+(Lines a, const Lines& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

const Lines c_vDisplay = {"updateDisplay"};

} // namespace

// Making a box

TEST_F(CDoubleSpinBox, WithoutARangeGoesFrom0To99InStepsOf1) {
    const Box box(&m_window, "plain");

    EXPECT_EQ(box.minValue(), 0.0);
    EXPECT_EQ(box.maxValue(), 99.0);
    EXPECT_EQ(box.lineStep(), 1.0);
    EXPECT_EQ(box.pageStep(), 10.0);
    EXPECT_EQ(box.value(), 0.0);
    EXPECT_EQ(box.shown(), "0");
    EXPECT_EQ(support::text(QString::fromLatin1(box.name())), "plain");
    EXPECT_EQ(box.parentWidget(), &m_window);
}

TEST_F(CDoubleSpinBox, BeginsAtTheMinimumWithBothStepsAsGivenButPositive) {
    const Box box(-2.5, 7.5, -0.5, &m_window, "range");

    EXPECT_EQ(box.minValue(), -2.5);
    EXPECT_EQ(box.maxValue(), 7.5);
    EXPECT_EQ(box.lineStep(), 0.5);
    EXPECT_EQ(box.pageStep(), 0.5);
    EXPECT_EQ(box.value(), -2.5);
    EXPECT_EQ(box.shown(), "-2.5");
}

TEST_F(CDoubleSpinBox, ReversedRangeIsTakenAsGiven) {
    const support::Warnings warnings;
    const Box box(5.0, 1.0, 1.0, &m_window, "reversed");

    EXPECT_EQ(box.minValue(), 5.0);
    EXPECT_EQ(box.maxValue(), 1.0);
    EXPECT_EQ(box.shown(), "1"); // clamping the minimum to such a range gives the maximum
    EXPECT_TRUE(warnings.lines().empty());
}

TEST_F(CDoubleSpinBox, BeginsPlain) {
    EXPECT_TRUE(m_box.prefix().isEmpty());
    EXPECT_TRUE(m_box.suffix().isEmpty());
    EXPECT_TRUE(m_box.specialValueText().isEmpty());
    EXPECT_FALSE(m_box.wrapping());
    EXPECT_EQ(m_box.buttonSymbols(), TEVU::CDoubleSpinBox::UpDownArrows);
    EXPECT_TRUE(canStepUp());
    EXPECT_FALSE(canStepDown());
}

TEST_F(CDoubleSpinBox, ChildrenHaveTheirNamesAndPlaces) {
    ASSERT_NE(m_box.spin(), nullptr);
    ASSERT_NE(m_box.editor(), nullptr);
    EXPECT_EQ(m_box.spin()->parentWidget(), &m_box);
    EXPECT_EQ(m_box.editor()->parentWidget(), m_box.spin());
    EXPECT_EQ(m_box.spin()->editWidget(), m_box.editor());
    EXPECT_EQ(m_box.focusProxy(), m_box.editor());

    const QValidator* validator =
        support::child<TEVU::CDoubleSpinBoxValidator>(&m_box, "DoubleValidator");
    ASSERT_NE(validator, nullptr);
    EXPECT_EQ(validator->parent(), &m_box);
    EXPECT_EQ(m_box.editor()->validator(), validator);
    EXPECT_EQ(m_box.validator(), validator);
}

TEST_F(CDoubleSpinBox, OnlyTheSpinWidgetHasAFrame) {
    EXPECT_FALSE(support::child<qt3::LineEdit>(&m_box, "LineEdit_DoubleSpinbox")->frame());
}

TEST_F(CDoubleSpinBox, BackgroundColorIsThatOfTheField) {
    const QColor before = m_box.colorGroup().background();

    m_box.setPaletteBackgroundColor(QColor(255, 0, 0));

    EXPECT_EQ(m_box.colorGroup().base(), QColor(255, 0, 0));
    EXPECT_EQ(m_box.colorGroup().background(), before);
}

TEST_F(CDoubleSpinBox, PolicyIsMinimumByFixed) {
    const QSizePolicy expected(QSizePolicy::Minimum, QSizePolicy::Fixed);

    EXPECT_TRUE(m_box.sizePolicy() == expected);
    EXPECT_EQ(m_box.focusPolicy(), m_box.editor()->focusPolicy());
}

TEST_F(CDoubleSpinBox, MetaObjectListsSlotsAndSignalsInTheirOrder) {
    struct StRow {
        const char* sSignature;
        std::vector<std::string> vNames;
        qt3::Method::Access eAccess;
    };
    using qt3::Method;
    const std::vector<StRow> expectedSlots = {{"setValue(double)", {"dValue"}, Method::Public},
                                              {"setPrefix(QString)", {"text"}, Method::Public},
                                              {"setSuffix(QString)", {"text"}, Method::Public},
                                              {"stepUp()", {}, Method::Public},
                                              {"stepDown()", {}, Method::Public},
                                              {"setEnabled(bool)", {"enabled"}, Method::Public},
                                              {"selectAll()", {}, Method::Public},
                                              {"textChanged()", {}, Method::Protected}};
    const std::vector<StRow> expectedSignals = {
        {"valueChanged(double)", {"dValue"}, Method::Public},
        {"valueChanged(QString)", {"valueText"}, Method::Public}};
    const auto expectTable = [](const std::vector<Method>& table, const std::vector<StRow>& rows) {
        ASSERT_EQ(table.size(), rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(table[i].signature, rows[i].sSignature);
            EXPECT_EQ(table[i].parameterNames, rows[i].vNames) << rows[i].sSignature;
            EXPECT_EQ(table[i].access, rows[i].eAccess) << rows[i].sSignature;
        }
    };

    expectTable(qt3::slotTable(&m_box), expectedSlots);
    expectTable(qt3::signalTable(&m_box), expectedSignals);
    EXPECT_EQ(qt3::className(&m_box), "TEVU::CDoubleSpinBox");
    EXPECT_EQ(qt3::superClassName(&m_box), "QWidget");
    EXPECT_EQ(qt3::furtherEntries(&m_box), 0);
}

namespace {

/// Tells where its virtual functions stand.
class CPlaces : public TEVU::CDoubleSpinBox {
public:
    static std::vector<std::ptrdiff_t> take() {
        using support::placeOf;
        return {placeOf(&CPlaces::prefix),         placeOf(&CPlaces::suffix),
                placeOf(&CPlaces::cleanText),      placeOf(&CPlaces::setSpecialValueText),
                placeOf(&CPlaces::setWrapping),    placeOf(&CPlaces::setButtonSymbols),
                placeOf(&CPlaces::setValidator),   placeOf(&CPlaces::setValue),
                placeOf(&CPlaces::setPrefix),      placeOf(&CPlaces::setSuffix),
                placeOf(&CPlaces::stepUp),         placeOf(&CPlaces::stepDown),
                placeOf(&CPlaces::selectAll),      placeOf(&CPlaces::mapTextToValue),
                placeOf(&CPlaces::mapValueToText), placeOf(&CPlaces::updateDisplay),
                placeOf(&CPlaces::interpretText)};
    }
};

} // namespace

TEST_F(CDoubleSpinBox, VirtualFunctionsStandInTheirOrder) {
    EXPECT_TRUE(support::standInARow(CPlaces::take())) << testing::PrintToString(CPlaces::take());
}

TEST_F(CDoubleSpinBox, IsItsOwnObject) {
    EXPECT_EQ(m_box.qObject(), static_cast<QObject*>(&m_box));
}

// Setting the value

TEST_F(CDoubleSpinBox, NewValueUpdatesSignalsAndUpdatesAgain) {
    recordCallsToo();

    m_box.setValue(5.0);

    EXPECT_EQ(m_recorder.take(), c_vDisplay + change("5", "5") + c_vDisplay);
    EXPECT_EQ(m_box.shown(), "5");
}

TEST_F(CDoubleSpinBox, CurrentValueOnlyUpdates) {
    m_box.setValue(5.0);
    m_recorder.take();
    recordCallsToo();

    m_box.setValue(5.0);

    EXPECT_EQ(m_recorder.take(), c_vDisplay);
}

TEST_F(CDoubleSpinBox, DisplayHasFollowedWhenTheSignalsCome) {
    m_box.setSuffix(" mm");
    std::vector<std::string> vShown;
    qt3::SignalTap tap;
    const auto note = [&](const std::string&) { vShown.push_back(m_box.shown()); };
    ASSERT_TRUE(tap.listen(&m_box, "valueChanged(double)", note));
    ASSERT_TRUE(tap.listen(&m_box, "valueChanged(const QString&)", note));

    m_box.setValue(2.0);

    EXPECT_EQ(vShown, (std::vector<std::string>{"2 mm", "2 mm"}));
}

TEST_F(CDoubleSpinBox, ValueIsClamped) {
    m_box.setValue(11.0);
    EXPECT_EQ(m_box.value(), 10.0);
    m_box.setValue(-1.0);
    EXPECT_EQ(m_box.value(), 0.0);
}

TEST_F(CDoubleSpinBox, RoundingDustIsZero) {
    Box box(-1.0, 1.0, 0.1, &m_window, "box");

    box.setValue(1e-17);
    EXPECT_EQ(box.value(), 0.0);
    box.setValue(-2.220446049250313e-16);
    EXPECT_EQ(box.value(), 0.0);
    EXPECT_FALSE(std::signbit(box.value()));
    box.setValue(3e-16);
    EXPECT_EQ(box.value(), 3e-16);
}

TEST_F(CDoubleSpinBox, SettingAValueDropsPendingText) {
    m_box.editor()->setText("7");

    m_box.setValue(3.0);

    EXPECT_EQ(m_recorder.take(), change("3", "3"));
    EXPECT_EQ(m_box.shown(), "3");
}

TEST_F(CDoubleSpinBox, SignalsConnectByTheirTexts) {
    Box follower(0.0, 10.0, 1.0, &m_window, "follower");
    QLineEdit label(&m_window);
    QObject::connect(&m_box, SIGNAL(valueChanged(double)), &follower, SLOT(setValue(double)));
    QObject::connect(&m_box, SIGNAL(valueChanged(const QString&)), &label,
                     SLOT(setText(const QString&)));

    m_box.setValue(4.5);

    EXPECT_EQ(follower.value(), 4.5);
    EXPECT_EQ(support::text(label.text()), "4.5");
}

TEST_F(CDoubleSpinBox, CoupledBoxesEndTheirLoop) {
    Box follower(0.0, 10.0, 1.0, &m_window, "follower");
    QObject::connect(&m_box, SIGNAL(valueChanged(double)), &follower, SLOT(setValue(double)));
    QObject::connect(&follower, SIGNAL(valueChanged(double)), &m_box, SLOT(setValue(double)));

    follower.setValue(6.0);

    EXPECT_EQ(m_recorder.take(), change("6", "6"));
}

// Range and steps

TEST_F(CDoubleSpinBox, RangeThatMovesTheValueUpdatesAndThenSignals) {
    m_box.setValue(8.0);
    m_recorder.take();
    recordCallsToo();

    m_box.setMaxValue(5.0);

    EXPECT_EQ(m_recorder.take(), c_vDisplay + c_vDisplay + change("5", "5"));
    EXPECT_EQ(m_box.shown(), "5");
    EXPECT_FALSE(canStepUp());
}

TEST_F(CDoubleSpinBox, RangeThatKeepsTheValueOnlyUpdates) {
    recordCallsToo();

    m_box.setMaxValue(50.0);
    m_box.setMaxValue(50.0);

    EXPECT_EQ(m_recorder.take(), c_vDisplay);
    EXPECT_EQ(m_box.maxValue(), 50.0);
}

TEST_F(CDoubleSpinBox, BoundBeyondTheOtherOneTakesItAlong) {
    m_box.setMinValue(20.0);
    EXPECT_EQ(m_box.maxValue(), 20.0);
    m_box.setMaxValue(-3.0);
    EXPECT_EQ(m_box.minValue(), -3.0);
    EXPECT_EQ(m_box.value(), -3.0);
    EXPECT_EQ(m_recorder.take(), change("20", "20") + change("-3", "-3"));
}

TEST_F(CDoubleSpinBox, LineStepLeavesThePageStep) {
    recordCallsToo();

    m_box.setLineStep(-0.25);

    EXPECT_EQ(m_box.lineStep(), 0.25);
    EXPECT_EQ(m_box.pageStep(), 1.0);
    EXPECT_EQ(m_recorder.take(), Lines{});
}

TEST_F(CDoubleSpinBox, StepUpdatesSignalsAndUpdatesAgain) {
    recordCallsToo();

    m_box.stepUp();
    EXPECT_EQ(m_recorder.take(), c_vDisplay + change("1", "1") + c_vDisplay);
    m_box.stepDown();
    EXPECT_EQ(m_recorder.take(), c_vDisplay + change("0", "0") + c_vDisplay);
    m_box.stepDown();
    EXPECT_EQ(m_recorder.take(), c_vDisplay);
}

TEST_F(CDoubleSpinBox, ElevenStepsOfATenthReachOneBecauseNothingIsRounded) {
    Box box(0.0, 1.0, 0.1, &m_window, "box");
    std::vector<std::string> vShown = {box.shown()};
    for (int i = 0; i < 10; ++i) {
        box.stepUp();
        vShown.push_back(box.shown());
    }
    EXPECT_EQ(vShown, (std::vector<std::string>{"0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6",
                                                "0.7", "0.8", "0.9", "1"}));
    EXPECT_LT(box.value(), 1.0);
    EXPECT_TRUE(box.spin()->isUpEnabled());

    box.stepUp();
    EXPECT_EQ(box.value(), 1.0);
    EXPECT_FALSE(box.spin()->isUpEnabled());
}

TEST_F(CDoubleSpinBox, SumShowsSixDigitsAndKeepsAll) {
    Box box(0.0, 1.0, 0.1, &m_window, "box");
    box.setValue(0.2);

    box.stepUp();

    EXPECT_EQ(box.shown(), "0.3");
    EXPECT_EQ(box.value(), 0.2 + 0.1);
    EXPECT_NE(box.value(), 0.3);
}

TEST_F(CDoubleSpinBox, StepThatEndsInRoundingDustGoesOnToZero) {
    Box box(-1.0, 1.0, 0.1, &m_window, "box");
    box.setValue(0.1 + 0.2);
    box.stepDown();
    box.stepDown();
    support::Recorder recorder;
    recorder.tapAll(&box, "box");

    box.stepDown();

    EXPECT_EQ(box.value(), 0.0);
    EXPECT_EQ(recorder.take().size(), 4u); // two for the dust, two for zero
}

TEST_F(CDoubleSpinBox, WrappingStepDropsTheRest) {
    Box box(0.0, 1.0, 0.3, &m_window, "box");
    box.setWrapping(true);
    box.setValue(0.9);

    box.stepUp();
    EXPECT_EQ(box.value(), 0.0);
    box.stepDown();
    EXPECT_EQ(box.value(), 1.0);
}

TEST_F(CDoubleSpinBox, WrappingStepOntoTheEndStays) {
    Box box(0.0, 1.0, 0.5, &m_window, "box");
    box.setWrapping(true);

    box.stepUp();
    box.stepUp();
    EXPECT_EQ(box.value(), 1.0);
    box.stepUp();
    EXPECT_EQ(box.value(), 0.0);
}

TEST_F(CDoubleSpinBox, StepReadsPendingTextFirst) {
    m_box.editor()->setText("5");

    m_box.stepUp();

    EXPECT_EQ(m_recorder.take(), change("5", "5") + change("6", "6"));
}

// Buttons

TEST_F(CDoubleSpinBox, ButtonsAreEnabledWhereAStepIsPossible) {
    m_box.setValue(5.0);
    EXPECT_TRUE(canStepUp() && canStepDown());
    m_box.setValue(10.0);
    EXPECT_TRUE(!canStepUp() && canStepDown());
    m_box.setWrapping(true);
    EXPECT_TRUE(canStepUp() && canStepDown());
    m_box.setWrapping(false);
    EXPECT_TRUE(!canStepUp() && canStepDown());
}

TEST_F(CDoubleSpinBox, DisablingDisablesBothButtonsAndEnablingRestoresThem) {
    recordCallsToo();

    m_box.setEnabled(false);
    EXPECT_TRUE(!canStepUp() && !canStepDown());
    m_box.setEnabled(true);
    EXPECT_TRUE(canStepUp() && !canStepDown());
    EXPECT_EQ(m_recorder.take(), c_vDisplay + c_vDisplay);
}

TEST_F(CDoubleSpinBox, ButtonsFollowTheParent) {
    m_box.setValue(5.0);

    m_window.setEnabled(false);
    EXPECT_TRUE(!canStepUp() && !canStepDown());
    m_window.setEnabled(true);
    EXPECT_TRUE(canStepUp() && canStepDown());
}

TEST_F(CDoubleSpinBox, EditorOfABoxMadeInADisabledParentIsEnabledWithIt) {
    QWidget parent(&m_window);
    parent.setEnabled(false);
    Box box(&parent);
    EXPECT_FALSE(box.editor()->isEnabled());

    parent.setEnabled(true);

    EXPECT_TRUE(box.editor()->isEnabled());
}

TEST_F(CDoubleSpinBox, ButtonsStayOffWhenTheParentOfADisabledBoxIsEnabled) {
    m_box.setEnabled(false);
    m_window.setEnabled(false);

    m_window.setEnabled(true);

    EXPECT_TRUE(!canStepUp() && !canStepDown());
}

TEST_F(CDoubleSpinBox, ButtonsStep) {
    support::mouseClick(m_box.spin(), m_box.upRect().center());
    EXPECT_EQ(m_recorder.take(), change("1", "1"));
    support::mouseClick(m_box.spin(), m_box.downRect().center());
    EXPECT_EQ(m_recorder.take(), change("0", "0"));
}

TEST_F(CDoubleSpinBox, HeldButtonRepeatsUntilItsStepIsTheLastOne) {
    m_box.setMaxValue(3.0);
    support::mousePress(m_box.spin(), m_box.upRect().center());

    EXPECT_TRUE(support::waitUntil([this] { return !canStepUp(); }));
    EXPECT_EQ(m_box.value(), 3.0);
    m_box.setMaxValue(9.0); // the button is enabled again, but was let go

    EXPECT_FALSE(support::waitUntil([this] { return m_box.value() > 3.0; }, 450));
    support::mouseRelease(m_box.spin(), m_box.upRect().center());
}

TEST_F(CDoubleSpinBox, ButtonRectsAreThoseOfTheSpinWidget) {
    EXPECT_TRUE(m_box.upRect() == m_box.spin()->upRect());
    EXPECT_TRUE(m_box.downRect() == m_box.spin()->downRect());
    EXPECT_TRUE(m_box.upRect().isValid() && m_box.downRect().isValid());
}

TEST_F(CDoubleSpinBox, SymbolsAreThoseOfTheSpinWidget) {
    m_box.setButtonSymbols(TEVU::CDoubleSpinBox::PlusMinus);
    EXPECT_EQ(m_box.buttonSymbols(), TEVU::CDoubleSpinBox::PlusMinus);
    EXPECT_EQ(m_box.spin()->buttonSymbols(), qt3::SpinWidget::PlusMinus);

    m_box.setButtonSymbols(TEVU::CDoubleSpinBox::UpDownArrows);
    EXPECT_EQ(m_box.spin()->buttonSymbols(), qt3::SpinWidget::UpDownArrows);
}

TEST_F(CDoubleSpinBox, SymbolsHaveTheirNumbers) {
    EXPECT_EQ(static_cast<int>(TEVU::CDoubleSpinBox::UpDownArrows), 0);
    EXPECT_EQ(static_cast<int>(TEVU::CDoubleSpinBox::PlusMinus), 1);
}

TEST_F(CDoubleSpinBox, OnlyOtherSymbolsArePaintedAnew) {
    CPaintCount paintings(m_box.spin());

    m_box.setButtonSymbols(TEVU::CDoubleSpinBox::UpDownArrows);
    support::processEvents();
    EXPECT_EQ(paintings.take(), 0);

    m_box.setButtonSymbols(TEVU::CDoubleSpinBox::PlusMinus);
    support::processEvents();
    EXPECT_EQ(paintings.take(), 1);
}

// What the editor shows

TEST_F(CDoubleSpinBox, PrefixAndSuffixStandAroundTheNumber) {
    m_box.setPrefix("x ");
    EXPECT_EQ(m_box.shown(), "x 0");
    m_box.setSuffix(" mm");
    EXPECT_EQ(m_box.shown(), "x 0 mm");
    m_box.setValue(2.5);
    EXPECT_EQ(m_recorder.take(), change("2.5", "x 2.5 mm"));
    EXPECT_EQ(support::text(m_box.prefix()), "x ");
    EXPECT_EQ(support::text(m_box.suffix()), " mm");
}

TEST_F(CDoubleSpinBox, SpecialTextStandsAloneForTheMinimum) {
    m_box.setPrefix("x ");
    m_box.setSpecialValueText("auto");
    EXPECT_EQ(m_box.shown(), "auto");
    m_box.setValue(1.0);
    EXPECT_EQ(m_box.shown(), "x 1");
    m_box.setValue(0.0);
    EXPECT_EQ(m_recorder.take(), change("1", "x 1") + change("0", "auto"));
    EXPECT_EQ(support::text(m_box.currentValueText()), "auto");
}

TEST_F(CDoubleSpinBox, SettingATextOnlyUpdates) {
    recordCallsToo();

    m_box.setPrefix("x");
    m_box.setPrefix("x");
    m_box.setSuffix("m");
    m_box.setSpecialValueText("auto");
    m_box.setWrapping(true);

    EXPECT_EQ(m_recorder.take(), (Lines(5, "updateDisplay")));
}

TEST_F(CDoubleSpinBox, CursorStandsBeforeTheSuffix) {
    m_box.setSuffix(" mm");

    m_box.setValue(2.5);

    EXPECT_EQ(m_box.editor()->cursorPosition(), 3);
    EXPECT_TRUE(m_box.editor()->selectedText().isEmpty());
}

TEST_F(CDoubleSpinBox, NumberIsSelectedInTheFocusWhileTheSignalsComeAndNotAfterwards) {
    support::giveFocus(&m_box);
    std::string selected;
    qt3::SignalTap tap;
    ASSERT_TRUE(tap.listen(&m_box, "valueChanged(double)", [&](const std::string&) {
        selected = support::text(m_box.editor()->selectedText());
    }));

    m_box.stepUp();

    EXPECT_EQ(selected, "1");
    EXPECT_EQ(support::text(m_box.editor()->selectedText()), "");
}

TEST_F(CDoubleSpinBox, NothingIsSelectedOutsideTheFocus) {
    leave();
    std::string selected = "unknown";
    qt3::SignalTap tap;
    ASSERT_TRUE(tap.listen(&m_box, "valueChanged(double)", [&](const std::string&) {
        selected = support::text(m_box.editor()->selectedText());
    }));

    m_box.stepUp();

    EXPECT_EQ(selected, "");
}

TEST_F(CDoubleSpinBox, SelectAllTakesTheWholeTextWithoutAffixes) {
    m_box.setValue(2.5);

    m_box.selectAll();

    EXPECT_EQ(support::text(m_box.editor()->selectedText()), "2.5");
}

TEST_F(CDoubleSpinBox, SelectAllTakesTheNumberBetweenTheAffixes) {
    m_box.setPrefix("x ");
    m_box.setSuffix(" mm");
    m_box.setValue(2.5);

    m_box.selectAll();

    EXPECT_EQ(support::text(m_box.editor()->selectedText()), "2.5");
}

TEST_F(CDoubleSpinBox, SelectAllTakesTheWholeSpecialText) {
    m_box.setSuffix(" mm");
    m_box.setSpecialValueText("automatic");

    m_box.selectAll();

    EXPECT_EQ(support::text(m_box.editor()->selectedText()), "automatic");
}

TEST_F(CDoubleSpinBox, NumberTextHasSixDigits) {
    EXPECT_EQ(support::text(m_box.mapValueToText(1234567.0)), "1.23457e+06");
    EXPECT_EQ(support::text(m_box.mapValueToText(0.5)), "0.5");
}

TEST_F(CDoubleSpinBox, ChangeInTheFocusWithASuffixKeepsOnlyTheDigitsShownBecauseSelectingReads) {
    Box box(0.0, 1.0, 0.1, &m_window, "box");
    box.setSuffix(" mm");
    box.setValue(0.2);
    support::giveFocus(&box);
    support::Recorder recorder;
    recorder.tapAll(&box, "box");

    box.stepUp();

    EXPECT_EQ(box.value(), 0.3);
    EXPECT_EQ(recorder.take(), change("0.3", "0.3 mm") + change("0.3", "0.3 mm"));
}

TEST_F(CDoubleSpinBox, ChangeInTheFocusOfAReversedRangeWithASuffixComesToAnEnd) {
    Box box(97.0, 33.0, 4.0, &m_window, "box"); // each end is clamped to the other one
    box.setSuffix(" mm");
    support::giveFocus(&box);
    support::Recorder recorder;
    recorder.tapAll(&box, "box");

    box.stepUp();

    EXPECT_EQ(box.value(), 33.0);
    EXPECT_EQ(box.shown(), "33 mm");
    // Both steps of a step go to the other end, to which its text leads, and back.
    EXPECT_EQ(recorder.take().size(), 2u * 6u);
}

TEST_F(CDoubleSpinBox, ChangeInTheFocusToWhatIsNoNumberWithASuffixComesToAnEnd) {
    m_box.setSuffix(" mm");
    support::giveFocus(&m_box);

    m_box.setValue(std::nan(""));

    EXPECT_TRUE(std::isnan(m_box.value()));
    EXPECT_EQ(m_box.shown(), "nan mm");
}

TEST_F(CDoubleSpinBox, ChangeInTheFocusWithADigitAsPrefixReadsOneMoreDigitAtMostTenTimes) {
    Box box(0.0, 1e300, 1.0, &m_window, "box");
    box.setPrefix("1");
    support::giveFocus(&box);
    support::Recorder recorder;
    recorder.tapAll(&box, "box");

    box.setValue(5.0);

    EXPECT_EQ(recorder.take().size(), 22u);
    EXPECT_EQ(box.shown(), "1" + support::text(box.mapValueToText(box.value())));
}

// Reading the text

TEST_F(CDoubleSpinBox, TypingAloneChangesNothing) {
    type("7");

    EXPECT_EQ(m_recorder.take(), Lines{});
    EXPECT_EQ(m_box.stored(), 0.0);
    EXPECT_EQ(m_box.shown(), "7");
}

TEST_F(CDoubleSpinBox, ValueReadsPendingTextOnce) {
    recordCallsToo();
    m_box.editor()->setText("7");
    m_recorder.take();

    EXPECT_EQ(m_box.value(), 7.0);

    EXPECT_EQ(m_recorder.take(),
              Lines{"interpretText"} + c_vDisplay + change("7", "7") + c_vDisplay + c_vDisplay);
    EXPECT_EQ(m_box.value(), 7.0);
    EXPECT_EQ(m_recorder.take(), Lines{});
}

TEST_F(CDoubleSpinBox, WhateverShowsTheValueAnewReadsPendingTextFirst) {
    const std::vector<void (*)(Box&)> calls = {
        [](Box& box) { box.setSpecialValueText("auto"); }, [](Box& box) { box.setWrapping(true); },
        [](Box& box) { box.setEnabled(false); }, [](Box& box) { box.setSuffix(" mm"); },
        [](Box& box) { box.setPrefix("x "); }};
    const char* const texts[] = {"1", "2", "3", "4 mm", "x 5 mm"};
    for (std::size_t i = 0; i < calls.size(); ++i) {
        m_box.editor()->setText(texts[i]); // with the affixes that are about to be set
        calls[i](m_box);
        const std::string number = std::to_string(i + 1);
        EXPECT_EQ(m_recorder.take(), change(number, texts[i]));
        EXPECT_EQ(m_box.shown(), texts[i]);
    }
}

TEST_F(CDoubleSpinBox, NewRangeReadsPendingTextAndThenGoesBackToTheValueFromBefore) {
    m_box.setValue(3.0);
    m_box.editor()->setText("7");
    m_recorder.take();
    recordCallsToo();

    m_box.setMaxValue(8.0);

    const Lines reading = Lines{"updateDisplay", "interpretText"} + c_vDisplay + change("7", "7") +
                          c_vDisplay + c_vDisplay;
    EXPECT_EQ(m_recorder.take(), reading + c_vDisplay + change("3", "3"));
    EXPECT_EQ(m_box.shown(), "3");
}

TEST_F(CDoubleSpinBox, ReturnAndEnterRead) {
    type("7\n");
    EXPECT_EQ(m_recorder.take(), change("7", "7"));

    type("8");
    support::keyClick(&m_box, Qt::Key_Enter, Modifier::None, "\r");
    EXPECT_EQ(m_recorder.take(), change("8", "8"));
}

TEST_F(CDoubleSpinBox, ReturnReadsTextThatIsNotPendingToo) {
    Box box(0.0, 1.0, 0.1, &m_window, "box");
    box.setValue(0.1 + 0.2);

    support::keyClick(&box, Qt::Key_Return, Modifier::None, "\r");

    EXPECT_EQ(box.stored(), 0.3);
}

TEST_F(CDoubleSpinBox, EditorSeesReturnToo) {
    m_recorder.tap(m_box.editor(), "returnPressed()", "editor");

    type("7\n");

    EXPECT_EQ(m_recorder.take(), change("7", "7") + Lines{"editor.returnPressed()"});
}

TEST_F(CDoubleSpinBox, LeavingReads) {
    type("7");

    leave();

    EXPECT_EQ(m_recorder.take(), change("7", "7"));
}

TEST_F(CDoubleSpinBox, LeavingWithoutPendingTextKeepsAllDigits) {
    support::giveFocus(&m_box);
    m_box.setValue(0.1 + 0.2);

    leave();

    EXPECT_EQ(m_box.stored(), 0.1 + 0.2);
}

TEST_F(CDoubleSpinBox, HidingReads) {
    m_box.editor()->setText("7");

    m_window.hide();

    EXPECT_EQ(m_recorder.take(), change("7", "7"));
}

TEST_F(CDoubleSpinBox, GarbageGivesWayToTheValueWithoutAWord) {
    support::giveFocus(&m_box);
    m_box.setValue(3.0);
    m_recorder.take();
    for (const char* text : {"garbage", "", " ", "1.2.3", "3 "}) {
        SCOPED_TRACE(text);
        support::giveFocus(&m_box);
        m_box.editor()->setText(text);
        leave();
        EXPECT_EQ(m_box.shown(), "3");
        EXPECT_EQ(m_recorder.take(), Lines{});
    }
}

TEST_F(CDoubleSpinBox, NumberOutsideTheRangeIsClamped) {
    type("500\n");

    EXPECT_EQ(m_recorder.take(), change("10", "10"));
    EXPECT_EQ(m_box.shown(), "10");
}

TEST_F(CDoubleSpinBox, SpecialTextWithBlanksAroundIsTheMinimum) {
    m_box.setSpecialValueText("auto");
    m_box.setValue(5.0);
    m_recorder.take();

    m_box.editor()->setText("  auto ");
    support::typeText(&m_box, "\n");

    EXPECT_EQ(m_recorder.take(), change("0", "auto"));
    EXPECT_EQ(m_box.shown(), "auto");
}

TEST_F(CDoubleSpinBox, SpecialTextCanBeTypedWhereThereIsASuffix) {
    m_box.setSuffix(" mm");
    m_box.setSpecialValueText("auto");
    m_box.setValue(5.0);
    m_recorder.take();

    type("auto\n");

    EXPECT_EQ(m_recorder.take(), change("0", "auto"));
}

TEST_F(CDoubleSpinBox, LettersCannotBeTypedWhereThereIsNoAffixEvenForTheSpecialText) {
    m_box.setSpecialValueText("auto");
    m_box.setValue(5.0);

    type("auto");

    EXPECT_NE(m_box.shown(), "auto");
}

TEST_F(CDoubleSpinBox, NumberIsReadWithAndWithoutItsAffixes) {
    m_box.setPrefix("x ");
    m_box.setSuffix(" mm");
    for (const char* text : {"x 2.5 mm", "2.5", "x2.5mm", "2.5 mm", "x 2.5", " 2.5 "}) {
        SCOPED_TRACE(text);
        m_box.setValue(0.0);
        m_box.editor()->setText(text);
        EXPECT_EQ(m_box.value(), 2.5);
        EXPECT_EQ(m_box.shown(), "x 2.5 mm");
    }
}

TEST_F(CDoubleSpinBox, CleanTextIsTheNumber) {
    m_box.setPrefix("x ");
    m_box.setSuffix(" mm");
    m_box.setValue(2.5);

    EXPECT_EQ(support::text(m_box.cleanText()), "2.5");
    EXPECT_EQ(m_box.shown(), "x 2.5 mm");
}

TEST_F(CDoubleSpinBox, TextThatIsNoNumberMapsToZero) {
    bool ok = true;
    m_box.setValue(5.0);
    m_box.editor()->setText("garbage");

    EXPECT_EQ(m_box.mapTextToValue(&ok), 0.0);
    EXPECT_FALSE(ok);
    EXPECT_EQ(m_box.mapTextToValue(nullptr), 0.0);
}

// Keys and wheel

TEST_F(CDoubleSpinBox, UpAndDownStepAndStayInTheBox) {
    m_box.setValue(5.0);
    m_recorder.take();

    support::keyClick(&m_box, Qt::Key_Up);
    EXPECT_EQ(m_recorder.take(), change("6", "6"));
    support::keyClick(&m_box, Qt::Key_Down);
    EXPECT_EQ(m_recorder.take(), change("5", "5"));
    EXPECT_EQ(m_box.m_nKeys, 0);
}

TEST_F(CDoubleSpinBox, PageKeysDoNothing) {
    m_box.setValue(5.0);
    m_recorder.take();

    support::keyClick(&m_box, Qt::Key_PageDown);
    support::keyClick(&m_box, Qt::Key_PageUp);

    EXPECT_EQ(m_recorder.take(), Lines{});
    EXPECT_EQ(m_box.stored(), 5.0);
}

TEST_F(CDoubleSpinBox, TabReadsAndMovesOn) {
    type("7");

    support::keyClick(&m_box, Qt::Key_Tab, Modifier::None, "\t");

    EXPECT_EQ(m_recorder.take(), change("7", "7"));
    EXPECT_TRUE(m_other.hasFocus());
}

TEST_F(CDoubleSpinBox, BacktabReadsAndMovesBack) {
    type("7");

    support::keyClick(&m_box, Qt::Key_Backtab, Modifier::Shift);

    EXPECT_EQ(m_recorder.take(), change("7", "7"));
    EXPECT_TRUE(m_other.hasFocus()); // the only other one
}

TEST_F(CDoubleSpinBox, TabComesToTheBoxOnceInsteadOfTheEditor) {
    support::giveFocus(&m_box);
    CEventCount keys(&m_box, QEvent::KeyPress);

    support::keyClick(&m_box, Qt::Key_Tab, Modifier::None, "\t");

    EXPECT_EQ(keys.take(), 1);
    EXPECT_TRUE(m_other.hasFocus());
}

TEST_F(CDoubleSpinBox, ControlTabIsLeftToOthers) {
    recordCallsToo();
    type("7");
    m_recorder.take();
    m_box.m_nKeys = 0;

    support::keyClick(&m_box, Qt::Key_Tab, Modifier::Control, "\t");

    EXPECT_EQ(m_recorder.take(), Lines{});
    EXPECT_EQ(m_box.shown(), "7");
    EXPECT_TRUE(m_box.hasFocus());
    EXPECT_EQ(m_box.m_nKeys, 1); // comes by, and is handed on to the window
}

TEST_F(CDoubleSpinBox, WheelStepsOnceANotch) {
    m_box.setValue(5.0);
    m_recorder.take();
    const struct {
        int nDelta;
        Lines vExpected;
    } rows[] = {{120, change("6", "6")},
                {60, {}},
                {60, {}},
                {-120, change("5", "5")},
                {240, change("6", "6") + change("7", "7")},
                {-241, change("6", "6") + change("5", "5")}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.nDelta);
        support::wheel(&m_box, row.nDelta);
        EXPECT_EQ(m_recorder.take(), row.vExpected);
    }
}

TEST_F(CDoubleSpinBox, WheelMakesAllStepsOfAnEvent) {
    m_box.setMaxValue(1000.0);

    support::wheel(&m_box, 150 * 120);

    EXPECT_EQ(m_box.value(), 150.0);
}

TEST_F(CDoubleSpinBox, WheelsOfTwoBoxesDoNotAddUp) {
    Box second(0.0, 10.0, 1.0, &m_window, "second");

    support::wheel(&m_box, 119);
    support::wheel(&second, 119);
    support::wheel(&second, 120);

    EXPECT_EQ(m_box.value(), 0.0);
    EXPECT_EQ(second.value(), 1.0);
}

TEST_F(CDoubleSpinBox, WheelOverTheEditorStepsOnce) {
    support::wheel(m_box.editor(), 120);

    EXPECT_EQ(m_recorder.take(), change("1", "1"));
}

TEST_F(CDoubleSpinBox, WheelIsTakenAlsoWhereItStepsNothing) {
    CCountingParent parent;
    Box inside(0.0, 10.0, 1.0, &parent, "inside");
    support::show(&parent);

    for (const int delta : {60, 120, -120, -120})
        support::wheel(&inside, delta);

    EXPECT_EQ(parent.m_nWheels, 0);
}

TEST_F(CDoubleSpinBox, KeysOfOtherWidgetsAreNotFiltered) {
    m_other.installEventFilter(&m_box);

    support::sendKey(&m_other, Qt::Key_Up);
    support::sendKey(&m_other, Qt::Key_Down);
    m_other.setText("7");
    support::sendKey(&m_other, Qt::Key_Return);

    EXPECT_EQ(m_recorder.take(), Lines());
    EXPECT_EQ(m_box.shown(), "0");
}

// Validation

namespace {

struct StValidRow {
    const char* sName;
    const char* sPrefix;
    const char* sSuffix;
    const char* sText;
    QValidator::State eState;
};

void PrintTo(const StValidRow& row, std::ostream* out) {
    *out << row.sName;
}

class CDoubleSpinBoxValidation : public testing::TestWithParam<StValidRow> {};

TEST_P(CDoubleSpinBoxValidation, JudgesTheNumberBetweenTheAffixes) {
    const StValidRow& row = GetParam();
    Box box(0.0, 10.0, 1.0, nullptr, "box");
    box.setPrefix(row.sPrefix);
    box.setSuffix(row.sSuffix);
    box.setSpecialValueText("auto");
    QString text(row.sText);
    int position = 1;

    EXPECT_EQ(box.validator()->validate(text, position), row.eState);
    EXPECT_EQ(support::text(text), row.sText);
    EXPECT_EQ(position, 1);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CDoubleSpinBoxValidation,
    testing::Values(
        StValidRow{"PlainNumber", "", "", "2.5", QValidator::Acceptable},
        StValidRow{"PlainNumberOutsideTheRange", "", "", "-500", QValidator::Acceptable},
        StValidRow{"PlainEmpty", "", "", "", QValidator::Intermediate},
        StValidRow{"PlainLetters", "", "", "a", QValidator::Invalid},
        StValidRow{"PlainSpecialText", "", "", "auto", QValidator::Invalid},
        StValidRow{"Whole", "x ", " mm", "x 2.5 mm", QValidator::Acceptable},
        StValidRow{"WholeWithBareSuffix", "x ", " mm", "x 2.5mm", QValidator::Acceptable},
        StValidRow{"EmptyBetween", "x ", " mm", "x  mm", QValidator::Intermediate},
        StValidRow{"LettersBetween", "x ", " mm", "x a mm", QValidator::Invalid},
        StValidRow{"NumberAlone", "x ", " mm", "2.5", QValidator::Acceptable},
        StValidRow{"OneAffixMissing", "x ", " mm", "2.5 mm", QValidator::Invalid},
        StValidRow{"SpecialText", "x ", " mm", "auto", QValidator::Acceptable},
        StValidRow{"SpecialTextWithBlanks", "x ", " mm", " auto ", QValidator::Acceptable},
        StValidRow{"BeginningOfTheSpecialText", "x ", " mm", "au", QValidator::Intermediate},
        StValidRow{"OtherLetters", "x ", " mm", "ut", QValidator::Invalid}),
    [](const auto& row) { return std::string(row.param.sName); });

} // namespace

TEST_F(CDoubleSpinBox, ValidatorHasNoLimits) {
    const auto* validator = dynamic_cast<const QDoubleValidator*>(m_box.validator());
    ASSERT_NE(validator, nullptr);

    EXPECT_TRUE(std::isinf(validator->bottom()) && validator->bottom() < 0.0);
    EXPECT_TRUE(std::isinf(validator->top()) && validator->top() > 0.0);
    EXPECT_EQ(validator->decimals(), 1000);
}

TEST_F(CDoubleSpinBox, ValidatorCanBeReplaced) {
    QIntValidator whole(&m_window);

    m_box.setValidator(&whole);
    EXPECT_EQ(m_box.validator(), &whole);
    EXPECT_EQ(m_box.editor()->validator(), &whole);
    m_box.setValidator(nullptr);
    EXPECT_EQ(m_box.validator(), nullptr);
}

// What derived classes override

namespace {

/// Shows a fraction as a percentage, and writes down its steps.
class CPercentBox : public TEVU::CDoubleSpinBox {
public:
    explicit CPercentBox(QWidget* parent) : TEVU::CDoubleSpinBox(0.0, 1.0, 0.25, parent, "box") {
        updateDisplay();
    }

    QString suffix() const override { return " %"; }
    void stepUp() override { m_vCalls.push_back("stepUp"); }
    void stepDown() override { m_vCalls.push_back("stepDown"); }

    Lines takeCalls() { return std::exchange(m_vCalls, Lines()); }

protected:
    QString mapValueToText(double v) override { return QString::number(100.0 * v); }
    double mapTextToValue(bool* ok) override { return cleanText().toDouble(ok) / 100.0; }

private:
    Lines m_vCalls;
};

} // namespace

TEST_F(CDoubleSpinBox, OverriddenTextsAndMappingsAreShownReadJudgedAndMeasured) {
    CPercentBox box(&m_window);
    EXPECT_EQ(support::text(box.text()), "0 %");

    box.setValue(0.5);
    EXPECT_EQ(support::text(box.text()), "50 %");

    QLineEdit* const editor = support::child<QLineEdit>(&box, "LineEdit_DoubleSpinbox");
    editor->setText("75 %");
    EXPECT_EQ(box.value(), 0.75);

    QString typed = "20 %";
    int position = 0;
    EXPECT_EQ(box.validator()->validate(typed, position), QValidator::Acceptable);

    box.selectAll();
    EXPECT_EQ(support::text(editor->selectedText()), "75");

    Box plain(0.0, 100.0, 1.0, &m_window, "plain");
    plain.setSuffix(" %");
    EXPECT_TRUE(box.sizeHint() == plain.sizeHint());
}

TEST_F(CDoubleSpinBox, ButtonsKeysAndWheelCallTheOverriddenSteps) {
    CPercentBox box(&m_window);
    box.setGeometry(0, 30, 100, 24);
    box.setValue(0.5);
    box.show();
    qt3::SpinWidget* const spin = support::child<qt3::SpinWidget>(&box, "SpinWidget");

    support::mouseClick(spin, box.upRect().center());
    support::mouseClick(spin, box.downRect().center());
    EXPECT_EQ(box.takeCalls(), (Lines{"stepUp", "stepDown"}));
    support::keyClick(&box, Qt::Key_Up);
    support::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(box.takeCalls(), (Lines{"stepUp", "stepDown"}));
    support::wheel(&box, 240);
    support::wheel(&box, -120);
    EXPECT_EQ(box.takeCalls(), (Lines{"stepUp", "stepUp", "stepDown"}));
}

// Size and style

TEST_F(CDoubleSpinBox, SpinWidgetFillsTheBox) {
    m_box.resize(140, 30);

    EXPECT_TRUE(m_box.spin()->geometry() == QRect(0, 0, 140, 30));
}

TEST_F(CDoubleSpinBox, HintIsTheStylesAroundTheLongestTextAndTwoBlanks) {
    const auto widthOf = [this](const QString& text) {
        return qt3::textWidth(m_box.editor(), text) + 2 * qt3::textWidth(m_box.editor(), " ");
    };
    const auto hintAround = [this](int width) {
        const int height = m_box.editor()->sizeHint().height();
        return qt3::sizeAround(m_box.spin(), QSize(width, height));
    };

    EXPECT_TRUE(m_box.sizeHint() == hintAround(std::max(35, widthOf("10"))));
    m_box.setPrefix("about ");
    m_box.setSuffix(" kilometres");
    EXPECT_TRUE(m_box.sizeHint() == hintAround(widthOf("about 10 kilometres")));
    m_box.setMinValue(-1000000.0);
    EXPECT_TRUE(m_box.sizeHint() == hintAround(widthOf("about -1e+06 kilometres")));
    m_box.setSpecialValueText("a much longer text than all the others are");
    EXPECT_TRUE(m_box.sizeHint() ==
                hintAround(widthOf("a much longer text than all the others are")));
}

TEST_F(CDoubleSpinBox, ShortTextsDoNotShowInTheHint) {
    const QSize plain = m_box.sizeHint();

    m_box.setSpecialValueText("a");

    EXPECT_TRUE(m_box.sizeHint() == plain);
}

TEST_F(CDoubleSpinBox, MinimumIsTheEditorAndTheDownButton) {
    const QSize minimum = m_box.minimumSizeHint();

    EXPECT_EQ(minimum.width(), m_box.editor()->sizeHint().width() + m_box.downRect().width());
    EXPECT_EQ(minimum.height(), m_box.editor()->minimumSizeHint().height());
}

TEST_F(CDoubleSpinBox, NewStyleArrangesButtonsAndEditor) {
    const QRect place = m_box.editor()->geometry();
    m_box.editor()->setGeometry(0, 0, 5, 5);

    const std::unique_ptr<QStyle> style(QStyleFactory::create("windows"));
    m_box.setStyle(style.get());

    EXPECT_TRUE(m_box.editor()->geometry() == place);
    m_box.setStyle(nullptr);
}

// Painting

TEST_F(CDoubleSpinBox, ChangeIsPaintedOnceAndAtOnce) {
    leave();
    CPaintCount paintings(m_box.editor());

    m_box.setValue(5.0);
    EXPECT_EQ(paintings.take(), 1);
    m_box.setSuffix(" mm");
    EXPECT_EQ(paintings.take(), 1);
    m_box.stepUp();
    EXPECT_EQ(paintings.take(), 1);
    m_box.setMaxValue(2.0);
    EXPECT_EQ(paintings.take(), 1);
}

TEST_F(CDoubleSpinBox, ChangeIsPaintedBeforeTheSignals) {
    leave();
    CPaintCount paintings(m_box.editor());
    std::vector<int> painted;
    qt3::SignalTap tap;
    ASSERT_TRUE(tap.listen(&m_box, "valueChanged(double)",
                           [&](const std::string&) { painted.push_back(paintings.take()); }));

    m_box.setValue(5.0);

    EXPECT_EQ(painted, std::vector<int>{1});
}

TEST_F(CDoubleSpinBox, SelectionOfAChangeInTheFocusIsPaintedAndThatItEndsToo) {
    support::giveFocus(&m_box);
    CPaintCount paintings(m_box.editor());

    m_box.setValue(5.0);

    EXPECT_EQ(paintings.take(), 2);
}

TEST_F(CDoubleSpinBox, WhatIsPaintedAlreadyIsNotPaintedAgain) {
    leave();
    m_box.setValue(5.0);
    CPaintCount paintings(m_box.editor());

    m_box.setValue(5.0);
    m_box.setWrapping(true);
    m_box.setMaxValue(8.0);
    support::keyClick(&m_box, Qt::Key_Return, support::Modifier::None, "\r");

    EXPECT_EQ(paintings.take(), 0);
}

TEST_F(CDoubleSpinBox, OtherTextGivesWayToTheValueAtOnce) {
    leave();
    m_box.setValue(5.0);
    CPaintCount paintings(m_box.editor());

    m_box.editor()->setText("6");
    m_box.editor()->setText("5"); // the same text, but perhaps not yet on the screen
    paintings.take();
    m_box.setValue(5.0);

    EXPECT_EQ(paintings.take(), 1);
}

TEST_F(CDoubleSpinBox, OtherSelectionOrCursorGivesWayToThatOfTheValueAtOnce) {
    leave();
    m_box.setSuffix(" mm");
    CPaintCount paintings(m_box.editor());

    m_box.editor()->selectAll();
    paintings.take();
    m_box.setValue(m_box.value());
    EXPECT_EQ(paintings.take(), 1);
    EXPECT_EQ(support::text(m_box.editor()->selectedText()), "");

    m_box.editor()->setCursorPosition(0);
    paintings.take();
    m_box.setValue(m_box.value());
    EXPECT_EQ(paintings.take(), 1);
    EXPECT_EQ(m_box.editor()->cursorPosition(), 1);
}

TEST_F(CDoubleSpinBox, CopyPaintsItsValueIntoTheEditorOfTheOriginal) {
    leave();
    TEVU::CDoubleSpinBox copy(m_box);
    m_box.setValue(5.0);
    CPaintCount paintings(m_box.editor());

    copy.setValue(7.0);
    EXPECT_GE(paintings.take(), 1);
    EXPECT_EQ(m_box.shown(), "7");
    m_box.setWrapping(true);
    EXPECT_EQ(paintings.take(), 1);
    EXPECT_EQ(m_box.shown(), "7"); // which it has read
}

// Copies, and the end

TEST_F(CDoubleSpinBox, CopyTakesOverRangeTextsAndFlags) {
    m_box.setPrefix("x ");
    m_box.setSuffix(" mm");
    m_box.setSpecialValueText("auto");
    m_box.setWrapping(true);
    m_box.setValue(4.0);

    const Box copy(m_box);

    EXPECT_EQ(copy.value(), 4.0);
    EXPECT_EQ(copy.maxValue(), 10.0);
    EXPECT_EQ(support::text(copy.prefix()), "x ");
    EXPECT_EQ(support::text(copy.suffix()), " mm");
    EXPECT_EQ(support::text(copy.specialValueText()), "auto");
    EXPECT_TRUE(copy.wrapping());
    EXPECT_EQ(copy.shown(), "x 4 mm");
    EXPECT_EQ(copy.validator(), m_box.validator());
    EXPECT_EQ(copy.parentWidget(), &m_window);
}

TEST_F(CDoubleSpinBox, CopyAndAssignmentTakeOverWhatIsPending) {
    m_box.editor()->setText("7");

    const Box copy(m_box);
    EXPECT_EQ(copy.stored(), 0.0);
    EXPECT_EQ(copy.value(), 7.0);

    m_box.editor()->setText("8");
    Box other(0.0, 10.0, 1.0, &m_window, "other");
    static_cast<TEVU::CDoubleSpinBox&>(other) = m_box;
    EXPECT_EQ(other.stored(), 0.0);
    EXPECT_EQ(other.value(), 8.0);
}

TEST_F(CDoubleSpinBox, CopySignalsByItselfAndTheButtonsStayTheOriginals) {
    Box copy(m_box);
    support::Recorder recorder;
    recorder.tapAll(&copy, "copy");

    copy.setValue(4.0);
    EXPECT_EQ(recorder.take(), (Lines{"copy.valueChanged(4)", "copy.valueChanged(\"4\")"}));
    EXPECT_EQ(m_box.stored(), 0.0);

    support::mouseClick(m_box.spin(), m_box.upRect().center());
    EXPECT_EQ(recorder.take(), Lines{});
}

TEST_F(CDoubleSpinBox, AssignmentTakesOverRangeTextsAndFlagsWithoutASignal) {
    Box other(1.0, 2.0, 0.5, &m_window, "other");
    other.setSuffix(" mm");
    other.setButtonSymbols(TEVU::CDoubleSpinBox::PlusMinus);
    m_box.editor()->setText("7");

    static_cast<TEVU::CDoubleSpinBox&>(m_box) = other;

    EXPECT_EQ(m_recorder.take(), Lines{});
    EXPECT_EQ(m_box.value(), 1.0);
    EXPECT_EQ(m_box.maxValue(), 2.0);
    EXPECT_EQ(m_box.lineStep(), 0.5);
    EXPECT_EQ(support::text(m_box.suffix()), " mm");
    EXPECT_EQ(m_box.validator(), other.validator());
    EXPECT_EQ(m_box.buttonSymbols(),
              TEVU::CDoubleSpinBox::PlusMinus); // those of the other's buttons
}

TEST_F(CDoubleSpinBox, OriginalMayEndFirst) {
    auto original = std::make_unique<Box>(0.0, 10.0, 1.0, &m_window, "original");
    Box copy(*original);
    original.reset();

    copy.setValue(3.0);
    copy.stepUp();
    copy.selectAll();
    copy.setEnabled(false);
    copy.resize(50, 50);
    support::show(&copy);

    EXPECT_EQ(copy.value(), 4.0);
    EXPECT_EQ(copy.shown(), "");
    EXPECT_EQ(copy.validator(), nullptr);
    EXPECT_FALSE(copy.upRect().isValid());
    EXPECT_EQ(copy.buttonSymbols(), TEVU::CDoubleSpinBox::UpDownArrows);
    EXPECT_FALSE(copy.sizeHint().isValid());
    EXPECT_FALSE(copy.minimumSizeHint().isValid());
}

TEST_F(CDoubleSpinBox, CopyMayEndFirst) {
    auto copy = std::make_unique<Box>(m_box);
    copy->setValue(3.0);
    copy.reset();

    type("7\n");

    EXPECT_EQ(m_box.value(), 7.0);
}

TEST_F(CDoubleSpinBox, AssignedBoxesMayEndInEitherOrder) {
    for (const bool bTargetFirst : {true, false}) {
        auto target = std::make_unique<Box>(0.0, 10.0, 1.0, &m_window, "target");
        auto source = std::make_unique<Box>(0.0, 20.0, 1.0, &m_window, "source");
        static_cast<TEVU::CDoubleSpinBox&>(*target) = *source;
        (bTargetFirst ? target : source).reset();
        Box& left = bTargetFirst ? *source : *target;

        left.setValue(15.0);

        EXPECT_EQ(left.value(), 15.0);
    }
}

TEST_F(CDoubleSpinBox, EndingWithPendingTextInTheFocusSaysNothing) {
    auto box = std::make_unique<Box>(0.0, 10.0, 1.0, &m_window, "box");
    box->setSuffix(" mm");
    support::Recorder recorder;
    recorder.tapAll(box.get(), "box");
    support::giveFocus(box.get());
    box->editor()->setText("7 mm");

    box.reset();

    EXPECT_EQ(recorder.take(), Lines{});
}

TEST_F(CDoubleSpinBox, EditorMayEndFirst) {
    support::giveFocus(&m_box);
    m_box.editor()->setText("7"); // pending, and the dying editor loses the focus
    delete m_box.editor();

    m_box.setValue(3.0);

    EXPECT_EQ(m_box.value(), 3.0);
    EXPECT_EQ(m_box.shown(), "");
}
