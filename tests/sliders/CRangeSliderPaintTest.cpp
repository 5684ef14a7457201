#include <CRangeSlider.h>

#include "RangeSliderModel.h"
#include "TalkingRangeSlider.h"
#include "Warnings.h"
#include "Wording.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <qimage.h>
#include <qstyle.h>
#include <qstylefactory.h>
#include <qt3/Painter.h>
#include <qt3/SignalTap.h>
#include <qt3/Style.h>
#include <qt3/Widget.h>
#include <qt3/WidgetFunctions.h>
#include <set>
#include <utility>
#include <vector>

using qt3::Style;
using support::Lines;

namespace {

const StStart c_middle = {20, 80, 0, 100}; // on 132 pixels: handles at 20 and 96, bar at 36
const unsigned c_white = 0xffffff;
const int c_handle = 16;

/// What is to be seen: where, and how.
struct StLook {
    int lowerPixel;
    int upperPixel;
    CRangeSliderModel::EnGrab pressed = CRangeSliderModel::eNothing;
};

/// The picture of a range slider, drawn a second time from single elements, all of them anew.
class CExpected : public qt3::Widget {
public:
    CExpected(const QWidget& like, Qt::Orientation orientation, const StLook& look)
        : m_bVertical(orientation == Qt::Vertical), m_look(look) {
        resize(like.size());
    }

protected:
    void paintEvent(QPaintEvent*) override {
        qt3::Pixmap picture;
        qt3::resize(&picture, this, width(), height());
        {
            qt3::Painter painter(&picture);
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(255, 255, 255)); // a style may use what is set
            painter.drawRect(rect());
            painter.setClipRect(rect()); // what is clipped is not taken from pictures kept
            drawAll(&painter);
        }
        qt3::bitBlt(this, picture);
    }

protected:
    void drawAll(qt3::Painter* painter) const {
        draw(painter, Style::PE_Panel, part(0, m_bVertical ? height() : width()),
             Style::Style_Sunken);
        if (m_look.upperPixel >= m_look.lowerPixel)
            draw(painter, Style::PE_ScrollBarSlider,
                 part(m_look.lowerPixel, m_look.upperPixel - m_look.lowerPixel),
                 down(CRangeSliderModel::eBar));
        drawHandle(painter, m_bVertical ? Style::PE_ArrowDown : Style::PE_ArrowRight,
                   m_look.lowerPixel - c_handle, down(CRangeSliderModel::eLowerHandle));
        drawHandle(painter, m_bVertical ? Style::PE_ArrowUp : Style::PE_ArrowLeft,
                   m_look.upperPixel, down(CRangeSliderModel::eUpperHandle));
    }

private:
    QRect part(int begin, int length) const {
        return m_bVertical ? QRect(0, begin, c_handle, length) : QRect(begin, 0, length, c_handle);
    }

    void draw(qt3::Painter* painter, Style::PrimitiveElement element, const QRect& rect,
              unsigned flags) const {
        if (isEnabled())
            flags |= Style::Style_Enabled;
        if (!m_bVertical)
            flags |= Style::Style_Horizontal;
        qt3::styleOf(this).drawPrimitive(element, painter, rect, colorGroup(), flags);
    }

    unsigned down(CRangeSliderModel::EnGrab element) const {
        return m_look.pressed == element ? Style::Style_Down : Style::Style_Default;
    }

    void drawHandle(qt3::Painter* painter, Style::PrimitiveElement arrow, int begin,
                    unsigned flags) const {
        draw(painter, Style::PE_ButtonBevel, part(begin, c_handle), flags);
        draw(painter, arrow, part(begin, c_handle), flags);
    }

    bool m_bVertical;
    StLook m_look;
};

/// The same without a picture: in the pixels that the screen has.
class CPaintedAtOnce : public CExpected {
public:
    using CExpected::CExpected;

protected:
    void paintEvent(QPaintEvent*) override {
        qt3::Painter painter(this);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 255, 255));
        painter.drawRect(rect());
        drawAll(&painter);
    }
};

testing::AssertionResult same(const QImage& actual, const QImage& expected) {
    if (actual.size() != expected.size())
        return testing::AssertionFailure() << "another size";
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            if (support::pixel(actual, x, y) != support::pixel(expected, x, y))
                return testing::AssertionFailure()
                       << "first at " << x << ", " << y << std::hex << ": "
                       << support::pixel(actual, x, y) << " and " << support::pixel(expected, x, y);
        }
    }
    return testing::AssertionSuccess();
}

