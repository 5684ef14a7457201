#include "SlidersPage.h"

#include "Events.h"
#include "SignalLog.h"

#include <gtest/gtest.h>
#include <qt3/CheckBox.h>
#include <qt3/SpinBox.h>
#include <qt3/Text.h>
#include <string>
#include <vector>

using TEVU::CRangeSlider;
using TEVU::CRangeSliderSpinboxed;
using TEVU::CSpinboxSlider;

namespace {

/// The page in a window, used as a user does.
class SlidersPageTest : public testing::Test {
protected:
    SlidersPageTest() { support::show(&m_window); }

    template <class Slider>
    std::vector<Slider*> all() {
        std::vector<Slider*> sliders;
        for (QObject* const object : support::descendants(&m_page)) {
            if (auto* const slider = dynamic_cast<Slider*>(object))
                sliders.push_back(slider);
        }
        EXPECT_FALSE(sliders.empty());
        return sliders;
    }

    void enter(const char* name, const char* number) {
        auto* const field = support::child<qt3::SpinBox>(&m_page, name);
        support::giveFocus(field);
        field->selectAll();
        support::typeText(field, number);
        support::typeText(field, "\n");
    }

    void click(const char* text) {
        for (QObject* const object : support::descendants(&m_page)) {
            auto* const box = dynamic_cast<qt3::CheckBox*>(object);
            if (box && qt3::ascii(box->text()) == text)
                return support::mouseClick(box, QPoint(8, box->height() / 2));
        }
        ADD_FAILURE() << "no box " << text;
    }

    QWidget m_window;
    SignalLog m_log{&m_window, "log"};
    SlidersPage m_page{&m_window, m_log};
};

} // namespace

TEST_F(SlidersPageTest, BoundsAreThoseOfAllRangeSliders) {
    enter("minimum", "50");
    enter("maximum", "150");
    for (const auto* const slider : all<CRangeSliderSpinboxed>()) {
        EXPECT_EQ(slider->GetMin(), 50);
        EXPECT_EQ(slider->GetMax(), 150);
    }
    const auto* const slider = support::child<CRangeSlider>(&m_page, "rangeSlider");
    EXPECT_EQ(slider->Min(), 50);
    EXPECT_EQ(slider->Max(), 150);
}

TEST_F(SlidersPageTest, BoundsAndStepAreThoseOfAllSlidersWithASpinBox) {
    enter("sliderMinimum", "-20");
    enter("sliderMaximum", "60");
    enter("sliderStep", "4");
    for (const auto* const slider : all<CSpinboxSlider>()) {
        EXPECT_EQ(slider->GetMinValue(), -20);
        EXPECT_EQ(slider->GetMaxValue(), 60);
        EXPECT_EQ(slider->GetStep(), 4);
    }
}

TEST_F(SlidersPageTest, NullRangeIsThatOfAllRangeSliders) {
    click("Lower may equal upper");
    for (const auto* const slider : all<CRangeSlider>())
        EXPECT_FALSE(slider->NullRangeEnabled());
    click("Lower may equal upper");
    for (const auto* const slider : all<CRangeSlider>())
        EXPECT_TRUE(slider->NullRangeEnabled());
}

TEST_F(SlidersPageTest, RangeSlidersCanBeDisabled) {
    click("Enabled (range sliders show it when they change)");
    for (const auto* const slider : all<CRangeSlider>())
        EXPECT_FALSE(slider->isEnabled());
    for (const auto* const slider : all<CSpinboxSlider>())
        EXPECT_TRUE(slider->isEnabled());
    click("Enabled (range sliders show it when they change)");
    for (const auto* const slider : all<CRangeSlider>())
        EXPECT_TRUE(slider->isEnabled());
}

TEST_F(SlidersPageTest, SlidersWithASpinBoxCanBeDisabled) {
    click("Enabled");
    for (const auto* const slider : all<CSpinboxSlider>())
        EXPECT_FALSE(slider->isEnabled());
    for (const auto* const slider : all<CRangeSlider>())
        EXPECT_TRUE(slider->isEnabled());
}
