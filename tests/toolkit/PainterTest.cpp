#include <qt3/Painter.h>

#include "Events.h"

#include <qt3/Widget.h>
#include <qt3/WidgetFunctions.h>

#include <gtest/gtest.h>

#include <qwidget.h>

#include <functional>
#include <string>

namespace {

const int c_size = 8;

/// Shows a picture that \a draw has painted on white: '#' for the black pen, 'o' for the red brush.
class CCanvas : public QWidget {
public:
    explicit CCanvas(const std::function<void(qt3::Painter*)>& draw) {
        resize(c_size, c_size);
        qt3::resize(&m_hPicture, this, c_size, c_size);
        m_hPicture.fill(Qt::white);
        qt3::Painter painter(&m_hPicture);
        painter.setPen(Qt::black);
        painter.setBrush(QColor(255, 0, 0));
        draw(&painter);
    }

    std::string rows() {
        const QImage image = support::grab(this);
        std::string text;
        for (int y = 0; y < c_size; ++y) {
            for (int x = 0; x < c_size; ++x)
                text += letter(support::pixel(image, x, y));
            text += '\n';
        }
        return text;
    }

protected:
    void paintEvent(QPaintEvent*) override { qt3::bitBlt(this, m_hPicture); }

private:
    static char letter(unsigned color) {
        if (color == 0x000000)
            return '#';
        return color == 0xff0000 ? 'o' : '.';
    }

    qt3::Pixmap m_hPicture;
};

std::string drawn(const std::function<void(qt3::Painter*)>& draw) {
    return CCanvas(draw).rows();
}

/// As large as its picture.
class CShowing : public qt3::Widget {
public:
    explicit CShowing(const qt3::Pixmap& shown) : m_hShown(shown) {
        resize(shown.width(), shown.height());
    }

protected:
    void paintEvent(QPaintEvent*) override { qt3::bitBlt(this, m_hShown); }

private:
    qt3::Pixmap m_hShown;
};

const char* const c_nothing = "........\n........\n........\n........\n"
                              "........\n........\n........\n........\n";

} // namespace

TEST(PainterTest, OutlineAndFillLieWithinTheRectangle) {
    EXPECT_EQ(drawn([](qt3::Painter* painter) { painter->drawRect(1, 2, 5, 4); }),
              "........\n........\n.#####..\n.#ooo#..\n.#ooo#..\n.#####..\n........\n........\n");
}

TEST(PainterTest, WholeAreaHasItsRightAndBottomEdge) {
    EXPECT_EQ(drawn([](qt3::Painter* painter) { painter->drawRect(0, 0, c_size, c_size); }),
              "########\n#oooooo#\n#oooooo#\n#oooooo#\n#oooooo#\n#oooooo#\n#oooooo#\n########\n");
}

TEST(PainterTest, RectangleObjectIsTheSame) {
    EXPECT_EQ(drawn([](qt3::Painter* painter) { painter->drawRect(QRect(1, 2, 5, 4)); }),
              drawn([](qt3::Painter* painter) { painter->drawRect(1, 2, 5, 4); }));
}

TEST(PainterTest, WithoutPenTheFillCoversTheRectangle) {
    EXPECT_EQ(drawn([](qt3::Painter* painter) {
                  painter->setPen(Qt::NoPen);
                  painter->drawRect(1, 2, 5, 4);
              }),
              "........\n........\n.ooooo..\n.ooooo..\n.ooooo..\n.ooooo..\n........\n........\n");
}

TEST(PainterTest, EmptyAndSinglePixelRectanglesDrawNothing) {
    EXPECT_EQ(drawn([](qt3::Painter* painter) {
                  painter->drawRect(1, 1, 0, 4);
                  painter->drawRect(1, 1, 4, 0);
                  painter->drawRect(1, 1, 1, 1);
              }),
              c_nothing);
}

