#include "Subjects.h"

#include "../WidgetSubject.h"

#include <CSpinboxSlider.h>

namespace differential {

namespace {

class SpinboxSliderSubject : public WidgetSubject {
public:
    SpinboxSliderSubject(Stage& stage, const Taste& taste) : WidgetSubject(stage, taste) {
        beginning({Taste::flag(), Taste::flag(), Taste::flag(), m_taste.integer(-10, 20),
                   m_taste.integer(30, 300), m_taste.integer(1, 20), m_taste.integer(-20, 320),
                   Taste::flag(80)});
        addWidgetActions();
        addRubbishActions();
        addNotchActions();
        addKeyActions({"Up", "Up", "Down", "Down", "Left", "Right", "Home", "End", "Tab", "Backtab",
                       "Return", "Enter", "Escape"});
        addTypingActions();
        addSetters();
        addDragging();
    }

protected:
    void make(const Operation& beginning) override;
    void unmake() override {
        forgetTargets();
        m_pComposite = nullptr;
    }
    QWidget* widget() override { return m_pComposite; }
    std::string state() override;
    bool takesKey(const std::string& name) override;
    QSize leastSize() override { return m_bVertical ? QSize(80, 120) : QSize(220, 24); }
    QSize greatestSize() override { return m_bVertical ? QSize(120, 250) : QSize(350, 40); }

private:
    using Class = TEVU::CSpinboxSlider;

    void addSetters();
    void addDragging();
    qt3::SpinBox* spinBox() const { return support::child<qt3::SpinBox>(m_pComposite, "spinbox"); }
    qt3::Slider* slider() const { return support::child<qt3::Slider>(m_pComposite, "slider"); }
    QPoint pointOnSlider(int thousandths) const;