class CRangeSliderPaintTest : public testing::TestWithParam<Qt::Orientation> {
protected:
    /// A slider that has been enabled or disabled itself is compared with one that is so too.
    QImage expected(const QWidget& like, const StLook& look, bool enabled = true,
                    QStyle* style = nullptr) const {
        CExpected widget(like, GetParam(), look);
        if (style)
            widget.setStyle(style);
        widget.setEnabled(enabled);
        return support::grab(&widget);
    }

    testing::AssertionResult shows(StShownSlider& shown, const StLook& look, bool enabled = true,
                                   QStyle* style = nullptr) const {
        return same(support::grab(&shown.m_slider), expected(shown.m_slider, look, enabled, style));
    }

    /// The colours along the slider at a distance from its edge.
    std::vector<unsigned> row(StShownSlider& shown, int across) const {
        const QImage image = support::grab(&shown.m_slider);
        std::vector<unsigned> colors;
        const int length = shown.m_slider.Length();
        for (int along = 0; along < length; ++along) {
            const QPoint point = shown.at(along, across);
            colors.push_back(support::pixel(image, point.x(), point.y()));
        }
        return colors;
    }

    /// For each pixel along a handle, how many dark ones lie across it: the shape of its arrow.
    std::vector<int> arrow(StShownSlider& shown, int begin) const {
        const QImage image = support::grab(&shown.m_slider);
        std::vector<int> counts;
        for (int along = begin; along < begin + c_handle; ++along) {
            int count = 0;
            for (int across = 2; across < c_handle - 2; ++across) {
                const QPoint point = shown.at(along, across);
                count += support::pixel(image, point.x(), point.y()) == 0x000000 ? 1 : 0;
            }
            if (count > 0)
                counts.push_back(count);
        }
        return counts;
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, CRangeSliderPaintTest, testing::Values(Qt::Horizontal, Qt::Vertical),
                         nameOfOrientation);

TEST_P(CRangeSliderPaintTest, ElementsLieWhereTheValuesAre) {
    StShownSlider shown(GetParam(), c_middle);
    EXPECT_TRUE(shows(shown, {36, 96}));
}

TEST_P(CRangeSliderPaintTest, GrooveIsWhiteOutsideOfHandlesAndBar) {
    StShownSlider shown(GetParam(), c_middle);
    const std::vector<unsigned> colors = row(shown, 3);
    for (int along = 2; along < 130; ++along) {
        const bool covered = along >= 20 && along < 112;
        const bool shine = along == 36 || along == 37; // the bevel of the bar may be white
        if (!shine) {
            EXPECT_EQ(colors[along] == c_white, !covered)
                << along << std::hex << ' ' << colors[along];
        }
    }
}

TEST_P(CRangeSliderPaintTest, GrooveHasAFrame) {
    StShownSlider shown(GetParam(), {40, 60, 0, 100});
    EXPECT_NE(row(shown, 8)[0], c_white);
    EXPECT_NE(row(shown, 0)[10], c_white);
    EXPECT_EQ(row(shown, 8)[10], c_white);
}

TEST_P(CRangeSliderPaintTest, HandlesAreFlatAndTheBarIsRaised) {
    StShownSlider shown(GetParam(), c_middle);
    const std::vector<unsigned> colors = row(shown, 1); // clear of the arrows
    const auto kinds = [&](int begin, int end) {
        return std::set<unsigned>(colors.begin() + begin, colors.begin() + end).size();
    };
    EXPECT_EQ(kinds(20, 36), 1u);
    EXPECT_GT(kinds(36, 96), 1u);
    EXPECT_EQ(kinds(96, 112), 1u);
    EXPECT_NE(colors[95], colors[96]);
}

TEST_P(CRangeSliderPaintTest, ArrowsPointToTheBar) {
    StShownSlider shown(GetParam(), c_middle);
    const std::vector<int> lower = arrow(shown, 20);
    const std::vector<int> upper = arrow(shown, 96);
    ASSERT_FALSE(lower.empty());
    ASSERT_FALSE(upper.empty());
    EXPECT_GT(lower.front(), lower.back());
    EXPECT_LT(upper.front(), upper.back());
}

TEST_P(CRangeSliderPaintTest, BarWithoutLengthIsNotSeen) {
    StShownSlider shown(GetParam(), {50, 50, 0, 100});
    const std::vector<unsigned> colors = row(shown, 1); // clear of the arrows
    const std::set<unsigned> kinds(colors.begin() + 50, colors.begin() + 82);
    EXPECT_EQ(kinds.size(), 1u);
    EXPECT_TRUE(shows(shown, {66, 66}));
}

TEST_P(CRangeSliderPaintTest, EverySetterShowsItsResult) {
    StShownSlider shown(GetParam(), c_middle);
    shown.m_slider.SetLower(30);
    EXPECT_TRUE(shows(shown, {46, 96}));
    shown.m_slider.SetUpper(70);
    EXPECT_TRUE(shows(shown, {46, 86}));
    shown.m_slider.Move(-10);
    EXPECT_TRUE(shows(shown, {36, 76}));
    shown.m_slider.SetRange(0, 100);
    EXPECT_TRUE(shows(shown, {16, 116}));
    shown.m_slider.SetBound(0, 200);
    EXPECT_TRUE(shows(shown, {16, 66}));
    shown.m_slider.SetBound(50, 250);
    EXPECT_TRUE(shows(shown, {16, 41}));
    shown.m_slider.SetRange(150, 150);
    shown.m_slider.EnableNullRange(false);
    EXPECT_TRUE(shows(shown, {66, 66}));
    shown.m_slider.SetUpper(152);
    EXPECT_TRUE(shows(shown, {66, 67}));
}

TEST_P(CRangeSliderPaintTest, SignalsComeBeforeThePictureIsRenderedAnew) {
    StShownSlider shown(GetParam(), c_middle);
    Lines before;
    qt3::SignalTap tap;
    tap.listenToAll(&shown.m_slider, [&](const std::string& signal, const std::string&) {
        EXPECT_TRUE(shows(shown, {36, 96})) << signal;
        before.push_back(signal);
    });

    shown.m_slider.SetRange(30, 60);

    EXPECT_EQ(before, (Lines{"ValueChanged", "LowerChanged", "UpperChanged"}));
    EXPECT_TRUE(shows(shown, {46, 76}));
}

TEST_P(CRangeSliderPaintTest, StoredBoundShowsOnlyAtTheNextRendering) {
    StShownSlider shown(GetParam(), c_middle);
    shown.m_slider.SetMinValue(-100);
    shown.m_slider.SetMaxValue(300);
    qt3::repaint(&shown.m_slider, true);
    EXPECT_TRUE(shows(shown, {36, 96}));

    shown.m_slider.RenderPrimitives();

    EXPECT_TRUE(shows(shown, {16 + 30, 16 + 45}));
}

TEST_P(CRangeSliderPaintTest, PressedElementIsShownPressed) {
    const std::pair<int, CRangeSliderModel::EnGrab> presses[] = {
        {28, CRangeSliderModel::eLowerHandle},
        {50, CRangeSliderModel::eBar},
        {100, CRangeSliderModel::eUpperHandle}};
    for (const auto& [along, element] : presses) {
        StShownSlider shown(GetParam(), c_middle);
        shown.press(along);
        EXPECT_TRUE(shows(shown, {36, 96, element})) << element;
    }
}

TEST_P(CRangeSliderPaintTest, HidingLetsGoWithoutRendering) {
    StShownSlider shown(GetParam(), c_middle);
    shown.press(28);
    shown.m_slider.hideEvent(nullptr);
    EXPECT_TRUE(shows(shown, {36, 96, CRangeSliderModel::eLowerHandle}));

    shown.m_slider.RenderPrimitives();

    EXPECT_TRUE(shows(shown, {36, 96}));
}

TEST_P(CRangeSliderPaintTest, PressedHandleLooksOtherThanAnUnpressedOne) {
    StShownSlider shown(GetParam(), c_middle);
    const QImage before = support::grab(&shown.m_slider);
    shown.press(28);
    const QImage after = support::grab(&shown.m_slider);
    for (int along = 0; along < 132; ++along) {
        bool differs = false;
        for (int across = 0; across < c_handle; ++across) {
            const QPoint point = shown.at(along, across);
            differs = differs || support::pixel(before, point.x(), point.y()) !=
                                     support::pixel(after, point.x(), point.y());
        }
        if (along < 20 || along >= 36) {
            EXPECT_FALSE(differs) << along;
        } else if (along == 20 || along == 35) {
            EXPECT_TRUE(differs) << along;
        }
    }
}

TEST_P(CRangeSliderPaintTest, ReleaseShowsTheElementUnpressedWhereItIsThen) {
    StShownSlider shown(GetParam(), c_middle);
    shown.press(28);
    shown.release(28);
    EXPECT_TRUE(shows(shown, {37, 96})); // the release itself moves by one: see the mouse mapping
}

TEST_P(CRangeSliderPaintTest, DisablingShowsOnlyAtTheNextRendering) {
    StShownSlider shown(GetParam(), c_middle);
    shown.m_slider.setEnabled(false);
    qt3::repaint(&shown.m_slider, true);
    EXPECT_TRUE(shows(shown, {36, 96}));

    shown.m_slider.SetBound(0, 100);

    EXPECT_TRUE(shows(shown, {36, 96}, false));
    EXPECT_FALSE(shows(shown, {36, 96}));
}

TEST_P(CRangeSliderPaintTest, DisabledElementsHaveNoBlackArrow) {
    StShownSlider shown(GetParam(), c_middle);
    shown.m_slider.setEnabled(false);
    shown.m_slider.RenderPrimitives();
    EXPECT_TRUE(arrow(shown, 20).empty());
}

// Styles differ in which flags they heed: some draw a bar otherwise when it is pressed or horizontal.
TEST_P(CRangeSliderPaintTest, EveryStyleDrawsTheElementsAsTheyAreGivenToIt) {
    std::vector<std::unique_ptr<QStyle>> styles; // each outlives the slider
    StShownSlider shown(GetParam(), c_middle);
    const QStringList keys = QStyleFactory::keys();
    for (int i = 0; i < static_cast<int>(keys.size()); ++i) {
        styles.emplace_back(QStyleFactory::create(keys[i]));
        shown.m_slider.setStyle(styles.back().get());
        shown.press(50);
        EXPECT_TRUE(shows(shown, {36, 96, CRangeSliderModel::eBar}, true, styles.back().get()))
            << support::text(keys[i]);
        shown.m_slider.hideEvent(nullptr);
        shown.m_slider.RenderPrimitives();
        EXPECT_TRUE(shows(shown, {36, 96}, true, styles.back().get())) << support::text(keys[i]);
    }
}

TEST_P(CRangeSliderPaintTest, EveryPixelIsThatOfAFreshDrawingInEveryStyleAndState) {
    const std::pair<int, CRangeSliderModel::EnGrab> presses[] = {
        {10, CRangeSliderModel::eNothing},
        {28, CRangeSliderModel::eLowerHandle},
        {50, CRangeSliderModel::eBar},
        {100, CRangeSliderModel::eUpperHandle}};
    std::vector<std::unique_ptr<QStyle>> styles; // each outlives the slider
    StShownSlider shown(GetParam(), c_middle);
    const QStringList keys = QStyleFactory::keys();
    for (int i = 0; i < 2 * static_cast<int>(keys.size()); ++i) { // each twice: drawn, then copied
        styles.emplace_back(QStyleFactory::create(keys[i / 2]));
        shown.m_slider.setStyle(styles.back().get());
        for (const auto& [along, element] : presses) {
            shown.press(along);
            for (const bool enabled : {false, true}) {
                shown.m_slider.setEnabled(enabled);
                shown.m_slider.RenderPrimitives();
                EXPECT_TRUE(shows(shown, {36, 96, element}, enabled, styles.back().get()))
                    << support::text(keys[i / 2]) << ", enabled " << enabled << ", pressed "
                    << element;
            }
            shown.m_slider.hideEvent(nullptr);
        }
    }
}

TEST_P(CRangeSliderPaintTest, PictureIsAsSharpAsTheScreen) {
    StShownSlider shown(GetParam(), c_middle);
    CPaintedAtOnce painted(shown.m_slider, GetParam(), {36, 96});

    EXPECT_TRUE(same(support::grab(&shown.m_slider), support::grab(&painted)));
}

TEST_P(CRangeSliderPaintTest, ResizingRendersAnewOnTheWholeLength) {
    StShownSlider shown(GetParam(), c_middle);
    shown.lines();

    shown.m_slider.resize(shown.size(232));

    const Lines lines = shown.lines();
    EXPECT_FALSE(lines.empty());
    for (const std::string& line : lines)
        EXPECT_EQ(line, "paint");
    EXPECT_TRUE(shows(shown, {16 + 40, 16 + 160}));
}

TEST_P(CRangeSliderPaintTest, ResizeEventAloneRendersAndPaints) {
    StShownSlider shown(GetParam(), c_middle);
    shown.m_slider.SetMaxValue(200);
    shown.lines();

    shown.m_slider.resizeEvent(nullptr);

    EXPECT_EQ(shown.lines(), Lines{"paint"});
    EXPECT_TRUE(shows(shown, {16 + 10, 16 + 40}));
}

TEST_P(CRangeSliderPaintTest, SliderShorterThanItsHandlesRunsBackward) {
    StShownSlider shown(GetParam(), c_middle, 22); // -10 pixels between the handles
    shown.m_slider.SetRange(100, 100);
    EXPECT_TRUE(shows(shown, {6, 6}));
}

TEST_P(CRangeSliderPaintTest, BoundOfASingleValueShowsEverythingAtTheBeginning) {
    StShownSlider shown(GetParam(), c_middle);
    shown.m_slider.SetBound(50, 50);
    EXPECT_TRUE(shows(shown, {16, 16}));
}

TEST_P(CRangeSliderPaintTest, HandlesOfAReversedRangePassEachOther) {
    StShownSlider shown(GetParam(), c_middle);
    shown.m_slider.SetBound(40, 140);
    shown.m_slider.SetRange(140, 40); // 140..139: the upper handle one pixel before the lower's end
    const std::vector<int> upper = arrow(shown, 115);
    EXPECT_EQ(shown.m_slider.range(), "140..139 in 40..140");
    ASSERT_FALSE(upper.empty());
    EXPECT_LT(upper.front(), upper.back());
}

TEST_P(CRangeSliderPaintTest, BarOfAReversedRangeIsNotSeenInAnyStyle) {
    const support::Warnings warnings;
    std::vector<std::unique_ptr<QStyle>> styles;       // each outlives the slider
    StShownSlider shown(GetParam(), {80, 20, 0, 100}); // handles at 36 and 80, none between them
    const QStringList keys = QStyleFactory::keys();
    for (int i = 0; i < static_cast<int>(keys.size()); ++i) {
        SCOPED_TRACE(support::text(keys[i]));
        styles.emplace_back(QStyleFactory::create(keys[i]));
        shown.m_slider.setStyle(styles.back().get());
        for (const bool enabled : {true, false}) {
            shown.m_slider.setEnabled(enabled);
            shown.m_slider.RenderPrimitives();
            const std::vector<unsigned> colors = row(shown, 8);
            EXPECT_EQ(std::count(colors.begin() + 52, colors.begin() + 80, colors[110]), 28);
        }
    }
    EXPECT_EQ(warnings.lines(), Lines{});
}

TEST_P(CRangeSliderPaintTest, SliderWithoutRoomForItsHandlesIsRenderedInEveryStyle) {
    const support::Warnings warnings;
    for (const QString& key : QStyleFactory::keys()) {
        const std::unique_ptr<QStyle> style(QStyleFactory::create(key));
        StShownSlider shown(GetParam(), c_middle, 22);
        shown.m_slider.setStyle(style.get());
        shown.m_slider.RenderPrimitives();
        EXPECT_TRUE(shows(shown, {16 - 2, 16 - 8}, true, style.get())) << support::text(key);
    }
    EXPECT_EQ(warnings.lines(), Lines{});
}

TEST_P(CRangeSliderPaintTest, ExtremeValuesArePainted) {
    StShownSlider shown(GetParam(), c_middle);
    shown.m_slider.SetBound(-2147483647 - 1, 2147483647);
    shown.m_slider.SetUpper(2147483647);
    EXPECT_TRUE(shows(shown, {16 + 50, 16 + 100}));
}

TEST_P(CRangeSliderPaintTest, AssignmentBringsThePictureAlong) {
    StShownSlider source(GetParam(), c_middle);
    source.m_slider.SetMaxValue(300); // not rendered
    StShownSlider target(GetParam(), {0, 100, 0, 100});

    static_cast<TEVU::CRangeSlider&>(target.m_slider) = source.m_slider;
    qt3::repaint(&target.m_slider, true);

    EXPECT_TRUE(shows(target, {36, 96}));
}

TEST_P(CRangeSliderPaintTest, CopyPaintsWhatItsOriginalPaints) {
    StShownSlider shown(GetParam(), c_middle);
    TEVU::CRangeSlider copy(shown.m_slider);
    support::show(&copy);
    EXPECT_TRUE(same(support::grab(&copy), expected(copy, {36, 96})));
}

TEST_P(CRangeSliderPaintTest, RandomRangesAreRenderedWhereTheFormulaSays) {
    StShownSlider shown(GetParam(), c_middle);
    unsigned seed = 20240611;
    const auto next = [&seed](int limit) {
        seed = seed * 1664525u + 1013904223u;
        return static_cast<int>((seed >> 8) % static_cast<unsigned>(limit));
    };
    for (int i = 0; i < 40; ++i) {
        const int min = next(200) - 100;
        const int max = min + 1 + next(300);
        const int lower = min + next(max - min + 1);
        const int upper = lower + next(max - lower + 1);
        shown.m_slider.SetBound(min, max);
        shown.m_slider.SetRange(lower, upper);
        const CRangeSliderModel model(lower, upper, min, max, 132);
        ASSERT_TRUE(shows(shown, {model.PixelOf(lower), model.PixelOf(upper)}))
            << shown.m_slider.range();
    }
}
