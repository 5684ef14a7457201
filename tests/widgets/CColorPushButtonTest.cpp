#include "CColorPushButton.h"

#include "Events.h"
#include "Looks.h"
#include "ModalDriver.h"
#include "Recorder.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <qt3/MetaObject.h>
#include <qt3/Painter.h>
#include <qt3/Style.h>
#include <qt3/Widget.h>
#include <string>
#include <vector>

using support::Lines;

namespace {

const QColor c_blue(0, 0, 255);
const QColor c_black(0, 0, 0);
const QColor c_white(255, 255, 255);

// Opens what is protected.
class Button : public TEVU::CColorPushButton {
public:
    using TEVU::CColorPushButton::CColorPushButton;
    using TEVU::CColorPushButton::SlotOpenColorChooser;
};

/// Shows the frame without the swatch over it, and counts the calls.
class FrameOnly : public TEVU::CColorPushButton {
public:
    using TEVU::CColorPushButton::CColorPushButton;
    int m_nLabels = 0;

protected:
    void drawButtonLabel(qt3::Painter*) override { ++m_nLabels; }
};

/// Another widget of the same size that shows what a function paints.
class Canvas : public qt3::Widget {
public:
    using Paint = std::function<void(qt3::Painter*)>;

    Canvas(const QWidget& model, const Paint& paint) : m_paint(paint) {
        resize(model.size());
        setFont(model.font());
    }

protected:
    void paintEvent(QPaintEvent*) override {
        qt3::Painter painter(this);
        m_paint(&painter);
    }

private:
    Paint m_paint;
};

QImage painted(const QWidget& model, const Canvas::Paint& paint) {
    Canvas canvas(model, paint);
    return support::grab(&canvas);
}

/// Colour, outline and name, with the plainest means.
void paintSwatch(qt3::Painter* painter, const QRect& area, const QColor& color, const QColor& pen) {
    painter->fillRect(area, color);
    painter->setPen(pen);
    painter->drawLine(area.left(), area.top(), area.right(), area.top());
    painter->drawLine(area.right(), area.top(), area.right(), area.bottom());
    painter->drawLine(area.right(), area.bottom(), area.left(), area.bottom());
    painter->drawLine(area.left(), area.bottom(), area.left(), area.top());
    painter->drawText(area, Qt::AlignCenter, color.name());
}

/// The first pixel that is another one, as "x, y: colour, not colour"; "" if all are the same. How a
/// picture stores its pixels is no difference.
std::string difference(const QImage& seen, const QImage& wanted) {
    if (seen.width() != wanted.width() || seen.height() != wanted.height())
        return "another size";
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            const QColor is(support::pixel(seen, x, y));
            const QColor should(support::pixel(wanted, x, y));
            if (is != should)
                return std::to_string(x) + ", " + std::to_string(y) + ": " +
                       support::text(is.name() + ", not " + should.name());
        }
    }
    return "";
}

QImage swatch(const Button& button, const QColor& color, const QColor& pen) {
    return painted(button,
                   [&](qt3::Painter* painter) { paintSwatch(painter, button.rect(), color, pen); });
}

void paintFocus(qt3::Painter* painter, const qt3::PushButton& button) {
    const qt3::Style style = qt3::styleOf(&button);
    style.drawPrimitive(qt3::Style::PE_FocusRect, painter,
                        style.subRect(qt3::Style::SR_PushButtonFocusRect), button.colorGroup(),
                        qt3::Style::Style_Default);
}

void paintBevel(qt3::Painter* painter, const qt3::PushButton& button, unsigned flags) {
    qt3::styleOf(&button).drawPrimitive(qt3::Style::PE_ButtonBevel, painter, button.rect(),
                                        button.colorGroup(), flags);
}

/// "color text background foreground"
std::string state(TEVU::CColorPushButton* button) {
    const QString text = button->color().name() + " " + button->text() + " " +
                         button->paletteBackgroundColor().name() + " " +
                         button->paletteForegroundColor().name();
    return support::text(text);
}

class ColorButton : public testing::Test {
protected:
    ColorButton() {
        m_window.resize(200, 100);
        m_button.setGeometry(20, 20, 91, 30);
        m_other.setGeometry(20, 60, 91, 30);
    }

    /// Three colours that are told apart, one a state.
    void colorStates() {
        support::setButtonText(&m_button, QPalette::Active, QColor(255, 0, 0));
        support::setButtonText(&m_button, QPalette::Inactive, QColor(0, 255, 0));
        support::setButtonText(&m_button, QPalette::Disabled, QColor(255, 0, 255));
    }

    QWidget m_window;
    Button m_button{c_blue, &m_window, "markColour"};
    qt3::PushButton m_other{&m_window, "other"};
    support::ModalDriver m_driver;
};

} // namespace

