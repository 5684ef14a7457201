#include "Benchmarks.h"
#include "Stage.h"

#include <CRangeSlider.h>
#include <CRangeSliderSpinboxed.h>
#include <CSpinboxSlider.h>
#include <memory>
#include <qt3/Layout.h>

/// The parts are those of the composite, of the same classes and with the same sizes, in the same layout;
/// but they know nothing of each other: every one is set by itself, and one slot listens to the part that
/// the change begins with.
namespace bench {

namespace {

using TEVU::CRangeSlider;
using TEVU::CRangeSliderSpinboxed;
using TEVU::CSpinboxSlider;

const int c_nMax = 100;

/// The parts of a range slider with spin boxes.
class RangeParts : public qt3::Widget {
public:
    explicit RangeParts(QWidget* parent) : qt3::Widget(parent, "composite") {
        m_pSpinBox1 = new qt3::SpinBox(0, c_nMax, 1, this, "spinbox1 ");
        m_pSpinBox1->setFixedSize(m_pSpinBox1->sizeHint());
        m_pSlider = new CRangeSlider(Qt::Horizontal, 0, c_nMax, 0, c_nMax, this, "rangeslider");
        m_pSpinBox2 = new qt3::SpinBox(0, c_nMax, 1, this, "spinbox2");
        m_pSpinBox2->setFixedSize(m_pSpinBox2->sizeHint());
        auto* row = new qt3::HBoxLayout(this, 0, -1);
        for (QWidget* part : {static_cast<QWidget*>(m_pSpinBox1), static_cast<QWidget*>(m_pSlider),
                              static_cast<QWidget*>(m_pSpinBox2)})
            row->addWidget(part);
        m_pSpinBox2->setValue(c_nMax);
    }

    qt3::SpinBox* m_pSpinBox1;
    CRangeSlider* m_pSlider;
    qt3::SpinBox* m_pSpinBox2;
};

/// The parts of a slider with a spin box.
class SliderParts : public qt3::Widget {
public:
    explicit SliderParts(QWidget* parent) : qt3::Widget(parent, "composite") {
        m_pSlider = new qt3::Slider(0, c_nMax, 1, 0, Qt::Horizontal, this, "slider");
        m_pSpinBox = new qt3::SpinBox(0, c_nMax, 1, this, "spinbox");
        auto* row = new qt3::HBoxLayout(this, 0, -1);
        row->addWidget(m_pSlider);
        row->addWidget(m_pSpinBox);
    }

    qt3::Slider* m_pSlider;
    qt3::SpinBox* m_pSpinBox;
};

/// A widget in a window.
template <class Tested>
struct Shown : Stage {
    template <class... Arguments>
    explicit Shown(Arguments... arguments) : m_tested(arguments..., &m_window) {
        m_tested.setGeometry(10, 10, 280, 40);
    }

    int next() { return ++m_nCount * 7 % c_nMax; }

