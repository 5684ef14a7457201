#include "Subjects.h"

#include "../CopyingSubject.h"

#include <CRangeSliderSpinboxed.h>
#include <limits>

namespace differential {

namespace {

class Composite : public TEVU::CRangeSliderSpinboxed {
public:
    using CRangeSliderSpinboxed::CRangeSliderSpinboxed;

    std::function<void(const std::string&)> m_tell = [](const std::string&) {};
};

class RangeSliderSpinboxedSubject : public CopyingSubject<Composite> {
public:
    RangeSliderSpinboxedSubject(Stage& stage, const Taste& taste) : CopyingSubject(stage, taste) {
        beginning({Taste::flag(), Taste::flag(), m_taste.integer(0, 40), m_taste.integer(30, 100),
                   m_taste.integer(-10, 10), m_taste.integer(50, 300), Taste::flag(75)});
        addWidgetActions();
        addRubbishActions();
        addMouseActions();
        addNotchActions();
        addKeyActions({"Up", "Up", "Down", "Down", "Tab", "Backtab", "Return", "Enter", "Escape"});
        addTypingActions();
        addSetters();
        addChildActions();
        addCopyActions();
    }

protected:
    void make(const Operation& beginning) override;
    bool isUsableAlone() const override { return false; }
    std::string state() override;
    std::string brokenPromise() override;
    QSize leastSize() override { return m_bVertical ? QSize(80, 120) : QSize(220, 24); }
    QSize greatestSize() override { return m_bVertical ? QSize(120, 250) : QSize(350, 40); }

private:
    void addSetters();
    void addChildActions();
    qt3::SpinBox* spinBox(int number) const {
        return support::child<qt3::SpinBox>(first(), number == 1 ? "spinbox1 " : "spinbox2");
    }
    TEVU::CRangeSlider* slider() const {
        return support::child<TEVU::CRangeSlider>(first(), "rangeslider");
    }

    void commitTypedTexts() const {
        for (const int number : {1, 2})
            spinBox(number)->value();
    }

    bool m_bVertical = false;
};

void RangeSliderSpinboxedSubject::make(const Operation& beginning) {
    m_bVertical = beginning.flag(0);
    const Qt::Orientation orientation = m_bVertical ? Qt::Vertical : Qt::Horizontal;
    auto* const composite =
        beginning.flag(6)
            ? new Composite(orientation, beginning.flag(1), beginning.integer(2),
                            beginning.integer(3), beginning.integer(4), beginning.integer(5),
                            m_stage.place(), "composite")
            : new Composite(orientation, beginning.flag(1), m_stage.place(), "composite");
    adopt(composite, "composite");
    for (const int number : {1, 2})
        spinBox(number)->setFixedSize(70, 24); // not what the style wants
    composite->setGeometry(10, 10, m_bVertical ? 80 : 300, m_bVertical ? 200 : 24);
    target(spinBox(1), "spin1", false);
    target(slider(), "slider");
    target(spinBox(2), "spin2", false);
    target(composite, "composite");
    m_stage.recorder().tapAll(slider(), "slider");
    m_stage.recorder().tap(spinBox(1), "valueChanged(int)", "spin1");
    m_stage.recorder().tap(spinBox(2), "valueChanged(int)", "spin2");
    composite->show();
    m_stage.addNeighbourBehind();
}

void RangeSliderSpinboxedSubject::addSetters() {
    const Source any = m_taste.integer(-20, 120);
    using Class = TEVU::CRangeSliderSpinboxed;
    const auto one = [&](const std::string& name, int weight, void (Class::*set)(int)) {
        onOne(name, weight, {any},
              [set](Composite& c, const Operation& o) { (c.*set)(o.integer(0)); });
    };
    one("SlotSetLower", 4, &Class::SlotSetLower);
    one("SlotSetUpper", 4, &Class::SlotSetUpper);
    const auto bound = [&](const std::string& name, void (Class::*set)(int)) {
        onOne(name, 2, {any}, [this, set](Composite& c, const Operation& o) {
            commitTypedTexts();
            (c.*set)(o.integer(0));
        });
    };
    bound("SlotSetMin", &Class::SlotSetMin);
    bound("SlotSetMax", &Class::SlotSetMax);
    onOne("SlotSetRange", 4, {any, any},
          [](Composite& c, const Operation& o) { c.SlotSetRange(o.integer(0), o.integer(1)); });
    onOne("SlotSetBound", 2, {m_taste.integer(-30, 60), m_taste.integer(40, 150)},
          [this](Composite& c, const Operation& o) {
              commitTypedTexts();
              c.SlotSetBound(o.integer(0), o.integer(1));
          });
    onOne("nullRange", 2, {Taste::flag()}, [](Composite& c, const Operation& o) {
        if (o.flag(0))
            c.SlotEnableNullRange();
        else
            c.SlotDisableNullRange();
    });
}

void RangeSliderSpinboxedSubject::addChildActions() {
    const Source any = m_taste.integer(-20, 120);
    action("setSpinBox", 3, {Taste::index(1, 2), any}, [this](const Operation& operation) {
        if (first())
            spinBox(operation.integer(0))->setValue(operation.integer(1));
    });
    action("readSpinBox", 2, {Taste::index(1, 2)}, [this](const Operation& operation) {
        if (first())
            tell("reads " + shown(spinBox(operation.integer(0))->value()));
    });
    action("stepSpinBox", 3, {Taste::index(1, 2), Taste::flag()},
           [this](const Operation& operation) {
               if (first() && operation.flag(1))
                   spinBox(operation.integer(0))->stepUp();
               else if (first())
                   spinBox(operation.integer(0))->stepDown();
           });
    action("clickSpinBox", 3, {Taste::index(1, 2), Taste::flag()},
           [this](const Operation& operation) {
               if (first())
                   clickSpinBox(spinBox(operation.integer(0)), operation.flag(1));
           });
    action("moveSlider", 3, {any}, [this](const Operation& operation) {
        if (first())
            slider()->Move(operation.integer(0));
    });
}

std::string stateOf(const Composite& composite) {
    return shown(composite.GetLower()) + ".." + shown(composite.GetUpper()) + " (" +
           shown(composite.GetRange()) + ") in " + shown(composite.GetMin()) + ".." +
           shown(composite.GetMax());
}

std::string RangeSliderSpinboxedSubject::state() {
    std::string state = widgetState() + statesOfAll(stateOf);
    if (!first())
        return state;
    for (const int number : {1, 2}) {
        const qt3::SpinBox* const box = spinBox(number);
        state += "; " + rectText(box->geometry()) + ' ' + shown(box->minValue()) + ".." +
                 shown(box->maxValue()) + ' ' + shown(box->text());
    }
    const TEVU::CRangeSlider* const inner = slider();
    return state + "; " + rectText(inner->geometry()) + ' ' + shown(inner->Lower()) + ".." +
           shown(inner->Upper()) + " in " + shown(inner->Min()) + ".." + shown(inner->Max());
}

std::string RangeSliderSpinboxedSubject::brokenPromise() {
    if (!first() || m_vAll.size() > 1)
        return ""; // copies set the bound of the one slider that they share
    const long long width = static_cast<long long>(first()->GetMax()) - first()->GetMin();
    const bool given = width > 0 && width <= std::numeric_limits<int>::max();
    return given && (slider()->Min() != 0 || slider()->Max() != width)
               ? "the slider is not in offsets"
               : "";
}

} // namespace

std::unique_ptr<Subject> rangeSliderSpinboxed(Stage& stage, const Taste& taste) {
    return std::make_unique<RangeSliderSpinboxedSubject>(stage, taste);
}

} // namespace differential