TEST_F(ColorButton, StartsWithTheGivenColorInAllItsLooks) {
    EXPECT_EQ(state(&m_button), "#0000ff #0000ff #0000ff #000000");
    EXPECT_STREQ(m_button.name(), "markColour");
    EXPECT_EQ(m_button.parentWidget(), &m_window);
}

TEST_F(ColorButton, SetColorChangesAllItsLooks) {
    m_button.setColor(QColor(100, 20, 3));
    EXPECT_EQ(state(&m_button), "#641403 #641403 #641403 #ffffff");
    m_button.setColor(c_white);
    EXPECT_EQ(state(&m_button), "#ffffff #ffffff #ffffff #000000");
}

TEST_F(ColorButton, LooksAreTheSameInAllStates) {
    m_button.setColor(QColor(129, 0, 0));
    for (const QPalette::ColorGroup group :
         {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        EXPECT_EQ(qt3::colorGroup(&m_button, group).button(), QColor(129, 0, 0));
        EXPECT_EQ(qt3::colorGroup(&m_button, group).buttonText(), c_white);
    }
}

TEST_F(ColorButton, ValueOf130IsTheFirstWithBlackText) {
    struct StRow {
        const char* sName;
        QColor color;
        QColor text;
    };
    for (const StRow& row : {
             StRow{"red 129", QColor(129, 0, 0), c_white},
             StRow{"red 130", QColor(130, 0, 0), c_black},
             StRow{"green 129", QColor(0, 129, 0), c_white},
             StRow{"green 130", QColor(0, 130, 0), c_black},
             StRow{"blue 129", QColor(0, 0, 129), c_white},
             StRow{"blue 130", QColor(0, 0, 130), c_black},
             StRow{"grey 129", QColor(129, 129, 129), c_white},
             StRow{"grey 130", QColor(130, 130, 130), c_black},
             StRow{"the largest part counts", QColor(12, 129, 130), c_black},
             StRow{"the sum does not", QColor(129, 129, 1), c_white},
             StRow{"black", c_black, c_white},
             StRow{"white", c_white, c_black},
             StRow{"pure blue, dark as it looks", c_blue, c_black},
         }) {
        SCOPED_TRACE(row.sName);
        m_button.setColor(row.color);
        EXPECT_EQ(m_button.paletteForegroundColor(), row.text);
        EXPECT_EQ(Button(row.color, nullptr, nullptr).paletteForegroundColor(), row.text);
    }
}

TEST_F(ColorButton, NoColorLooksBlack) {
    m_button.setColor(QColor());
    EXPECT_FALSE(m_button.color().isValid());
    EXPECT_EQ(state(&m_button), "#000000 #000000 #000000 #ffffff");
    EXPECT_EQ(difference(support::grab(&m_button), swatch(m_button, c_black, c_white)), "");
}

TEST_F(ColorButton, ColorGivesACopy) {
    QColor color = m_button.color();
    color.setRgb(1, 2, 3);
    EXPECT_EQ(m_button.color(), c_blue);
}

TEST_F(ColorButton, AnswersToItsNameAndItsOneSlot) {
    EXPECT_EQ(qt3::className(&m_button), "TEVU::CColorPushButton");
    EXPECT_EQ(qt3::superClassName(&m_button), "QPushButton");
    EXPECT_EQ(qt3::furtherEntries(&m_button), 0);
    EXPECT_TRUE(qt3::signalTable(&m_button).empty());
    const std::vector<qt3::Method> slotList = qt3::slotTable(&m_button);
    ASSERT_EQ(slotList.size(), 1u);
    EXPECT_EQ(slotList[0].signature, "SlotOpenColorChooser()");
    EXPECT_EQ(slotList[0].access, qt3::Method::Protected);
}

TEST_F(ColorButton, DialogStartsWithWhiteWhateverTheColor) {
    m_driver.expectColorDialog({"Choose color", "#ffffff"}).under(&m_button).accept();
    m_button.SlotOpenColorChooser();
    EXPECT_EQ(state(&m_button), "#ffffff #ffffff #ffffff #000000");
}

TEST_F(ColorButton, ClickOpensTheDialogAndTheChoiceIsTaken) {
    support::show(&m_window);
    m_driver.expectColorDialog({"Choose color", "#ffffff"})
        .under(&m_button)
        .accept(QColor(100, 20, 3));
    support::mouseClick(&m_button);
    m_driver.finish();
    EXPECT_EQ(state(&m_button), "#641403 #641403 #641403 #ffffff");
}

TEST_F(ColorButton, SpaceOpensTheDialogToo) {
    support::show(&m_window);
    support::giveFocus(&m_button);
    m_driver.expectColorDialog({"Choose color"}).accept(QColor(1, 2, 130));
    support::keyClick(&m_button, Qt::Key_Space, support::Modifier::None, " ");
    m_driver.finish();
    EXPECT_EQ(state(&m_button), "#010282 #010282 #010282 #000000");
}

TEST_F(ColorButton, CancelledDialogChangesNothing) {
    const std::string before = state(&m_button);
    m_driver.expectColorDialog({}).cancel();
    m_driver.expectColorDialog({}).escape();
    m_driver.expectColorDialog({}).close();
    for (int i = 0; i < 3; ++i) {
        m_button.SlotOpenColorChooser();
        EXPECT_EQ(state(&m_button), before);
    }
}

TEST_F(ColorButton, CancelKeepsAPaletteSetByTheApplication) {
    m_button.setPaletteForegroundColor(QColor(255, 0, 0));
    m_driver.expectColorDialog({}).cancel();
    m_button.SlotOpenColorChooser();
    EXPECT_EQ(state(&m_button), "#0000ff #0000ff #0000ff #ff0000");
}

TEST_F(ColorButton, ChangesNothingWhileTheDialogIsOpen) {
    m_driver.expectColorDialog({})
        .before([&] { EXPECT_EQ(state(&m_button), "#0000ff #0000ff #0000ff #000000"); })
        .accept(c_black);
    m_button.SlotOpenColorChooser();
}

TEST_F(ColorButton, ClickIsToldToOthersAfterTheChoice) {
    qt3::SignalTap tap;
    std::vector<QColor> seen;
    ASSERT_TRUE(tap.listen(&m_button, "clicked()",
                           [&](const std::string&) { seen.push_back(m_button.color()); }));
    support::show(&m_window);
    m_driver.expectColorDialog({}).accept(QColor(1, 2, 3));
    support::mouseClick(&m_button);
    EXPECT_EQ(seen, std::vector<QColor>{QColor(1, 2, 3)});
}

TEST_F(ColorButton, DisabledButtonOpensNothing) {
    support::show(&m_window);
    m_button.setEnabled(false);
    support::mouseClick(&m_button);
    m_driver.finish();
    EXPECT_EQ(m_button.color(), c_blue);
}

TEST_F(ColorButton, FaceIsColorOutlineAndName) {
    const QImage face = support::grab(&m_button);
    EXPECT_EQ(difference(face, swatch(m_button, c_blue, c_black)), "");
    EXPECT_EQ(support::pixel(face, 0, 0), 0x000000u);
    EXPECT_EQ(support::pixel(face, 90, 0), 0x000000u);
    EXPECT_EQ(support::pixel(face, 90, 29), 0x000000u);
    EXPECT_EQ(support::pixel(face, 0, 29), 0x000000u);
    EXPECT_EQ(support::pixel(face, 1, 1), 0x0000ffu);
    EXPECT_EQ(support::pixel(face, 89, 28), 0x0000ffu);
}

TEST_F(ColorButton, FaceIsTheSameAtEverySize) {
    for (const QSize& size : {QSize(90, 30), QSize(90, 31), QSize(91, 31), QSize(30, 8)}) {
        SCOPED_TRACE(std::to_string(size.width()) + " x " + std::to_string(size.height()));
        m_button.resize(size);
        EXPECT_EQ(difference(support::grab(&m_button), swatch(m_button, c_blue, c_black)), "");
    }
}

TEST_F(ColorButton, NameIsSeenOnTheFace) {
    const QImage face = support::grab(&m_button);
    int inked = 0;
    for (int y = 1; y < 29; ++y) {
        for (int x = 1; x < 90; ++x)
            inked += support::pixel(face, x, y) != 0x0000ffu;
    }
    EXPECT_GT(inked, 40);
}

TEST_F(ColorButton, DarkColorIsOutlinedInWhite) {
    m_button.setColor(QColor(100, 20, 3));
    EXPECT_EQ(difference(support::grab(&m_button), swatch(m_button, QColor(100, 20, 3), c_white)),
              "");
}

TEST_F(ColorButton, PressedFaceIsTheSame) {
    const QImage raised = support::grab(&m_button);
    m_button.setDown(true);
    EXPECT_EQ(difference(support::grab(&m_button), raised), "");
}

TEST_F(ColorButton, NameIsThatOfTheColorAlsoUnderAnotherText) {
    m_button.setText("other");
    EXPECT_EQ(difference(support::grab(&m_button), swatch(m_button, c_blue, c_black)), "");
}

TEST_F(ColorButton, WithoutFocusItIsOutlinedInTheInactiveTextColor) {
    colorStates();
    support::show(&m_window);
    support::giveFocus(&m_other);
    EXPECT_EQ(difference(support::grab(&m_button), swatch(m_button, c_blue, QColor(0, 255, 0))),
              "");
}

TEST_F(ColorButton, WithFocusItIsOutlinedInTheActiveTextColorUnderTheFocusRectangle) {
    colorStates();
    support::show(&m_window);
    support::giveFocus(&m_button);
    ASSERT_TRUE(m_button.hasFocus());
    const auto focused = [&](qt3::Painter* painter) {
        paintSwatch(painter, m_button.rect(), c_blue, QColor(255, 0, 0));
        paintFocus(painter, m_button);
    };
    EXPECT_EQ(difference(support::grab(&m_button), painted(m_button, focused)), "");
    EXPECT_NE(difference(support::grab(&m_button), swatch(m_button, c_blue, QColor(255, 0, 0))),
              "");
}

TEST_F(ColorButton, DisabledItShowsItsColorOutlinedInTheDisabledTextColor) {
    colorStates();
    support::show(&m_window);
    m_button.setEnabled(false);
    EXPECT_EQ(difference(support::grab(&m_button), swatch(m_button, c_blue, QColor(255, 0, 255))),
              "");
}

TEST_F(ColorButton, DisabledByItsWindowItLooksDisabled) {
    colorStates();
    support::show(&m_window);
    m_window.setEnabled(false);
    EXPECT_EQ(difference(support::grab(&m_button), swatch(m_button, c_blue, QColor(255, 0, 255))),
              "");
}

TEST_F(ColorButton, FrameIsARaisedBevelUnderTheLabel) {
    FrameOnly frame(c_blue, &m_window, "frame");
    frame.resize(60, 20);
    const auto bevel = [&](unsigned flags) {
        return painted(frame, [&](qt3::Painter* painter) { paintBevel(painter, frame, flags); });
    };
    EXPECT_EQ(difference(support::grab(&frame), bevel(qt3::Style::Style_Raised)), "");
    EXPECT_EQ(frame.m_nLabels, 1);

    frame.setDown(true);
    EXPECT_EQ(difference(support::grab(&frame), bevel(qt3::Style::Style_Down)), "");
    EXPECT_NE(difference(bevel(qt3::Style::Style_Down), bevel(qt3::Style::Style_Raised)), "");
    EXPECT_EQ(frame.m_nLabels, 2);
}

TEST_F(ColorButton, FocusRectangleComesAfterTheLabelIsDrawn) {
    FrameOnly frame(c_blue, &m_window, "frame");
    frame.setGeometry(120, 20, 60, 20);
    support::show(&m_window);
    frame.show();
    support::giveFocus(&frame);
    ASSERT_TRUE(frame.hasFocus());
    const int before = frame.m_nLabels;
    const auto focused = [&](qt3::Painter* painter) {
        paintBevel(painter, frame, qt3::Style::Style_Raised);
        paintFocus(painter, frame);
    };
    EXPECT_EQ(difference(support::grab(&frame), painted(frame, focused)), "");
    EXPECT_EQ(frame.m_nLabels, before + 1);
}

TEST_F(ColorButton, CopyShowsTheSameColorAndIsIndependent) {
    auto original = std::make_unique<Button>(QColor(100, 20, 3), &m_window, "original");
    original->resize(91, 30);
    Button copy(*original);
    EXPECT_EQ(state(&copy), "#641403 #641403 #641403 #ffffff");
    EXPECT_STREQ(copy.name(), "original");
    EXPECT_EQ(copy.parentWidget(), &m_window);
    EXPECT_EQ(difference(support::grab(&copy), swatch(copy, QColor(100, 20, 3), c_white)), "");

    copy.setColor(c_white);
    EXPECT_EQ(original->color(), QColor(100, 20, 3));
    original.reset();
    EXPECT_EQ(state(&copy), "#ffffff #ffffff #ffffff #000000");
}

TEST_F(ColorButton, ClickOnACopyOpensNoDialog) {
    Button copy(m_button);
    support::show(&m_window);
    copy.show();
    support::mouseClick(&copy);
    m_driver.finish();
    EXPECT_EQ(copy.color(), c_blue);
}

TEST_F(ColorButton, AssignmentTakesOverColorTextAndPalette) {
    Button target(c_white, &m_window, "target");
    m_button.setColor(QColor(100, 20, 3));
    EXPECT_EQ(&(target = m_button), &target);
    EXPECT_EQ(state(&target), "#641403 #641403 #641403 #ffffff");
    EXPECT_EQ(state(&m_button), "#641403 #641403 #641403 #ffffff");
}

TEST_F(ColorButton, AssignedButtonOpensItsDialogOnce) {
    Button target(c_white, &m_window, "target");
    target = m_button;
    support::show(&m_window);
    target.show();
    m_driver.expectColorDialog({}).under(&target).accept(QColor(1, 2, 3));
    support::mouseClick(&target);
    m_driver.finish();
    EXPECT_EQ(target.color(), QColor(1, 2, 3));
    EXPECT_EQ(m_button.color(), c_blue);
}
