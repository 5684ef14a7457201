#include "Events.h"

#include "Recorder.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qevent.h>
#include <qlineedit.h>
#include <qpainter.h>
#include <qpushbutton.h>
#include <qslider.h>
#include <qspinbox.h>

using support::Button;
using support::Lines;
using support::Modifier;

namespace {

std::string buttonName(int button) {
    if (button == int(Qt::LeftButton))
        return "left";
    return button == int(Qt::RightButton) ? "right" : "none";
}

class Probe : public QWidget {
public:
    explicit Probe(QWidget* parent = nullptr) : QWidget(parent) { resize(60, 40); }

    support::Recorder m_recorder;
    bool m_bTakesWheel = true;

protected:
    void mousePressEvent(QMouseEvent* event) override { add("press", event); }
    void mouseReleaseEvent(QMouseEvent* event) override { add("release", event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { add("double", event); }
    void mouseMoveEvent(QMouseEvent* event) override { add("move", event); }

    void wheelEvent(QWheelEvent* event) override {
        m_recorder.add("wheel");
        if (m_bTakesWheel)
            event->accept();
        else
            event->ignore();
    }

    void keyPressEvent(QKeyEvent* event) override {
        m_recorder.add("key " + support::text(event->text()));
    }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(0, 0, 60, 40, QColor(255, 255, 255));
        painter.fillRect(10, 10, 5, 5, QColor(0x12, 0x34, 0x56));
    }

private:
    void add(const std::string& what, QMouseEvent* event) {
        m_recorder.add(what + ' ' + std::to_string(event->pos().x()) + ',' +
                       std::to_string(event->pos().y()) + ' ' + buttonName(int(event->button())));
    }
};

} // namespace

TEST(Events, ClickIsPressAndRelease) {
    Probe probe;

    support::mouseClick(&probe, QPoint(3, 4), Button::Right);

    EXPECT_EQ(probe.m_recorder.take(), (Lines{"press 3,4 right", "release 3,4 right"}));
}

TEST(Events, DoubleClickComesAfterAClick) {
    Probe probe;

    support::mouseDoubleClick(&probe, QPoint(3, 4));

    EXPECT_EQ(probe.m_recorder.take(),
              (Lines{"press 3,4 left", "release 3,4 left", "double 3,4 left", "release 3,4 left"}));
}

TEST(Events, DragEndsWhereItShould) {
    Probe probe;

    support::mouseDrag(&probe, QPoint(0, 0), QPoint(9, 3), 3);

    EXPECT_EQ(probe.m_recorder.take(), (Lines{"press 0,0 left", "move 3,1 none", "move 6,2 none",
                                              "move 9,3 none", "release 9,3 left"}));
}

TEST(Events, HoveringReachesAWidgetThatTracksTheMouse) {
    Probe probe;
    probe.setMouseTracking(true);

    support::mouseMove(&probe, QPoint(3, 4), Button::None);

    EXPECT_EQ(probe.m_recorder.take(), Lines{"move 3,4 none"});
}

TEST(Events, DraggingAHandleMovesTheSlider) {
    QSlider slider(Qt::Horizontal, nullptr);
    slider.resize(200, 30);
    support::show(&slider);

    support::mouseDrag(&slider, QPoint(5, 15), QPoint(150, 15), 3);

    EXPECT_GT(slider.value(), 50);
}

TEST(Events, OnlyTheLeftButtonClicksAPushButton) {
    QPushButton button(nullptr);
    support::show(&button);
    support::Recorder recorder;
    recorder.tap(&button, "clicked()", "button");

    support::mouseClick(&button, QPoint(5, 5), Button::Right);
    EXPECT_EQ(recorder.take(), Lines{});
    support::mouseClick(&button);
    EXPECT_EQ(recorder.take(), Lines{"button.clicked()"});
}

TEST(Events, TypedTextArrivesInALineEdit) {
    QLineEdit edit(nullptr);
    support::show(&edit);

    support::typeText(&edit, "aB 1.5e-3");

    EXPECT_EQ(support::text(edit.text()), "aB 1.5e-3");
}

TEST(Events, LineBreakIsReturn) {
    QLineEdit edit(nullptr);
    support::show(&edit);
    support::Recorder recorder;
    recorder.tap(&edit, "returnPressed()", "edit");

    support::typeText(&edit, "a\n");

    EXPECT_EQ(recorder.take(), Lines{"edit.returnPressed()"});
}

TEST(Events, ModifiersReachTheWidget) {
    QLineEdit edit(nullptr);
    support::show(&edit);
    support::typeText(&edit, "abc");

    support::keyClick(&edit, Qt::Key_Home, Modifier::Shift);

    EXPECT_EQ(support::text(edit.selectedText()), "abc");
}

TEST(Events, ClipboardIsPasted) {
    QLineEdit edit(nullptr);
    support::show(&edit);
    support::setClipboard("from elsewhere");

    support::keyClick(&edit, Qt::Key_V, Modifier::Control, "\x16");

    EXPECT_EQ(support::text(edit.text()), "from elsewhere");
}

TEST(Events, DroppedTextArrives) {
    QLineEdit edit(nullptr);
    support::show(&edit);

    support::drop(&edit, QPoint(5, 5), "from elsewhere");

    EXPECT_EQ(support::text(edit.text()), "from elsewhere");
}

TEST(Events, EntryOfAContextMenuIsChosen) {
    QLineEdit edit(nullptr);
    support::show(&edit);
    support::setClipboard("pasted");
    EXPECT_TRUE(support::chooseInContextMenu(&edit, QPoint(5, 5), Qt::Key_P));
    EXPECT_EQ(support::text(edit.text()), "pasted");
}

TEST(Events, ContextMenuWithoutTheEntryIsClosed) {
    QLineEdit edit(nullptr);
    support::show(&edit);
    EXPECT_FALSE(support::chooseInContextMenu(&edit, QPoint(5, 5), Qt::Key_X));
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST(Events, MissingContextMenuIsNoticed) {
    QWidget plain;
    support::show(&plain);
    EXPECT_FALSE(support::chooseInContextMenu(&plain, QPoint(5, 5), Qt::Key_P));
}

TEST(Events, KeysForASpinBoxReachIt) {
    QSpinBox box(nullptr);
    support::giveFocus(&box);

    support::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(box.value(), 1);
    box.selectAll();
    support::typeText(&box, "42\n");
    EXPECT_EQ(box.value(), 42);
}

TEST(Events, KeysFollowTheFocusProxyUnlessSentExactly) {
    Probe owner;
    QLineEdit editor(&owner);
    owner.setFocusProxy(&editor);
    support::show(&owner);

    support::keyClick(&owner, Qt::Key_A, Modifier::None, "a");
    support::sendKey(&owner, Qt::Key_B, Modifier::None, "b");

    EXPECT_EQ(support::text(editor.text()), "a");
    EXPECT_EQ(owner.m_recorder.take(), Lines{"key b"});
}

TEST(Events, WheelNotchAwayFromTheUserStepsUp) {
    QSpinBox box(nullptr);
    support::giveFocus(&box);

    support::wheel(&box, 120);

    EXPECT_EQ(box.value(), 1);
}

TEST(Events, WheelGoesToTheParentsUntilOneTakesIt) {
    Probe outer;
    Probe middle(&outer);
    Probe inner(&middle);
    inner.m_bTakesWheel = false;
    support::show(&outer);

    support::wheel(&inner, 120);

    EXPECT_EQ(inner.m_recorder.take(), Lines{"wheel"});
    EXPECT_EQ(middle.m_recorder.take(), Lines{"wheel"});
    EXPECT_EQ(outer.m_recorder.take(), Lines{});
}

TEST(Events, WheelThatNobodyTakesEndsAtTheWindow) {
    Probe window;
    window.m_bTakesWheel = false;
    support::show(&window);

    support::wheel(&window, -120);

    EXPECT_EQ(window.m_recorder.take(), Lines{"wheel"});
}

TEST(Events, ShownWindowIsActive) {
    QWidget first(nullptr);
    QWidget second(nullptr);

    support::show(&first);
    support::show(&second);

    EXPECT_FALSE(first.isActiveWindow());
    EXPECT_TRUE(second.isActiveWindow());
}

TEST(Events, FocusIsGivenInAnActiveWindow) {
    QWidget window(nullptr);
    QLineEdit first(&window);
    QLineEdit second(&window);

    support::giveFocus(&second);
    EXPECT_TRUE(second.hasFocus());
    support::giveFocus(&first);
    EXPECT_TRUE(first.hasFocus());
    EXPECT_FALSE(second.hasFocus());
}

TEST(Events, WaitingTellsWhetherItWasWorthIt) {
    EXPECT_TRUE(support::waitUntil([] { return true; }));
    EXPECT_FALSE(support::waitUntil([] { return false; }, 10));
}

TEST(Events, PixelIsWhatTheWidgetPaints) {
    Probe probe;

    EXPECT_EQ(support::pixel(&probe, 12, 12), 0x123456u);
    EXPECT_EQ(support::pixel(&probe, 9, 12), 0xffffffu);
}

TEST(Events, ChildIsFoundByNameAndType) {
    QWidget window(nullptr);
    QWidget middle(&window);
    QLineEdit edit(&middle);
    QPushButton button(&window);
#if QT_VERSION >= 0x060000
    edit.setObjectName("it");
    button.setObjectName("it");
#else
    edit.setName("it");
    button.setName("it");
#endif

    EXPECT_EQ(support::child<QLineEdit>(&window, "it"), &edit);
    EXPECT_EQ(support::child<QPushButton>(&window, "it"), &button);
    EXPECT_EQ(support::child<QPushButton>(&window), &button);
    EXPECT_EQ(support::child<QSlider>(&window, "it"), nullptr);
    EXPECT_EQ(support::child<QLineEdit>(&window, "other"), nullptr);
}
