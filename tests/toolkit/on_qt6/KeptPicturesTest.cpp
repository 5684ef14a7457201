#include "KeptPictures.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <qapplication.h>
#include <qpainter.h>
#include <qproxystyle.h>
#include <qstylefactory.h>
#include <qt3/Painter.h>
#include <qt3/Style.h>
#include <qt3/Widget.h>
#include <random>
#include <string>
#include <utility>

using qt3::Style;

namespace {

/// A picture for painting on, with its density.
QImage picture(const QSize& size, int density = 1, QRgb color = 0xffffffff) {
    QImage image(size * density, QImage::Format_RGB32);
    image.setDevicePixelRatio(density);
    image.fill(color);
    return image;
}

QImage noise(const QSize& size, int density) {
    std::mt19937 random(7);
    QImage image = picture(size, density);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, 0xff000000 | static_cast<QRgb>(random()));
    }
    return image;
}

/// A painter as the slider has it.
void prepare(QPainter* painter, const QColor& brush = Qt::white) {
    painter->setPen(Qt::NoPen);
    painter->setBrush(brush);
}

/// A drawing that counts how often it is asked. It blends a square in the middle.
class CountingDrawing : public qt3::ElementDrawing {
public:
    void draw(QPainter* painter, const QRect& rect) const override {
        ++m_nDrawn;
        painter->fillRect(rect, m_color);
        painter->fillRect(rect.adjusted(2, 2, -2, -2), QColor(0, 0, 255, 128));
        painter->setPen(Qt::red); // which nobody is to see
    }

    /// Whether it has been asked since the last time.
    bool wasAsked() const { return std::exchange(m_nDrawn, 0) > 0; }

    QColor m_color = QColor(200, 100, 0);

private:
    mutable int m_nDrawn = 0;
};

/// One element in one look on one picture; the tests change what they like.
class KeptPicturesTest : public testing::Test {
protected:
    KeptPicturesTest() : m_style(QStyleFactory::create("Fusion")), m_context(&m_widget) {
        m_context.pStyle = m_style.get();
    }

    QImage draw() {
        QImage image = m_picture;
        QPainter painter(&image);
        prepare(&painter, m_brush);
        drawOn(&painter);
        EXPECT_EQ(painter.pen().style(), Qt::NoPen);
        return image;
    }

    void drawOn(QPainter* painter) {
        m_kept.draw({m_context, m_nElement, m_nState, m_palette, m_bFrame}, m_drawing, painter,
                    m_rect);
    }

    /// Whether it is drawn anew, after it has been drawn with everything as it was first.
    bool drawsAnew() {
        m_drawing.wasAsked();
        draw();
        return m_drawing.wasAsked();
    }

    QWidget m_widget;
    std::unique_ptr<QStyle> m_style;
    qt3::StyleContext m_context;
    int m_nElement = 1;
    QStyle::State m_nState = QStyle::State_Enabled;
    QPalette m_palette{QColor(239, 239, 239)}; // not the user's, which may have patterns
    bool m_bFrame = false;
    QColor m_brush = Qt::white;
    QRect m_rect = QRect(5, 4, 12, 8);
    QImage m_picture = picture(QSize(40, 20));
    CountingDrawing m_drawing;
    qt3::KeptPictures m_kept;
};

} // namespace

TEST_F(KeptPicturesTest, ElementIsDrawnOnceAndThenCopied) {
    const QImage first = draw();
    EXPECT_TRUE(m_drawing.wasAsked());

    const QImage second = draw();

    EXPECT_FALSE(m_drawing.wasAsked());
    EXPECT_EQ(second, first);
    EXPECT_NE(first, m_picture);
}

TEST_F(KeptPicturesTest, CopyFollowsToAnotherPlace) {
    const QImage first = draw();
    m_rect.moveTo(20, 9);

    EXPECT_FALSE(drawsAnew());
    EXPECT_EQ(draw().copy(20, 9, 12, 8), first.copy(5, 4, 12, 8));
    EXPECT_EQ(draw().copy(5, 4, 12, 5), m_picture.copy(5, 4, 12, 5));
}

TEST_F(KeptPicturesTest, SeveralLooksAreKeptAtATime) {
    draw();
    m_nState = QStyle::State_None;
    draw();
    EXPECT_FALSE(drawsAnew());
    m_nState = QStyle::State_Enabled;
    EXPECT_FALSE(drawsAnew());
}

