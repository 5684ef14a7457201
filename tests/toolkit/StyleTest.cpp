#include <qt3/Style.h>

#include "Events.h"

#include <qt3/Painter.h>
#include <qt3/PushButton.h>
#include <qt3/Text.h>
#include <qt3/Widget.h>

#include <gtest/gtest.h>

#include <qstyle.h>
#include <qstylefactory.h>

#include <functional>
#include <memory>

using qt3::Style;

namespace {

const unsigned c_white = 0xffffff;
const QRect c_area(0, 0, 24, 24);

/// Shows one element on white, drawn with a style of its own.
class CSample : public qt3::Widget {
public:
    CSample(QStyle* style, Style::PrimitiveElement element, unsigned flags)
        : m_eElement(element), m_nFlags(flags) {
        setStyle(style);
        resize(c_area.size());
    }

protected:
    void paintEvent(QPaintEvent*) override {
        qt3::Pixmap picture;
        qt3::resize(&picture, this, width(), height());
        picture.fill(Qt::white);
        {
            qt3::Painter painter(&picture);
            qt3::styleOf(this).drawPrimitive(m_eElement, &painter, c_area, colorGroup(), m_nFlags);
        }
        qt3::bitBlt(this, picture);
    }

private:
    Style::PrimitiveElement m_eElement;
    unsigned m_nFlags;
};

QImage sample(Style::PrimitiveElement element, unsigned flags,
              const QString& styleName = qt3::fromAscii("windows")) {
    const std::unique_ptr<QStyle> style(QStyleFactory::create(styleName));
    CSample widget(style.get(), element, flags);
    return support::grab(&widget);
}

int pixelsOtherThanWhite(const QImage& image, const QRect& area = c_area) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            count += support::pixel(image, x, y) != c_white;
    }
    return count;
}

/// In every style that the toolkit has.
void inEveryStyle(const std::function<void(const QString&)>& check) {
    for (const QString& name : QStyleFactory::keys()) {
        SCOPED_TRACE(qt3::ascii(name));
        check(name);
    }
}

} // namespace

TEST(StyleTest, PanelIsAFrameAndLeavesTheInside) {
    const QImage image = sample(Style::PE_Panel, Style::Style_Enabled | Style::Style_Sunken);
    EXPECT_EQ(pixelsOtherThanWhite(image, QRect(4, 4, 16, 16)), 0);
    EXPECT_NE(support::pixel(image, 0, 12), c_white);
    EXPECT_NE(support::pixel(image, 12, 0), c_white);
}

TEST(StyleTest, ButtonBevelFillsItsRectangle) {
    const unsigned flags = Style::Style_Enabled | Style::Style_Raised;
    EXPECT_NE(support::pixel(sample(Style::PE_ButtonBevel, flags), 12, 12), c_white);
}

TEST(StyleTest, PressedBevelLooksOtherThanRaisedOne) {
    EXPECT_NE(sample(Style::PE_ButtonBevel, Style::Style_Enabled | Style::Style_Down),
              sample(Style::PE_ButtonBevel, Style::Style_Enabled | Style::Style_Raised));
}

TEST(StyleTest, ScrollBarSliderIsSeenInEveryStyle) {
    inEveryStyle([](const QString& name) {
        for (const unsigned direction : {Style::Style_Default, Style::Style_Horizontal}) {
            const QImage image =
                sample(Style::PE_ScrollBarSlider, Style::Style_Enabled | direction, name);
            EXPECT_GT(pixelsOtherThanWhite(image), 24 * 24 / 2);
        }
    });
}

TEST(StyleTest, ArrowsPointFourWaysInEveryStyle) {
    inEveryStyle([](const QString& name) {
        const QImage up = sample(Style::PE_ArrowUp, Style::Style_Enabled, name);
        const QImage down = sample(Style::PE_ArrowDown, Style::Style_Enabled, name);
        const QImage left = sample(Style::PE_ArrowLeft, Style::Style_Enabled, name);
        const QImage right = sample(Style::PE_ArrowRight, Style::Style_Enabled, name);
        EXPECT_GT(pixelsOtherThanWhite(up), 0);
        EXPECT_NE(up, down);
        EXPECT_NE(left, right);
        EXPECT_NE(up, left);
    });
}

TEST(StyleTest, FocusRectangleIsSeenInEveryStyle) {
    inEveryStyle([](const QString& name) {
        EXPECT_GT(pixelsOtherThanWhite(sample(Style::PE_FocusRect, Style::Style_Default, name)), 0);
    });
}

TEST(StyleTest, ScrollBarExtentOfTheWindowsStyleIs16) {
    const qt3::Widget widget;
    EXPECT_EQ(qt3::styleOf(&widget).pixelMetric(Style::PM_ScrollBarExtent), 16);
}

TEST(StyleTest, FrameOfTheWindowsStyleIs2) {
    const qt3::Widget widget;
    EXPECT_EQ(qt3::styleOf(&widget).pixelMetric(Style::PM_DefaultFrameWidth), 2);
}

TEST(StyleTest, FocusRectangleOfAButtonLiesInside) {
    qt3::PushButton button(nullptr);
    button.resize(80, 30);
    const QRect focus = qt3::styleOf(&button).subRect(Style::SR_PushButtonFocusRect);
    EXPECT_TRUE(button.rect().contains(focus));
    EXPECT_GT(focus.width(), 60);
    EXPECT_LT(focus.width(), 80);
}
