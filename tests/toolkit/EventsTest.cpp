#include <qt3/Events.h>

#include "Events.h"

#include <qt3/Widget.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using support::Modifier;

namespace {

typedef std::vector<std::string> Lines;

std::string pointText(const QPoint& point) {
    return std::to_string(point.x()) + ',' + std::to_string(point.y());
}

/// Writes down what the accessors tell of its events.
class CProbe : public qt3::Widget {
public:
    CProbe() { resize(40, 40); }

    Lines m_vLines;

protected:
    void mousePressEvent(QMouseEvent* event) override {
        m_vLines.push_back("press " + pointText(qt3::pos(event)));
    }

    void wheelEvent(QWheelEvent* event) override {
        m_vLines.push_back("wheel " + std::to_string(qt3::delta(event)));
        event->accept();
    }

    void keyPressEvent(QKeyEvent* event) override {
        m_vLines.push_back(qt3::hasControl(event) ? "control" : "plain");
    }
};

} // namespace

TEST(EventsTest, MousePositionIsThatInTheWidget) {
    CProbe probe;
    support::mousePress(&probe, QPoint(7, 31));
    EXPECT_EQ(probe.m_vLines, (Lines{"press 7,31"}));
}

TEST(EventsTest, WheelAwayFromTheUserIsPositive) {
    CProbe probe;
    support::wheel(&probe, 120);
    support::wheel(&probe, -60);
    EXPECT_EQ(probe.m_vLines, (Lines{"wheel 120", "wheel -60"}));
}

TEST(EventsTest, ControlIsTheControlKeyOnly) {
    CProbe probe;
    support::keyPress(&probe, Qt::Key_Up);
    support::keyPress(&probe, Qt::Key_Up, Modifier::Shift);
    support::keyPress(&probe, Qt::Key_Up, Modifier::Control);
    EXPECT_EQ(probe.m_vLines, (Lines{"plain", "plain", "control"}));
}
