#include "Benchmarks.h"
#include "Stage.h"

#include <CDoubleSpinBox.h>
#include <memory>
#include <qspinbox.h>
#include <vector>

namespace bench {

namespace {

using TEVU::CDoubleSpinBox;

const double c_dMax = 100.0;
const double c_dStep = 0.25;
const QRect c_place(10, 10, 120, 28);

using ValueChanged = void (CDoubleSpinBox::*)(double);

struct OwnSpinBox : Stage {
    OwnSpinBox() : m_spinBox(0.0, c_dMax, c_dStep, &m_window, "spinBox") {
        m_spinBox.setGeometry(c_place);
        listenTo(&m_spinBox, static_cast<ValueChanged>(&CDoubleSpinBox::valueChanged));
    }

    CDoubleSpinBox m_spinBox;
    int m_nCount = 0;
};

struct PlainSpinBox : Stage {
    PlainSpinBox() : m_spinBox(&m_window) {
        m_spinBox.setObjectName("spinBox");
        m_spinBox.setRange(0.0, c_dMax);
        m_spinBox.setSingleStep(c_dStep);
        m_spinBox.setGeometry(c_place);
        listenTo(&m_spinBox, &QDoubleSpinBox::valueChanged);
    }

    QDoubleSpinBox m_spinBox;
    int m_nCount = 0;
};

/// 399 values in turn, none twice in a row.
template <class Side>
Operation sets(const std::shared_ptr<Side>& side) {
    return [side] { side->m_spinBox.setValue(++side->m_nCount * 7 % 399 * c_dStep); };
}

template <class Side>
Operation steps(const std::shared_ptr<Side>& side) {
    side->m_spinBox.setWrapping(true);
    return [side] { side->m_spinBox.stepUp(); };
}

Operation withPainting(const Operation& operation) {
    return [operation] {
        operation();
        paintWhatIsDue();
    };
}

StSides settingHidden() {
    return {sets(std::make_shared<OwnSpinBox>()), sets(std::make_shared<PlainSpinBox>())};
}

StSides settingShown() {
    const auto own = std::make_shared<OwnSpinBox>();
    const auto beside = std::make_shared<PlainSpinBox>();
    own->show();
    beside->show();
    const StSides sides = {withPainting(sets(own)), withPainting(sets(beside))};
    requirePainting(sides.own, own->m_spinBox.findChild<QWidget*>("LineEdit_DoubleSpinbox"));
    requirePainting(sides.beside, &beside->m_spinBox);
    return sides;
}

StSides stepping() {
    return {steps(std::make_shared<OwnSpinBox>()), steps(std::make_shared<PlainSpinBox>())};
}

std::unique_ptr<CDoubleSpinBox> newOwn(QWidget* parent) {
    return std::make_unique<CDoubleSpinBox>(0.0, c_dMax, c_dStep, parent, "spinBox");
}

std::unique_ptr<QDoubleSpinBox> newPlain(QWidget* parent) {
    auto spinBox = std::make_unique<QDoubleSpinBox>(parent);
    spinBox->setObjectName("spinBox");
    spinBox->setRange(0.0, c_dMax);
    spinBox->setSingleStep(c_dStep);
    return spinBox;
}

StSides makingAndDestroying() {
    const auto parent = std::make_shared<QWidget>();
    return {[parent] { newOwn(parent.get()); }, [parent] { newPlain(parent.get()); }};
}

StSides keeping() {
    const auto parent = std::make_shared<QWidget>();
    const auto boxes = std::make_shared<std::vector<std::unique_ptr<QWidget>>>();
    const auto keep = [boxes](std::unique_ptr<QWidget> box) {
        boxes->push_back(std::move(box));
        paintWhatIsDue(); // what is posted to new widgets goes too
    };
    boxes->reserve(10000);
    return {[parent, keep] { keep(newOwn(parent.get())); },
            [parent, keep] { keep(newPlain(parent.get())); }};
}

} // namespace

void addSpinBoxes() {
    compareTimeInStyles(
        {"CDoubleSpinBox.setValue, hidden : QDoubleSpinBox.setValue", 0.75, 100, settingHidden},
        0.75);
    compareTimeInStyles(
        {"CDoubleSpinBox.setValue, shown : QDoubleSpinBox.setValue", 0.95, 50, settingShown}, 0.95);
    compareTimeInStyles(
        {"CDoubleSpinBox.stepUp, hidden : QDoubleSpinBox.stepUp", 0.72, 100, stepping}, 0.72);
    compareTimeInStyles(
        {"CDoubleSpinBox, make and destroy : QDoubleSpinBox", 1.05, 20, makingAndDestroying}, 1.05);
    compareHeap({"CDoubleSpinBox, heap : QDoubleSpinBox", 1.05, 100, keeping});
}

} // namespace bench