TEST_F(KeptPicturesTest, AnotherElementIsDrawnAnew) {
    draw();
    m_nElement = 2;
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, AnotherStateIsDrawnAnew) {
    draw();
    m_nState |= QStyle::State_Sunken;
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, AnotherStyleIsDrawnAnew) {
    draw();
    const std::unique_ptr<QStyle> windows(QStyleFactory::create("Windows"));
    m_context.pStyle = windows.get();
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, AnotherObjectOfTheSameStyleIsNot) {
    draw();
    m_style.reset(QStyleFactory::create("Fusion"));
    m_context.pStyle = m_style.get();
    EXPECT_FALSE(drawsAnew());
}

TEST_F(KeptPicturesTest, PaletteThatIsChangedInPlaceIsDrawnAnewEachTime) {
    for (const int red : {10, 20, 30}) {
        draw();
        m_palette.setColor(QPalette::Button, QColor(red, 0, 0));
        EXPECT_TRUE(drawsAnew()) << red;
    }
}

TEST_F(KeptPicturesTest, AnotherGroupOfThePaletteIsDrawnAnew) {
    draw();
    m_palette.setCurrentColorGroup(QPalette::Disabled);
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, AnotherSizeIsDrawnAnew) {
    draw();
    m_rect.setWidth(13);
    EXPECT_TRUE(drawsAnew());
    m_rect.setHeight(9);
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, AnotherDensityIsDrawnAnew) {
    m_rect = QRect(0, 0, 12, 8);
    draw();
    m_picture = picture(QSize(20, 10), 2);
    m_rect = QRect(0, 0, 6, 4); // as many pixels
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, AnotherDirectionIsDrawnAnew) {
    draw();
    m_context.eDirection = Qt::RightToLeft;
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, AnotherDensityOfTheFontIsDrawnAnew) {
    draw();
    m_context.nFontDpi *= 2;
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, AnotherBrushOfThePainterIsDrawnAnew) {
    draw();
    m_brush = Qt::green;
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, CoveredPixelsMayBeAnything) {
    draw();
    m_picture.setPixel(6, 5, 0xff123456); // in the border that is filled
    EXPECT_FALSE(drawsAnew());
    EXPECT_EQ(draw().pixelColor(6, 5), m_drawing.m_color);
}

TEST_F(KeptPicturesTest, PixelsThatAreLeftMayBeAnything) {
    m_drawing.m_color = Qt::transparent;
    draw();
    m_picture.setPixel(6, 5, 0xff123456);
    EXPECT_FALSE(drawsAnew());
    EXPECT_EQ(draw().pixel(6, 5), 0xff123456);
}

TEST_F(KeptPicturesTest, AnotherPixelThatIsBlendedWithIsDrawnAnew) {
    m_drawing.m_color = Qt::transparent;
    draw();
    m_picture.setPixel(10, 8, 0xff123456);
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, PlacesThatDifferInTheirCornersAreKeptBesideEachOther) {
    m_drawing.m_color = QColor(10, 20, 30, 100);
    const QImage grey = picture(QSize(40, 20), 1, 0xff808080);
    const QImage white = m_picture;
    draw();
    m_picture = grey;
    draw();

    EXPECT_FALSE(drawsAnew());
    m_picture = white;
    EXPECT_FALSE(drawsAnew());
}

TEST_F(KeptPicturesTest, OtherStylesThanThoseOfTheToolkitAreAskedEachTime) {
    QProxyStyle proxy(QStyleFactory::create("Fusion"));
    m_context.pStyle = &proxy;
    draw();
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, StyleOfTheToolkitBehindAnotherIsAskedEachTime) {
    draw();
    QProxyStyle proxy(QStyleFactory::create("Fusion"));
    m_context.pStyle = proxy.baseStyle();
    draw();
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, PaletteWithAPatternIsAskedEachTime) {
    m_palette.setBrush(QPalette::Button, QBrush(Qt::red, Qt::Dense4Pattern));
    draw();
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, FrameInsideOfAPictureIsDrawnAnewBecauseItReachesBeyond) {
    m_bFrame = true;
    draw();
    EXPECT_TRUE(drawsAnew());
    m_rect = QRect(0, 0, 40, 20);
    draw();
    EXPECT_FALSE(drawsAnew());
}

TEST_F(KeptPicturesTest, PictureOfTheWholeIsNotTakenForAPartOfALargerOne) {
    m_rect = QRect(0, 0, 40, 20);
    draw();
    m_picture = picture(QSize(60, 20));
    EXPECT_TRUE(drawsAnew());
    EXPECT_EQ(draw().pixel(50, 10), 0xffffffff);
}

