#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <qt3/Painter.h>

// What is painted covers the same area on a dense screen, only sharper.

namespace {

const int c_nSize = 9;

struct StDrawing {
    const char* sName;
    std::function<void(qt3::Painter*)> draw;
};

void PrintTo(const StDrawing& drawing, std::ostream* out) {
    *out << drawing.sName;
}

/// The drawing with a black pen and a red brush on white.
qt3::Pixmap drawn(const StDrawing& drawing, int density) {
    qt3::Pixmap picture(QSize(c_nSize, c_nSize) * density, QImage::Format_RGB32);
    picture.setDevicePixelRatio(density);
    picture.fill(Qt::white);
    qt3::Painter painter(&picture);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::red);
    drawing.draw(&painter);
    return picture;
}

class DensityTest : public testing::TestWithParam<StDrawing> {};

} // namespace

TEST_P(DensityTest, EveryPixelIsOneOfSeveralOnADenseScreen) {
    const qt3::Pixmap plain = drawn(GetParam(), 1);
    for (const int density : {2, 3}) {
        const qt3::Pixmap dense = drawn(GetParam(), density);
        for (int y = 0; y < dense.height(); ++y) {
            for (int x = 0; x < dense.width(); ++x) {
                ASSERT_EQ(dense.pixel(x, y), plain.pixel(x / density, y / density))
                    << "at " << x << ", " << y << " of " << density << " times as many";
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, DensityTest,
    testing::Values(
        StDrawing{"Rectangle", [](auto* painter) { painter->drawRect(1, 2, 5, 4); }},
        StDrawing{"WholeArea", [](auto* painter) { painter->drawRect(0, 0, c_nSize, c_nSize); }},
        StDrawing{"WithoutAnInside", [](auto* painter) { painter->drawRect(1, 2, 2, 2); }},
        StDrawing{"RowOfPixels", [](auto* painter) { painter->drawRect(1, 2, 5, 1); }},
        StDrawing{"ColumnOfPixels", [](auto* painter) { painter->drawRect(1, 2, 1, 5); }},
        StDrawing{"WithoutABrush",
                  [](auto* painter) {
                      painter->setBrush(Qt::NoBrush);
                      painter->drawRect(1, 2, 5, 4);
                  }},
        StDrawing{"WithoutAPen",
                  [](auto* painter) {
                      painter->setPen(Qt::NoPen);
                      painter->drawRect(1, 2, 5, 4);
                  }}),
    [](const auto& row) { return std::string(row.param.sName); });