    Tested m_tested;
    int m_nCount = 0;
};

/// \a side's function is called with one value after the other, and what it changes is painted.
template <class Side>
Operation changing(const std::shared_ptr<Side>& side, const std::function<void(int)>& change) {
    side->show();
    return [side, change] {
        change(side->next());
        paintWhatIsDue();
    };
}

struct NamedRangeSlider : CRangeSliderSpinboxed {
    explicit NamedRangeSlider(QWidget* parent) : CRangeSliderSpinboxed(parent, "composite") {}
};

struct NamedSlider : CSpinboxSlider {
    explicit NamedSlider(QWidget* parent) : CSpinboxSlider(parent, "composite") {}
};

template <class Child>
Child* childOf(QWidget* parent, const char* name) {
    return parent->findChild<Child*>(name);
}

StSides rangeFromSlider() {
    const auto own = std::make_shared<Shown<NamedRangeSlider>>();
    const auto parts = std::make_shared<Shown<RangeParts>>();
    own->listenTo(&own->m_tested, &CRangeSliderSpinboxed::SignalLowerChanged);
    parts->listenTo(parts->m_tested.m_pSlider, &CRangeSlider::LowerChanged);
    const auto slider = childOf<CRangeSlider>(&own->m_tested, "rangeslider");
    RangeParts* const alone = &parts->m_tested;
    return {changing(own, [slider](int value) { slider->SetLower(value); }),
            changing(parts, [alone](int value) {
                alone->m_pSlider->SetLower(value);
                alone->m_pSpinBox1->setValue(value);
            })};
}

StSides rangeFromSpinBox() {
    const auto own = std::make_shared<Shown<NamedRangeSlider>>();
    const auto parts = std::make_shared<Shown<RangeParts>>();
    own->listenTo(&own->m_tested, &CRangeSliderSpinboxed::SignalLowerChanged);
    parts->listenTo(parts->m_tested.m_pSpinBox1, &QSpinBox::valueChanged);
    const auto spinBox = childOf<QSpinBox>(&own->m_tested, "spinbox1 ");
    RangeParts* const alone = &parts->m_tested;
    return {changing(own, [spinBox](int value) { spinBox->setValue(value); }),
            changing(parts, [alone](int value) {
                alone->m_pSpinBox1->setValue(value);
                alone->m_pSlider->SetLower(value);
            })};
}

StSides sliderFromSlider() {
    const auto own = std::make_shared<Shown<NamedSlider>>();
    const auto parts = std::make_shared<Shown<SliderParts>>();
    own->listenTo(&own->m_tested, &CSpinboxSlider::SignalValueChanged);
    parts->listenTo(parts->m_tested.m_pSlider, &QSlider::valueChanged);
    const auto slider = childOf<QSlider>(&own->m_tested, "slider");
    SliderParts* const alone = &parts->m_tested;
    return {changing(own, [slider](int value) { slider->setValue(value); }),
            changing(parts, [alone](int value) {
                alone->m_pSlider->setValue(value);
                alone->m_pSpinBox->setValue(value);
            })};
}

StSides sliderFromSpinBox() {
    const auto own = std::make_shared<Shown<NamedSlider>>();
    const auto parts = std::make_shared<Shown<SliderParts>>();
    own->listenTo(&own->m_tested, &CSpinboxSlider::SignalValueChanged);
    parts->listenTo(parts->m_tested.m_pSpinBox, &QSpinBox::valueChanged);
    const auto spinBox = childOf<QSpinBox>(&own->m_tested, "spinbox");
    SliderParts* const alone = &parts->m_tested;
    return {changing(own, [spinBox](int value) { spinBox->setValue(value); }),
            changing(parts, [alone](int value) {
                alone->m_pSpinBox->setValue(value);
                alone->m_pSlider->setValue(value);
            })};
}

template <class Composite, class Parts>
StSides making() {
    const auto parent = std::make_shared<QWidget>();
    return {[parent] { const Composite composite(parent.get()); },
            [parent] { const Parts parts(parent.get()); }};
}

void add(const char* name, int batch, StSides (*make)()) {
    compareTimeInStyles({name, 1.10, batch, make}, 1.10);
}

} // namespace

void addComposites() {
    add("CRangeSliderSpinboxed, by its slider : its parts", 20, rangeFromSlider);
    add("CRangeSliderSpinboxed, by a spin box : its parts", 20, rangeFromSpinBox);
    add("CRangeSliderSpinboxed, make and destroy : its parts", 10,
        making<NamedRangeSlider, RangeParts>);
    add("CSpinboxSlider, by its slider : its parts", 20, sliderFromSlider);
    add("CSpinboxSlider, by its spin box : its parts", 20, sliderFromSpinBox);
    add("CSpinboxSlider, make and destroy : its parts", 10, making<NamedSlider, SliderParts>);
}

} // namespace bench
