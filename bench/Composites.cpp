#include "Benchmarks.h"
#include "Stage.h"

#include <CRangeSlider.h>
#include <CRangeSliderSpinboxed.h>
#include <CSpinboxSlider.h>
#include <memory>
#include <qboxlayout.h>
#include <qslider.h>
#include <qspinbox.h>

/// The parts stand in the same layout as in the composite, with the same sizes, but know nothing of each
/// other: every one is set by itself, and one slot listens to the part that the change begins with.
namespace bench {

namespace {

using TEVU::CRangeSlider;
using TEVU::CRangeSliderSpinboxed;
using TEVU::CSpinboxSlider;

const int c_nMax = 100;

void addTo(QLayout* layout, std::initializer_list<QWidget*> widgets) {
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* widget : widgets)
        layout->addWidget(widget);
}

/// The parts of a range slider with spin boxes.
class RangeParts : public QWidget {
public:
    explicit RangeParts(QWidget* parent)
        : QWidget(parent), m_spinBox1(this),
          m_slider(Qt::Horizontal, 0, c_nMax, 0, c_nMax, this, "rangeslider"), m_spinBox2(this) {
        setObjectName("composite");
        prepare(&m_spinBox1, "spinbox1 ", 0);
        prepare(&m_spinBox2, "spinbox2", c_nMax);
        addTo(new QHBoxLayout(this), {&m_spinBox1, &m_slider, &m_spinBox2});
    }

    QSpinBox m_spinBox1;
    CRangeSlider m_slider;
    QSpinBox m_spinBox2;

private:
    static void prepare(QSpinBox* spinBox, const char* name, int value) {
        spinBox->setObjectName(name);
        spinBox->setRange(0, c_nMax);
        spinBox->setFixedSize(spinBox->sizeHint());
        spinBox->setValue(value);
    }
};

/// The parts of a slider with a spin box.
class SliderParts : public QWidget {
public:
    explicit SliderParts(QWidget* parent)
        : QWidget(parent), m_slider(Qt::Horizontal, this), m_spinBox(this) {
        setObjectName("composite");
        m_slider.setObjectName("slider");
        m_slider.setRange(0, c_nMax);
        m_spinBox.setObjectName("spinbox");
        m_spinBox.setRange(0, c_nMax);
        addTo(new QHBoxLayout(this), {&m_slider, &m_spinBox});
    }

    QSlider m_slider;
    QSpinBox m_spinBox;
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
    parts->listenTo(&parts->m_tested.m_slider, &CRangeSlider::LowerChanged);
    const auto slider = childOf<CRangeSlider>(&own->m_tested, "rangeslider");
    RangeParts* const alone = &parts->m_tested;
    return {changing(own, [slider](int value) { slider->SetLower(value); }),
            changing(parts, [alone](int value) {
                alone->m_slider.SetLower(value);
                alone->m_spinBox1.setValue(value);
            })};
}

StSides rangeFromSpinBox() {
    const auto own = std::make_shared<Shown<NamedRangeSlider>>();
    const auto parts = std::make_shared<Shown<RangeParts>>();
    own->listenTo(&own->m_tested, &CRangeSliderSpinboxed::SignalLowerChanged);
    parts->listenTo(&parts->m_tested.m_spinBox1, &QSpinBox::valueChanged);
    const auto spinBox = childOf<QSpinBox>(&own->m_tested, "spinbox1 ");
    RangeParts* const alone = &parts->m_tested;
    return {changing(own, [spinBox](int value) { spinBox->setValue(value); }),
            changing(parts, [alone](int value) {
                alone->m_spinBox1.setValue(value);
                alone->m_slider.SetLower(value);
            })};
}

StSides sliderFromSlider() {
    const auto own = std::make_shared<Shown<NamedSlider>>();
    const auto parts = std::make_shared<Shown<SliderParts>>();
    own->listenTo(&own->m_tested, &CSpinboxSlider::SignalValueChanged);
    parts->listenTo(&parts->m_tested.m_slider, &QSlider::valueChanged);
    const auto slider = childOf<QSlider>(&own->m_tested, "slider");
    SliderParts* const alone = &parts->m_tested;
    return {changing(own, [slider](int value) { slider->setValue(value); }),
            changing(parts, [alone](int value) {
                alone->m_slider.setValue(value);
                alone->m_spinBox.setValue(value);
            })};
}

StSides sliderFromSpinBox() {
    const auto own = std::make_shared<Shown<NamedSlider>>();
    const auto parts = std::make_shared<Shown<SliderParts>>();
    own->listenTo(&own->m_tested, &CSpinboxSlider::SignalValueChanged);
    parts->listenTo(&parts->m_tested.m_spinBox, &QSpinBox::valueChanged);
    const auto spinBox = childOf<QSpinBox>(&own->m_tested, "spinbox");
    SliderParts* const alone = &parts->m_tested;
    return {changing(own, [spinBox](int value) { spinBox->setValue(value); }),
            changing(parts, [alone](int value) {
                alone->m_spinBox.setValue(value);
                alone->m_slider.setValue(value);
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