    qt3::Pointer<Class> m_pComposite;
    bool m_bVertical = false;
};

void SpinboxSliderSubject::make(const Operation& beginning) {
    m_bVertical = beginning.flag(0);
    const Qt::Orientation orientation = m_bVertical ? Qt::Vertical : Qt::Horizontal;
    QWidget* const place = m_stage.place();
    if (beginning.flag(7))
        m_pComposite = new Class(beginning.integer(3), beginning.integer(4), beginning.integer(5),
                                 beginning.integer(6), orientation, beginning.flag(1),
                                 beginning.flag(2), place, "composite");
    else
        m_pComposite =
            new Class(orientation, beginning.flag(1), beginning.flag(2), place, "composite");
    spinBox()->setFixedSize(70, 24); // not what the style wants
    m_pComposite->setGeometry(10, 10, m_bVertical ? 80 : 300, m_bVertical ? 200 : 24);
    target(spinBox(), "spin", false);
    m_stage.name(slider(), "slider");
    for (const char* signal :
         {"SignalValueChanged(int)", "SignalSliderPressed()", "SignalSliderReleased()"})
        m_stage.recorder().tap(m_pComposite, signal, "composite"); // not SignalSliderMoved(int)
    m_stage.recorder().tap(spinBox(), "valueChanged(int)", "spin");
    m_stage.recorder().tap(slider(), "valueChanged(int)", "slider");
    m_stage.recorder().tap(slider(), "sliderPressed()", "slider");
    m_stage.recorder().tap(slider(), "sliderReleased()", "slider");
    m_pComposite->show();
    m_stage.addNeighbourBehind();
}

// Of the slider the keys along it: what the others do is the host's. Of the spin box those that do not
// ask where the cursor stands.
bool SpinboxSliderSubject::takesKey(const std::string& name) {
    const bool onSlider = m_stage.focus() == "slider";
    if (name == "Left" || name == "Right")
        return onSlider && !m_bVertical;
    if (name == "Up" || name == "Down")
        return !onSlider || m_bVertical;
    return onSlider || (name != "Home" && name != "End");
}

void SpinboxSliderSubject::addSetters() {
    const auto one = [&](const std::string& name, int weight, const Source& source,
                         const std::function<void(Class&, int)>& set) {
        action(name, weight, {source}, [this, set](const Operation& operation) {
            if (m_pComposite)
                set(*m_pComposite, operation.integer(0));
        });
    };
    const Source any = m_taste.integer(-30, 330);
    one("SlotSetValue", 6, any, [](Class& c, int v) { c.SlotSetValue(v); });
    one("SlotSetMinValue", 2, m_taste.integer(-30, 60), [this](Class& c, int v) {
        spinBox()->value(); // commits what is typed
        c.SlotSetMinValue(v);
    });
    one("SlotSetMaxValue", 2, m_taste.integer(40, 330), [this](Class& c, int v) {
        spinBox()->value();
        c.SlotSetMaxValue(v);
    });
    one("SlotSetStep", 2, m_taste.integer(-5, 40), [](Class& c, int v) { c.SlotSetStep(v); });
    one("setSpinBox", 3, any, [this](Class&, int v) { spinBox()->setValue(v); });
    one("setSlider", 3, any, [this](Class&, int v) { slider()->setValue(v); });
    one("readSpinBox", 2, any, [this](Class&, int) { tell("reads " + shown(spinBox()->value())); });
    one("clickSpinBox", 4, Taste::flag(), [this](Class&, int up) { clickSpinBox(spinBox(), up); });
    one("stepSpinBox", 3, Taste::flag(), [this](Class&, int up) {
        if (up)
            spinBox()->stepUp();
        else
            spinBox()->stepDown();
    });
    one("destroy", 1, any, [this](Class& c, int) { m_stage.withFocusRescued([&] { delete &c; }); });
}

std::string SpinboxSliderSubject::state() {
    const Class* const composite = m_pComposite;
    const std::string state = widgetState();
    if (!composite)
        return state;
    return state + "; " + shown(composite->GetValue()) + " in " + shown(composite->GetMinValue()) +
           ".." + shown(composite->GetMaxValue()) + " by " + shown(composite->GetStep()) + "; " +
           rectText(spinBox()->geometry()) + ' ' + shown(spinBox()->minValue()) + ".." +
           shown(spinBox()->maxValue()) + " by " + shown(spinBox()->lineStep()) + ' ' +
           shown(spinBox()->text()) + "; " + rectText(slider()->geometry()) + ' ' +
           shown(slider()->value()) + " in " + shown(slider()->minValue()) + ".." +
           shown(slider()->maxValue()) + " page " + shown(slider()->pageStep());
}

/// Where the middle of the handle is at that part of the range: 11 pixels long in both styles.
QPoint SpinboxSliderSubject::pointOnSlider(int thousandths) const {
    const int length = m_bVertical ? slider()->height() : slider()->width();
    const int along = 5 + (length - 11) * thousandths / 1000;
    const int across = (m_bVertical ? slider()->width() : slider()->height()) / 2;
    return m_bVertical ? QPoint(across, along) : QPoint(along, across);
}

// Only the handle is dragged: what a click beside it does is the host's.
void SpinboxSliderSubject::addDragging() {
    const Source part = Taste::index(0, 1000);
    action("dragSlider", 6, {part, part, Taste::flag()}, [this](const Operation& operation) {
        if (!m_pComposite)
            return;
        const long long least = slider()->minValue();
        const long long range = slider()->maxValue() - least;
        if (range <= 0)
            return;
        const auto handle = static_cast<int>((slider()->value() - least) * 1000 / range);
        support::mousePress(slider(), pointOnSlider(handle));
        support::mouseMove(slider(), pointOnSlider(operation.integer(0)));
        support::mouseMove(slider(), pointOnSlider(operation.integer(1)));
        support::mouseRelease(slider(), pointOnSlider(operation.integer(1)));
    });
}

} // namespace

std::unique_ptr<Subject> spinboxSlider(Stage& stage, const Taste& taste) {
    return std::make_unique<SpinboxSliderSubject>(stage, taste);
}

} // namespace differential
