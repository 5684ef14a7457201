#include "CSpinboxSlider.h"

#include "SliderMapping.h"

#include <algorithm>
#include <qt3/Layout.h>

namespace TEVU {

CSpinboxSlider::CSpinboxSlider(int min, int max, int step, int value, Qt::Orientation orientation,
                               bool spinFirst, bool inverted, QWidget* parent, const char* name)
    : qt3::Widget(parent, name), m_pSlider(nullptr), m_pSpinBox(nullptr), m_bInverted(inverted),
      m_bSpinFirst(spinFirst), m_eOrientation(orientation), m_nMin(min), m_nMax(max), m_nStep(step),
      m_nValue(value) {
    InitWidgets();
}

CSpinboxSlider::CSpinboxSlider(int min, int max, int step, int value, Qt::Orientation orientation,
                               bool inverted, QWidget* parent, const char* name)
    : CSpinboxSlider(min, max, step, value, orientation, false, inverted, parent, name) {}

CSpinboxSlider::CSpinboxSlider(int min, int max, int step, int value, Qt::Orientation orientation,
                               QWidget* parent, const char* name)
    : CSpinboxSlider(min, max, step, value, orientation, false, false, parent, name) {}

CSpinboxSlider::CSpinboxSlider(Qt::Orientation orientation, bool spinFirst, bool inverted,
                               QWidget* parent, const char* name)
    : CSpinboxSlider(0, 100, 1, 0, orientation, spinFirst, inverted, parent, name) {}

CSpinboxSlider::CSpinboxSlider(Qt::Orientation orientation, bool inverted, QWidget* parent,
                               const char* name)
    : CSpinboxSlider(orientation, false, inverted, parent, name) {}

CSpinboxSlider::CSpinboxSlider(Qt::Orientation orientation, QWidget* parent, const char* name)
    : CSpinboxSlider(orientation, false, false, parent, name) {}

CSpinboxSlider::CSpinboxSlider(bool spinFirst, bool inverted, QWidget* parent, const char* name)
    : CSpinboxSlider(Qt::Horizontal, spinFirst, inverted, parent, name) {}

CSpinboxSlider::CSpinboxSlider(bool inverted, QWidget* parent, const char* name)
    : CSpinboxSlider(Qt::Horizontal, false, inverted, parent, name) {}

CSpinboxSlider::CSpinboxSlider(QWidget* parent, const char* name)
    : CSpinboxSlider(Qt::Horizontal, false, false, parent, name) {}

CSpinboxSlider::~CSpinboxSlider() = default;

void CSpinboxSlider::InitWidgets() {
    CreateChildren();
    if (m_eOrientation == Qt::Vertical)
        ArrangeVertically();
    else
        ArrangeHorizontally();
    ConnectChildren();
}

// In a range with its ends exchanged, which Qt 3.3 takes as it is, a value clamps to the one end and to
// the other without end. The setters of the ends make such a range one of a single value.
// The slider gets a position within the range: one beyond it is remembered by that of Qt 3.3, whose
// handle then does not move when the position is set later on.
void CSpinboxSlider::CreateChildren() {
    const int max = std::max(m_nMin, m_nMax);
    const int position = std::clamp(Mirrored(m_nValue), m_nMin, max);
    m_pSlider = new qt3::Slider(m_nMin, max, m_nStep, position, m_eOrientation, this, "slider");
    m_pSpinBox = new qt3::SpinBox(m_nMin, max, m_nStep, this, "spinbox");
    m_pSpinBox->setValue(m_nValue);
}

// Spacers keep the slider in the middle, however wide the spin box is.
void CSpinboxSlider::ArrangeVertically() {
    auto* column = new qt3::VBoxLayout(this, 0, -1);
    auto* row = new qt3::HBoxLayout(0);
    row->addItem(new qt3::SpacerItem(10, 5, QSizePolicy::Minimum, QSizePolicy::Minimum));
    row->addWidget(m_pSlider);
    row->addItem(new qt3::SpacerItem(10, 5, QSizePolicy::Minimum, QSizePolicy::Minimum));
    if (m_bSpinFirst)
        column->addWidget(m_pSpinBox);
    column->addLayout(row);
    if (!m_bSpinFirst)
        column->addWidget(m_pSpinBox);
}

void CSpinboxSlider::ArrangeHorizontally() {
    auto* row = new qt3::HBoxLayout(this, 0, -1);
    if (m_bSpinFirst)
        row->addWidget(m_pSpinBox);
    row->addWidget(m_pSlider);
    if (!m_bSpinFirst)
        row->addWidget(m_pSpinBox);
}

void CSpinboxSlider::ConnectChildren() {
    connect(m_pSlider, SIGNAL(valueChanged(int)), this, SLOT(_SlotSetValueFromSlider(int)));
    connect(m_pSpinBox, SIGNAL(valueChanged(int)), this, SLOT(_SlotSetValue(int)));
    connect(m_pSlider, SIGNAL(sliderPressed()), this, SLOT(SlotSliderPressed()));
    connect(m_pSlider, SIGNAL(sliderMoved(int)), this, SLOT(SlotSliderMoved(int)));
    connect(m_pSlider, SIGNAL(sliderReleased()), this, SLOT(SlotSliderReleased()));
}

int CSpinboxSlider::GetValue() const {
    return m_nValue;
}

int CSpinboxSlider::GetMinValue() const {
    return m_nMin;
}

int CSpinboxSlider::GetMaxValue() const {
    return m_nMax;
}

int CSpinboxSlider::GetStep() const {
    return m_nStep;
}

void CSpinboxSlider::SlotSetValue(int value) {
    m_nValue = value;
    m_pSpinBox->setValue(value);
    m_pSlider->setValue(Mirrored(value));
}

void CSpinboxSlider::_SlotSetValue(int value) {
    SlotSetValue(value);
    emit SignalValueChanged(value);
}

// The member is read anew after each call: setting the spin box may lead to another value.
void CSpinboxSlider::_SlotSetValueFromSlider(int position) {
    m_nValue = Mirrored(position);
    m_pSpinBox->setValue(m_nValue);
    m_pSlider->setValue(Mirrored(m_nValue));
    emit SignalValueChanged(m_nValue);
}

void CSpinboxSlider::SlotSliderPressed() {
    emit SignalSliderPressed();
}

void CSpinboxSlider::SlotSliderMoved(int position) {
    emit SignalSliderMoved(Mirrored(position));
}

void CSpinboxSlider::SlotSliderReleased() {
    emit SignalSliderReleased();
}

void CSpinboxSlider::SlotSetMinValue(int min) {
    m_nMin = min;
    m_pSlider->setMinValue(min);
    m_pSpinBox->setMinValue(min);
}

void CSpinboxSlider::SlotSetMaxValue(int max) {
    m_nMax = max;
    m_pSlider->setMaxValue(max);
    m_pSpinBox->setMaxValue(max);
}

void CSpinboxSlider::SlotSetStep(int step) {
    m_nStep = step;
    m_pSlider->setPageStep(step);
    m_pSpinBox->setLineStep(step);
}

// From value to position and back: the same rule.
int CSpinboxSlider::Mirrored(int value) const {
    return mirroredIf(m_bInverted, value, m_nMin, m_nMax);
}

} // namespace TEVU
