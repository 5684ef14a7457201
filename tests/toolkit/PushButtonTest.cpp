#include <qt3/PushButton.h>

#include "Events.h"

#include <qt3/Text.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using qt3::ascii;
using qt3::fromAscii;

namespace {

typedef std::vector<std::string> Lines;

const QColor c_red(255, 0, 0);

/// Paints a red face of its own.
class CRedButton : public qt3::PushButton {
public:
    CRedButton() : qt3::PushButton(nullptr) { resize(60, 20); }

    Lines m_vCalls;

protected:
    void drawButton(qt3::Painter* painter) override {
        m_vCalls.push_back("button");
        drawButtonLabel(painter);
    }

    void drawButtonLabel(qt3::Painter* painter) override {
        m_vCalls.push_back("label");
        painter->setBrush(c_red);
        painter->drawRect(0, 0, width(), height());
    }
};

/// Leaves the button to the toolkit, but not its label.
class CLabelButton : public qt3::PushButton {
public:
    CLabelButton() : qt3::PushButton(nullptr) { resize(60, 20); }

protected:
    void drawButtonLabel(qt3::Painter* painter) override {
        painter->setPen(Qt::NoPen);
        painter->setBrush(c_red);
        painter->drawRect(20, 8, 20, 4);
    }
};

} // namespace

TEST(PushButtonTest, HasParentNameAndText) {
    QWidget parent;
    const qt3::PushButton button(fromAscii("&Browse"), &parent, "button");
    EXPECT_EQ(button.parentWidget(), &parent);
    EXPECT_STREQ(button.name(), "button");
    EXPECT_EQ(ascii(button.text()), "&Browse");
}

TEST(PushButtonTest, ColorsAreThoseOfAButtonInAllStates) {
    qt3::PushButton button(nullptr);
    button.setPaletteBackgroundColor(c_red);
    button.setPaletteForegroundColor(Qt::white);
    for (const QPalette::ColorGroup state :
         {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        EXPECT_EQ(qt3::colorGroup(&button, state).button(), c_red);
        EXPECT_EQ(qt3::colorGroup(&button, state).buttonText(), QColor(Qt::white));
    }
}

TEST(PushButtonTest, PaintingGoesThroughTheHook) {
    CRedButton button;
    const QImage image = support::grab(&button);
    EXPECT_EQ(button.m_vCalls, (Lines{"button", "label"}));
    EXPECT_EQ(support::pixel(image, 30, 10), 0xff0000u);
    EXPECT_EQ(support::pixel(image, 59, 19), 0x000000u);
}

TEST(PushButtonTest, LabelHookPaintsOnTheToolkitsButton) {
    CLabelButton button;
    const QImage image = support::grab(&button);
    EXPECT_EQ(support::pixel(image, 30, 10), 0xff0000u);
    EXPECT_NE(support::pixel(image, 10, 10), 0xff0000u);
}

TEST(PushButtonTest, ToolkitsFaceShowsItsText) {
    qt3::PushButton silent(nullptr);
    qt3::PushButton telling(fromAscii("WWWW"), nullptr);
    silent.resize(80, 30);
    telling.resize(80, 30);
    EXPECT_NE(support::grab(&silent), support::grab(&telling));
}

TEST(PushButtonCopyTest, CopyTakesOverTextAndColors) {
    QWidget parent;
    std::unique_ptr<qt3::PushButton> original(
        new qt3::PushButton(fromAscii("text"), &parent, "button"));
    original->setPaletteBackgroundColor(c_red);
    original->setAutoDefault(true);

    const qt3::PushButton copy(*original);
    original.reset();

    EXPECT_EQ(ascii(copy.text()), "text");
    EXPECT_EQ(copy.paletteBackgroundColor(), c_red);
    EXPECT_TRUE(copy.autoDefault());
    EXPECT_STREQ(copy.name(), "button");
    EXPECT_EQ(copy.parentWidget(), &parent);
}

TEST(PushButtonCopyTest, AssignmentTakesOverTheText) {
    const qt3::PushButton original(fromAscii("new"), nullptr);
    qt3::PushButton target(fromAscii("old"), nullptr);
    target = original;
    EXPECT_EQ(ascii(target.text()), "new");
}