TEST_F(KeptPicturesTest, ElementThatIsNotWhollyInThePictureIsDrawnAnew) {
    for (const QPoint& corner : {QPoint(-1, 4), QPoint(29, 4), QPoint(5, -1), QPoint(5, 13),
                                 QPoint(-(1 << 29), 0), QPoint(1 << 29, 0)}) {
        m_rect.moveTo(corner);
        draw();
        EXPECT_TRUE(drawsAnew()) << corner.x() << ", " << corner.y();
    }
}

TEST_F(KeptPicturesTest, ThinElementIsDrawnAnew) {
    m_rect = QRect(5, 4, 1, 8);
    draw();
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, FractionalDensityIsDrawnAnew) {
    m_picture.setDevicePixelRatio(1.5);
    draw();
    EXPECT_TRUE(drawsAnew());
    m_picture.setDevicePixelRatio(0.5);
    draw();
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, OtherFormatOfThePictureIsDrawnAnew) {
    m_picture.convertTo(QImage::Format_ARGB32_Premultiplied);
    draw();
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, PainterThatDoesMoreThanPutPixelsDrawsAnew) {
    using Setting = void (*)(QPainter*);
    const Setting settings[] = {
        [](QPainter* p) { p->setClipRect(0, 0, 100, 100); },
        [](QPainter* p) { p->translate(1, 0); },
        [](QPainter* p) { p->scale(0.5, 1); },
        [](QPainter* p) { p->rotate(10); },
        [](QPainter* p) { p->setWindow(0, 0, 10, 10); },
        [](QPainter* p) { p->setOpacity(0.5); },
        [](QPainter* p) { p->setCompositionMode(QPainter::CompositionMode_Plus); },
        [](QPainter* p) { p->setRenderHint(QPainter::Antialiasing); },
        [](QPainter* p) { p->setPen(Qt::black); },
        [](QPainter* p) { p->setBrush(Qt::NoBrush); },
        [](QPainter* p) { p->setBrush(QBrush(Qt::white, Qt::Dense2Pattern)); },
    };
    draw();
    for (const Setting set : settings) {
        QPainter painter(&m_picture);
        prepare(&painter);
        set(&painter);
        for (int i = 0; i < 2; ++i) {
            m_drawing.wasAsked();
            drawOn(&painter);
            EXPECT_TRUE(m_drawing.wasAsked()) << "setting " << (&set - settings);
        }
    }
}

TEST_F(KeptPicturesTest, WhatHasNotBeenUsedForLongestGoesFirst) {
    m_picture = picture(QSize(400, 100));
    draw();
    const int most = qt3::KeptPictures::c_nMostBytes;
    for (int width = 100; width < 400; ++width) {
        m_rect.setSize(QSize(12, 8));
        EXPECT_FALSE(drawsAnew()) << "with pictures up to a width of " << width;
        m_rect = QRect(0, 4, width, 90);
        draw();
        ASSERT_LE(m_kept.bytes(), most);
        m_rect = QRect(5, 4, 12, 8);
    }
    EXPECT_GT(m_kept.bytes(), most / 2);
    m_rect = QRect(0, 4, 100, 90);
    EXPECT_TRUE(drawsAnew());
}

TEST_F(KeptPicturesTest, PictureThatWouldPushOutMostOthersIsNotKept) {
    m_picture = picture(QSize(2000, 100));
    m_rect = QRect(0, 0, 2000, 90);
    draw();
    EXPECT_TRUE(drawsAnew());
    EXPECT_EQ(m_kept.bytes(), 0);
}

TEST_F(KeptPicturesTest, WhatPaintsOnAWidgetIsDrawnAnew) {
    class CPainting : public QWidget {
    public:
        void paintEvent(QPaintEvent*) override {
            QPainter painter(this);
            prepare(&painter);
            m_draw(&painter);
        }
        std::function<void(QPainter*)> m_draw;
    } widget;
    widget.m_draw = [this](QPainter* painter) { drawOn(painter); };
    for (int i = 0; i < 2; ++i) {
        widget.grab();
        EXPECT_TRUE(m_drawing.wasAsked());
    }
}

namespace {

struct StPlace {
    const char* styleName;
    int density;
};

void PrintTo(const StPlace& place, std::ostream* out) {
    *out << place.styleName << " at " << place.density << "x";
}

/// Every element with every state, of many sizes, in many places: kept and drawn anew, side by side.
class PixelsTest : public testing::TestWithParam<StPlace> {
protected:
    PixelsTest() : m_style(QStyleFactory::create(GetParam().styleName)) {
        m_widget.setStyle(m_style.get());
    }

    QImage drawn(QImage image, bool anew) const {
        qt3::Painter painter(&image);
        prepare(&painter);
        if (anew)
            painter.setClipRect(QRect(QPoint(), image.size())); // then nothing kept is used
        qt3::styleOf(&m_widget).drawPrimitive(m_eElement, &painter, m_rect, m_widget.colorGroup(),
                                              m_nFlags);
        return image;
    }

