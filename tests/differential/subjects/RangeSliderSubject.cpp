#include "Subjects.h"

#include "../CopyingSubject.h"

#include <CRangeSlider.h>

namespace differential {

namespace {

/// Tells its hooks.
class TalkingSlider : public TEVU::CRangeSlider {
public:
    using CRangeSlider::CRangeSlider;
    using CRangeSlider::Length;
    using CRangeSlider::RenderPrimitives;

    std::function<void(const std::string&)> m_tell = [](const std::string&) {};

protected:
    void ValueChange() override { m_tell("ValueChange " + shown(Lower()) + ".." + shown(Upper())); }
    void RangeChange() override { m_tell("RangeChange " + shown(Min()) + ".." + shown(Max())); }
};

class RangeSliderSubject : public CopyingSubject<TalkingSlider> {
public:
    RangeSliderSubject(Stage& stage, const Taste& taste) : CopyingSubject(stage, taste) {
        beginning({Taste::flag(), m_taste.integer(0, 40), m_taste.integer(30, 100),
                   m_taste.integer(-10, 10), m_taste.integer(50, 300)});
        addWidgetActions();
        addMouseActions();
        addWheelActions();
        addSetters();
        addGrabs();
        addCopyActions();
    }

protected:
    void make(const Operation& beginning) override;
    std::string state() override;
    std::string brokenPromise() override;
    std::size_t mostLines(const Operation&) const override { return 12; }

private:
    void addSetters();
    void addGrabs();
    bool isVertical() const { return first() && first()->width() < first()->height(); }
};

void RangeSliderSubject::make(const Operation& beginning) {
    const bool vertical = beginning.flag(0);
    auto* const slider = new TalkingSlider(
        vertical ? Qt::Vertical : Qt::Horizontal, beginning.integer(1), beginning.integer(2),
        beginning.integer(3), beginning.integer(4), m_stage.place(), "slider");
    slider->setGeometry(10, 10, vertical ? 16 : 132, vertical ? 132 : 16);
    adopt(slider, "slider");
    target(slider, "slider");
    slider->show();
    m_stage.addNeighbourBehind();
}

void RangeSliderSubject::addSetters() {
    using Slider = TalkingSlider;
    const Source any = m_taste.integer(-20, 120);
    const auto one = [&](const std::string& name, int weight,
                         void (TEVU::CRangeSlider::*set)(int)) {
        onOne(name, weight, {any},
              [set](Slider& s, const Operation& o) { (s.*set)(o.integer(0)); });
    };
    one("SetLower", 4, &Slider::SetLower);
    one("SetUpper", 4, &Slider::SetUpper);
    one("Move", 4, &Slider::Move);
    one("SetMinValue", 1, &Slider::SetMinValue);
    one("SetMaxValue", 1, &Slider::SetMaxValue);
    onOne("SetRange", 4, {any, any},
          [](Slider& s, const Operation& o) { s.SetRange(o.integer(0), o.integer(1)); });
    onOne("SetBound", 2, {m_taste.integer(-30, 60), m_taste.integer(40, 150)},
          [](Slider& s, const Operation& o) { s.SetBound(o.integer(0), o.integer(1)); });
    onOne("EnableNullRange", 2, {Taste::flag()},
          [](Slider& s, const Operation& o) { s.EnableNullRange(o.flag(0)); });
    onOne("RenderPrimitives", 1, {}, [](Slider& s, const Operation&) { s.RenderPrimitives(); });
}

// Most positions of the mouse hit nothing that can be grabbed: these go along the slider in pixels.
void RangeSliderSubject::addGrabs() {
    const auto along = [this](int pixel) {
        return isVertical() ? QPoint(8, pixel) : QPoint(pixel, 8);
    };
    const Source pixel = m_taste.integer(-20, 160);
    const auto mouse = [=](auto send) {
        return [=](const Operation& operation) {
            if (first())
                send(first(), along(operation.integer(0)));
        };
    };
    action("grab", 6, {pixel}, mouse([](QWidget* w, QPoint at) { support::mousePress(w, at); }));
    action("drag", 12, {pixel}, mouse([](QWidget* w, QPoint at) { support::mouseMove(w, at); }));
    action("drop", 5, {pixel}, mouse([](QWidget* w, QPoint at) { support::mouseRelease(w, at); }));
}

std::string stateOf(const TalkingSlider& slider) {
    return shown(slider.Lower()) + ".." + shown(slider.Upper()) + " in " + shown(slider.Min()) +
           ".." + shown(slider.Max()) + (slider.NullRangeEnabled() ? "" : ", no null range") +
           ", length " + shown(slider.Length());
}

std::string RangeSliderSubject::state() {
    return widgetState() + statesOfAll(stateOf);
}

std::string RangeSliderSubject::brokenPromise() {
    const TalkingSlider* const slider = first();
    if (!slider)
        return "";
    const int thickness = isVertical() ? slider->width() : slider->height();
    return thickness == 16 ? "" : "the thickness is " + shown(thickness);
}

} // namespace

std::unique_ptr<Subject> rangeSlider(Stage& stage, const Taste& taste) {
    return std::make_unique<RangeSliderSubject>(stage, taste);
}

} // namespace differential
