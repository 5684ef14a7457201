#include <CRangeSlider.h>

#include "RangeSliderModel.h"
#include "TalkingRangeSlider.h"
#include "Wording.h"

#include <gtest/gtest.h>
#include <random>

using support::Lines;

namespace {

/// One random operation, done to both; tells what it was.
class CRandomOperations {
public:
    CRandomOperations(unsigned seed, StShownSlider* shown, CRangeSliderModel* model)
        : m_random(seed), m_shown(*shown), m_slider(shown->m_slider), m_model(*model) {}

    std::string step() {
        const int kind = number(0, 15);
        if (kind < 8)
            return setter(kind);
        return kind < 14 ? mouse(kind) : other(kind);
    }

private:
    int number(int least, int greatest) {
        return std::uniform_int_distribution<int>(least, greatest)(m_random);
    }
    // Mostly near the range, and often exactly at one of its numbers.
    int value() {
        const int known[] = {m_model.m_nLower, m_model.m_nUpper, m_model.m_nMin, m_model.m_nMax};
        return number(0, 2) == 0 ? known[number(0, 3)] + number(-1, 1) : number(-60, 160);
    }

    std::string setter(int kind) {
        const int a = value();
        const int b = value();
        switch (kind) {
        case 0:
            m_slider.SetLower(a);
            m_model.SetLower(a);
            return call("SetLower", a);
        case 1:
            m_slider.SetUpper(a);
            m_model.SetUpper(a);
            return call("SetUpper", a);
        case 2:
        case 3:
            m_slider.SetRange(a, b);
            m_model.SetRange(a, b);
            return call("SetRange", a, b);
        case 4:
            return move();
        case 5:
            return bound(a, b);
        default:
            return storedBound(a);
        }
    }

    std::string move() {
        const int distance = number(-20, 20);
        m_slider.Move(distance);
        m_model.Move(distance);
        return call("Move", distance);
    }

    std::string bound(int a, int b) {
        const bool usual = number(0, 3) != 0;
        const int min = usual ? number(-50, 50) : a;
        const int max = usual ? min + number(1, 150) : b;
        m_slider.SetBound(min, max);
        m_model.SetBound(min, max);
        return call("SetBound", min, max);
    }

    std::string storedBound(int a) {
        if (number(0, 1) == 0) {
            m_slider.SetMinValue(a);
            m_model.SetMinValue(a);
            return call("SetMinValue", a);
        }
        m_slider.SetMaxValue(a);
        m_model.SetMaxValue(a);
        return call("SetMaxValue", a);
    }

    std::string mouse(int kind) {
        const int along = number(-10, 142);
        if (kind < 10) {
            const int across = number(-1, 16);
            support::mousePress(&m_slider, m_shown.at(along, across));
            m_model.Press(along, across);
            return call("press", along, across);
        }
        if (kind < 13) {
            m_shown.move(along);
            m_model.Drag(along);
            return call("move", along);
        }
        m_shown.release(along);
        m_model.Release(along);
        return call("release", along);
    }

    std::string other(int kind) {
        if (kind == 14) {
            m_slider.hideEvent(nullptr);
            m_model.Hide();
            return "hideEvent";
        }
        const bool enable = number(0, 1) == 0;
        m_slider.EnableNullRange(enable);
        m_model.EnableNullRange(enable);
        return call("EnableNullRange", enable ? 1 : 0);
    }

    std::mt19937 m_random;
    StShownSlider& m_shown;
    CTalkingRangeSlider& m_slider;
    CRangeSliderModel& m_model;
};

class CRangeSliderRandomTest : public testing::TestWithParam<Qt::Orientation> {};

} // namespace

INSTANTIATE_TEST_SUITE_P(Both, CRangeSliderRandomTest,
                         testing::Values(Qt::Horizontal, Qt::Vertical), nameOfOrientation);

TEST_P(CRangeSliderRandomTest, AnySequenceOfOperationsGoesAsTheModelGoes) {
    const unsigned seed = GetParam() == Qt::Vertical ? 4711 : 815;
    StShownSlider shown(GetParam(), {20, 80, 0, 100});
    CTalkingRangeSlider& slider = shown.m_slider;
    slider.setUpdatesEnabled(false); // the pictures have tests of their own
    shown.lines();
    CRangeSliderModel model(20, 80, 0, 100, 132);
    Lines expected;
    model.TellTo(&expected, false);
    CRandomOperations operations(seed, &shown, &model);

    for (int step = 0; step < 50000; ++step) { // 100,000 with both orientations
        const std::string operation = operations.step();
        ASSERT_EQ(slider.range(), model.State())
            << "seed " << seed << ", step " << step << ": " << operation;
        ASSERT_EQ(slider.NullRangeEnabled(), model.m_bNullRange);
        ASSERT_EQ(shown.lines(), expected)
            << "seed " << seed << ", step " << step << ": " << operation;
        expected.clear();
    }
}
