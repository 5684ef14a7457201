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

    void giveNullEvents() {
        mousePressEvent(nullptr);
        mouseMoveEvent(nullptr);
        mouseReleaseEvent(nullptr);
        resizeEvent(nullptr);
        hideEvent(nullptr);
    }

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
        addRubbishActions();
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
    /// Sends a mouse event; a range inside its bound must not be dragged out of it.
    void drag(const std::function<void(QWidget*)>& send);
    /// Whether the range is inside a bound that was set in one go, and that allows for any range.
    bool isInside() const;

    std::pair<int, int> m_bound; ///< As it was set in one go; its width is the greatest of a range.
    bool m_bVertical = false;
};

void RangeSliderSubject::make(const Operation& beginning) {
    m_bVertical = beginning.flag(0);
    auto* const slider = new TalkingSlider(
        m_bVertical ? Qt::Vertical : Qt::Horizontal, beginning.integer(1), beginning.integer(2),
        beginning.integer(3), beginning.integer(4), m_stage.place(), "slider");
    slider->setGeometry(10, 10, m_bVertical ? 16 : 132, m_bVertical ? 132 : 16);
    adopt(slider, "slider");
    target(slider, "slider");
    m_bound = {beginning.integer(3), beginning.integer(4)};
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
    const auto end = [&](const std::string& name, void (TEVU::CRangeSlider::*set)(int)) {
        onOne(name, 1, {any}, [this, set](Slider& s, const Operation& o) {
            (s.*set)(o.integer(0));
            m_bound = {};
        });
    };
    end("SetMinValue", &Slider::SetMinValue);
    end("SetMaxValue", &Slider::SetMaxValue);
    onOne("SetRange", 4, {any, any},
          [](Slider& s, const Operation& o) { s.SetRange(o.integer(0), o.integer(1)); });
    onOne("SetBound", 2, {m_taste.integer(-30, 60), m_taste.integer(40, 150)},
          [this](Slider& s, const Operation& o) {
              s.SetBound(o.integer(0), o.integer(1));
              if (&s == first())
                  m_bound = {o.integer(0), o.integer(1)};
          });
    onOne("EnableNullRange", 2, {Taste::flag()},
          [](Slider& s, const Operation& o) { s.EnableNullRange(o.flag(0)); });
    if (m_taste.isRubbish())
        onOne("nullEvents", 1, {}, [](Slider& s, const Operation&) { s.giveNullEvents(); });
    onOne("RenderPrimitives", 1, {}, [](Slider& s, const Operation&) { s.RenderPrimitives(); });
}

// Most positions of the mouse hit nothing that can be grabbed: these go along the slider in pixels.
void RangeSliderSubject::addGrabs() {
    const auto along = [this](int pixel) {
        return m_bVertical ? QPoint(8, pixel) : QPoint(pixel, 8);
    };
    const Source pixel = m_taste.integer(-20, 160);
    const auto mouse = [=](auto send) {
        return [=](const Operation& operation) {
            drag([&](QWidget* slider) { send(slider, along(operation.integer(0))); });
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
    if (!first())
        return "";
    const int thickness = m_bVertical ? first()->width() : first()->height();
    return thickness == 16 ? "" : "the thickness is " + shown(thickness);
}

bool RangeSliderSubject::isInside() const {
    const TalkingSlider& slider = *first();
    return m_bound == std::pair(slider.Min(), slider.Max()) && m_bound.first < m_bound.second &&
           slider.NullRangeEnabled() && m_bound.first <= slider.Lower() &&
           slider.Lower() <= slider.Upper() && slider.Upper() <= m_bound.second;
}

void RangeSliderSubject::drag(const std::function<void(QWidget*)>& send) {
    if (!first())
        return;
    const bool wasInside = isInside();
    send(first());
    if (wasInside && first() && !isInside())
        tell(std::string(c_broken) + "the range was dragged out of its bound");
}

} // namespace

std::unique_ptr<Subject> rangeSlider(Stage& stage, const Taste& taste) {
    return std::make_unique<RangeSliderSubject>(stage, taste);
}

} // namespace differential