    void compareOn(const QImage& image) const {
        const QImage fresh = drawn(image, true);
        EXPECT_EQ(drawn(image, false), fresh) << where(image) << ", the first time";
        EXPECT_EQ(drawn(image, false), fresh) << where(image) << ", the second time";
    }

    /// In several places, the ends of the picture among them.
    void compareEverywhere() {
        const QSize size(80, 36);
        const QImage pictures[] = {picture(size, GetParam().density),
                                   noise(size, GetParam().density)};
        for (const int x : {0, 1, 6, size.width() - m_rect.width()}) {
            for (const int y : {0, 3, size.height() - m_rect.height()}) {
                m_rect.moveTo(x, y);
                for (const QImage& image : pictures)
                    compareOn(image);
                if (HasFailure())
                    return;
            }
        }
    }

    std::string where(const QImage& image) const {
        return "element " + std::to_string(m_eElement) + ", flags " + std::to_string(m_nFlags) +
               ", at " + std::to_string(m_rect.x()) + ", " + std::to_string(m_rect.y()) + ", " +
               std::to_string(m_rect.width()) + " by " + std::to_string(m_rect.height()) +
               " on pixels like " + std::to_string(image.pixel(0, 0));
    }

    std::unique_ptr<QStyle> m_style; // outlives the widget
    qt3::Widget m_widget;
    Style::PrimitiveElement m_eElement = Style::PE_Panel;
    unsigned m_nFlags = Style::Style_Default;
    QRect m_rect;
};

const Style::PrimitiveElement c_elements[] = {
    Style::PE_ButtonBevel, Style::PE_FocusRect, Style::PE_ArrowUp, Style::PE_ArrowDown,
    Style::PE_ArrowRight,  Style::PE_ArrowLeft, Style::PE_Panel,   Style::PE_ScrollBarSlider};

} // namespace

INSTANTIATE_TEST_SUITE_P(Styles, PixelsTest,
                         testing::Values(StPlace{"Fusion", 1}, StPlace{"Fusion", 2},
                                         StPlace{"Fusion", 3}, StPlace{"Windows", 1},
                                         StPlace{"Windows", 2}, StPlace{"Windows", 3}),
                         [](const testing::TestParamInfo<StPlace>& row) {
                             return row.param.styleName + std::to_string(row.param.density);
                         });

TEST_P(PixelsTest, OfEveryElementAreThoseOfAFreshDrawing) {
    const unsigned states[] = {Style::Style_Default,
                               Style::Style_Enabled,
                               Style::Style_Down,
                               Style::Style_Enabled | Style::Style_Down,
                               Style::Style_Enabled | Style::Style_Sunken,
                               Style::Style_Enabled | Style::Style_Raised};
    for (const Style::PrimitiveElement element : c_elements) {
        for (const unsigned state : states) {
            for (const unsigned direction : {Style::Style_Default, Style::Style_Horizontal}) {
                m_eElement = element;
                m_nFlags = state | direction;
                for (const QSize& size :
                     {QSize(16, 16), QSize(57, 14), QSize(14, 33), QSize(2, 2)}) {
                    m_rect.setSize(size);
                    compareEverywhere();
                    ASSERT_FALSE(HasFailure());
                }
            }
        }
    }
}

TEST_P(PixelsTest, OfAFrameRoundTheWholeAreThoseOfAFreshDrawing) {
    const unsigned looks[] = {Style::Style_Default, Style::Style_Enabled | Style::Style_Sunken,
                              Style::Style_Sunken | Style::Style_Horizontal};
    for (const unsigned flags : looks) {
        m_nFlags = flags;
        for (const QSize& size : {QSize(120, 16), QSize(14, 90), QSize(3, 3)}) {
            m_rect = QRect(QPoint(), size);
            compareOn(picture(size, GetParam().density));
            compareOn(noise(size, GetParam().density));
        }
    }
}

TEST_P(PixelsTest, FollowAPaletteAndItsDisabledColours) {
    m_eElement = Style::PE_ButtonBevel;
    m_nFlags = Style::Style_Enabled;
    m_rect = QRect(4, 4, 16, 16);
    const QImage before = drawn(picture(QSize(40, 40)), false);

    m_widget.setPalette(QPalette(QColor(180, 90, 60)));

    EXPECT_NE(drawn(picture(QSize(40, 40)), false), before);
    compareOn(picture(QSize(40, 40)));
    m_widget.setEnabled(false);
    compareOn(picture(QSize(40, 40)));
}