TEST(PainterTest, LineHasBothEnds) {
    EXPECT_EQ(drawn([](qt3::Painter* painter) { painter->drawLine(2, 0, 5, 0); }),
              "..####..\n........\n........\n........\n........\n........\n........\n........\n");
}

TEST(PixmapTest, PaintingGoesOnWhereItStopped) {
    const QWidget widget;
    qt3::Pixmap first;
    qt3::Pixmap second;
    qt3::resize(&first, &widget, 4, 1);
    qt3::resize(&second, &widget, 4, 1);
    const auto paint = [](qt3::Pixmap* picture, int x, const QColor& color) {
        qt3::Painter painter(picture);
        painter.fillRect(x, 0, 1, 1, QBrush(color));
    };
    for (int x = 0; x < 4; ++x) { // by turns
        paint(&first, x, QColor(10 * x, 0, 0));
        paint(&second, x, QColor(0, 0, 10 * x));
    }
    {
        qt3::Painter outer(&first); // both at a time
        qt3::Painter inner(&second);
        outer.fillRect(3, 0, 1, 1, QBrush(QColor(1, 2, 3)));
        inner.fillRect(3, 0, 1, 1, QBrush(QColor(4, 5, 6)));
    }

    CShowing one(first);
    CShowing other(second);
    EXPECT_EQ(support::pixel(&one, 2, 0), 0x140000u);
    EXPECT_EQ(support::pixel(&other, 2, 0), 0x000014u);
    EXPECT_EQ(support::pixel(&one, 3, 0), 0x010203u);
    EXPECT_EQ(support::pixel(&other, 3, 0), 0x040506u);
}

TEST(PixmapTest, PictureThatTakesThePlaceOfAnotherIsPaintedOnAnew) {
    const QWidget widget;
    for (int i = 0; i < 20; ++i) {
        qt3::Pixmap picture;
        qt3::resize(&picture, &widget, 4 + i % 3, 4);
        {
            qt3::Painter painter(&picture);
            painter.fillRect(0, 0, 4 + i % 3, 4, QBrush(QColor(i, 0, 0)));
        }
        CShowing showing(picture);
        EXPECT_EQ(support::pixel(&showing, 3, 3), static_cast<unsigned>(i) << 16);
    }
}

TEST(PixmapTest, WhatItDoesNotCoverOfAnOpaqueWidgetIsErased) {
    const QWidget widget;
    qt3::Pixmap picture;
    qt3::resize(&picture, &widget, 2, 2);
    picture.fill(QColor(255, 0, 0));
    CShowing showing(picture);
    showing.resize(4, 4);
    showing.setPaletteBackgroundColor(QColor(0, 0, 255));
    qt3::setOpaque(&showing);

    EXPECT_EQ(support::pixel(&showing, 1, 1), 0xff0000u);
    EXPECT_EQ(support::pixel(&showing, 3, 1), 0x0000ffu);
    EXPECT_EQ(support::pixel(&showing, 1, 3), 0x0000ffu);
}

TEST(PixmapTest, PictureWithoutAreaIsNull) {
    const QWidget widget;
    qt3::Pixmap picture;
    qt3::resize(&picture, &widget, 4, 3);
    EXPECT_FALSE(picture.isNull());
    qt3::resize(&picture, &widget, 0, 3);
    EXPECT_TRUE(picture.isNull());
    qt3::resize(&picture, &widget, 4, -1);
    EXPECT_TRUE(picture.isNull());
}

TEST(PixmapTest, CopyKeepsItsPixels) {
    const QWidget widget;
    qt3::Pixmap picture;
    qt3::resize(&picture, &widget, 2, 2);
    picture.fill(QColor(0, 0, 255));
    const qt3::Pixmap copy(picture);
    picture.fill(QColor(255, 0, 0));

    CShowing showing(copy);
    EXPECT_EQ(support::pixel(&showing, 1, 1), 0x0000ffu);
}
