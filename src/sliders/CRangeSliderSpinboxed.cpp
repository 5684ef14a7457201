#include "CRangeSliderSpinboxed.h"

#include "Saturate.h"
#include "SliderMapping.h"

namespace TEVU {

CRangeSliderSpinboxed::CRangeSliderSpinboxed(Qt::Orientation orientation, bool inverted, int lower,
                                             int upper, int min, int max, QWidget* parent,
                                             const char* name)
    : qt3::Widget(parent, name), m_pSpinBox1(nullptr), m_pSpinBox2(nullptr),
      m_pRangeSlider(nullptr), m_pHBoxLayout(nullptr), m_pVBoxLayout(nullptr), m_nStep(1),
      m_nMin(min), m_nMax(max), m_nValueA(lower), m_nValueB(upper), m_nMirroredA(upper),
      m_nMirroredB(lower), m_eOrientation(orientation), m_bInverted(inverted) {
    InitWidgets();
}

CRangeSliderSpinboxed::CRangeSliderSpinboxed(Qt::Orientation orientation, bool inverted,
                                             QWidget* parent, const char* name)
    : CRangeSliderSpinboxed(orientation, inverted, 0, 100, 0, 100, parent, name) {}

CRangeSliderSpinboxed::CRangeSliderSpinboxed(Qt::Orientation orientation, QWidget* parent,
                                             const char* name)
    : CRangeSliderSpinboxed(orientation, false, parent, name) {}

CRangeSliderSpinboxed::CRangeSliderSpinboxed(bool inverted, QWidget* parent, const char* name)
    : CRangeSliderSpinboxed(Qt::Horizontal, inverted, parent, name) {}

CRangeSliderSpinboxed::CRangeSliderSpinboxed(QWidget* parent, const char* name)
    : CRangeSliderSpinboxed(Qt::Horizontal, false, parent, name) {}

CRangeSliderSpinboxed::CRangeSliderSpinboxed(const CRangeSliderSpinboxed& other) = default;
CRangeSliderSpinboxed&
CRangeSliderSpinboxed::operator=(const CRangeSliderSpinboxed& other) = default;
CRangeSliderSpinboxed::~CRangeSliderSpinboxed() = default;

void CRangeSliderSpinboxed::InitWidgets() {
    CreateChildren();
    ArrangeChildren();
    m_pSpinBox1->setValue(m_bInverted ? m_nValueB : m_nValueA);
    m_pSpinBox2->setValue(m_bInverted ? m_nValueA : m_nValueB);
    ConnectChildren();
}

void CRangeSliderSpinboxed::CreateChildren() {
    m_pSpinBox1 = new qt3::SpinBox(m_nMin, m_nMax, m_nStep, this, "spinbox1 "); // with the blank
    m_pSpinBox1->setFixedSize(m_pSpinBox1->sizeHint());
    m_pRangeSlider = new CRangeSlider(
        m_eOrientation, 0, saturated(static_cast<long long>(m_nValueB) - m_nValueA), 0,
        saturated(static_cast<long long>(m_nMax) - m_nMin), this, "rangeslider");
    m_pSpinBox2 = new qt3::SpinBox(m_nMin, m_nMax, m_nStep, this, "spinbox2");
    m_pSpinBox2->setFixedSize(m_pSpinBox2->sizeHint());
}

void CRangeSliderSpinboxed::ArrangeChildren() {
    QWidget* const children[] = {m_pSpinBox1, m_pRangeSlider, m_pSpinBox2};
    if (m_eOrientation == Qt::Vertical) {
        m_pVBoxLayout = new qt3::VBoxLayout(this, 0, -1);
        for (QWidget* child : children)
            m_pVBoxLayout->addWidget(child, 1, Qt::AlignHCenter);
    } else {
        m_pHBoxLayout = new qt3::HBoxLayout(this, 0, -1);
        for (QWidget* child : children)
            m_pHBoxLayout->addWidget(child);
    }
}

// In this order: a change of the slider reaches its spin box before it is passed on.
void CRangeSliderSpinboxed::ConnectChildren() {
    connect(m_pRangeSlider, SIGNAL(LowerChanged(int)), this, SLOT(SlotChangeValSpinBox1(int)));
    connect(m_pRangeSlider, SIGNAL(UpperChanged(int)), this, SLOT(SlotChangeValSpinBox2(int)));
    connect(m_pSpinBox1, SIGNAL(valueChanged(int)), this, SLOT(SlotChangeValRangeSliderLower(int)));
    connect(m_pSpinBox2, SIGNAL(valueChanged(int)), this, SLOT(SlotChangeValRangeSliderUpper(int)));
    connect(m_pRangeSlider, SIGNAL(ValueChanged(int, int)), this,
            SLOT(SlotCorrectSignalValueChanged(int, int)));
    connect(m_pRangeSlider, SIGNAL(LowerChanged(int)), this,
            SLOT(SlotCorrectSignalLowerChanged(int)));
    connect(m_pRangeSlider, SIGNAL(UpperChanged(int)), this,
            SLOT(SlotCorrectSignalUpperChanged(int)));
}

int CRangeSliderSpinboxed::GetMin() const {
    return m_nMin;
}

int CRangeSliderSpinboxed::GetMax() const {
    return m_nMax;
}

int CRangeSliderSpinboxed::GetLower() const {
    return m_bInverted ? m_nMirroredB : m_nValueA;
}

int CRangeSliderSpinboxed::GetUpper() const {
    return m_bInverted ? m_nMirroredA : m_nValueB;
}

int CRangeSliderSpinboxed::GetRange() const {
    return saturated(static_cast<long long>(GetUpper()) - GetLower());
}

bool CRangeSliderSpinboxed::NullRangeEnabled() const {
    return m_pRangeSlider->NullRangeEnabled();
}

// Kept: when inverted, the kept values are minimum + offset and not the user's values, but it is them
// that the argument is compared with.
void CRangeSliderSpinboxed::SlotSetLower(int lower) {
    int& kept = m_bInverted ? m_nValueB : m_nValueA;
    if (kept == lower)
        return;
    kept = lower;
    if (m_bInverted)
        SlotChangeValRangeSliderUpper(lower);
    else
        SlotChangeValRangeSliderLower(lower);
}

void CRangeSliderSpinboxed::SlotSetUpper(int upper) {
    int& kept = m_bInverted ? m_nValueA : m_nValueB;
    if (kept == upper)
        return;
    kept = upper;
    if (m_bInverted)
        SlotChangeValRangeSliderLower(upper);
    else
        SlotChangeValRangeSliderUpper(upper);
}

void CRangeSliderSpinboxed::SlotSetRange(int lower, int upper) {
    const int first = m_bInverted ? upper : lower;
    const int second = m_bInverted ? lower : upper;
    if (m_nValueA == first && m_nValueB == second)
        return;
    m_nValueA = first;
    m_nValueB = second;
    SlotChangeValRangeSlider(first, second);
}

void CRangeSliderSpinboxed::SlotSetMin(int min) {
    if (min == m_nMin)
        return;
    m_nMin = min;
    m_pSpinBox1->setMinValue(m_nMin);
    m_pSpinBox2->setMinValue(m_nMin);
    m_pRangeSlider->SetMinValue(0);
    SetSliderBound();
}

void CRangeSliderSpinboxed::SlotSetMax(int max) {
    if (max == m_nMax)
        return;
    m_nMax = max;
    m_pSpinBox1->setMaxValue(m_nMax);
    m_pSpinBox2->setMaxValue(m_nMax);
    m_pRangeSlider->SetMaxValue(saturated(static_cast<long long>(m_nMax) - m_nMin));
    SetSliderBound();
}

void CRangeSliderSpinboxed::SlotSetBound(int min, int max) {
    m_nMax = max;
    m_nMin = min;
    for (qt3::SpinBox* box : {m_pSpinBox1, m_pSpinBox2}) {
        box->setMinValue(m_nMin);
        box->setMaxValue(m_nMax);
    }
    m_pRangeSlider->SetMaxValue(saturated(static_cast<long long>(m_nMax) - m_nMin));
    SetSliderBound();
}

// The values are those left by the spin boxes, which may have clamped and passed on theirs.
void CRangeSliderSpinboxed::SetSliderBound() {
    m_pRangeSlider->SetBound(0, saturated(static_cast<long long>(m_nMax) - m_nMin));
    const StOffsetMapping mapping = Mapping();
    m_pRangeSlider->SetRange(mapping.ToOffset(m_bInverted ? m_nMirroredA : m_nValueA),
                             mapping.ToOffset(m_bInverted ? m_nMirroredB : m_nValueB));
}

void CRangeSliderSpinboxed::SlotEnableNullRange() const {
    m_pRangeSlider->EnableNullRange(true);
}

void CRangeSliderSpinboxed::SlotDisableNullRange() const {
    m_pRangeSlider->EnableNullRange(false);
}

void CRangeSliderSpinboxed::SlotChangeValSpinBox1(int offset) {
    m_nValueA = StOffsetMapping{m_nMin, m_nMax, false}.ToValue(offset);
    m_nMirroredA = StOffsetMapping{m_nMin, m_nMax, true}.ToValue(offset);
    m_pSpinBox1->setValue(Mapping().ToValue(offset));
}

void CRangeSliderSpinboxed::SlotChangeValSpinBox2(int offset) {
    m_nValueB = StOffsetMapping{m_nMin, m_nMax, false}.ToValue(offset);
    m_nMirroredB = StOffsetMapping{m_nMin, m_nMax, true}.ToValue(offset);
    m_pSpinBox2->setValue(Mapping().ToValue(offset));
}

void CRangeSliderSpinboxed::SlotChangeValRangeSliderLower(int value) {
    m_pRangeSlider->SetLower(Mapping().ToOffset(value));
}

void CRangeSliderSpinboxed::SlotChangeValRangeSliderUpper(int value) {
    m_pRangeSlider->SetUpper(Mapping().ToOffset(value));
}

void CRangeSliderSpinboxed::SlotChangeValRangeSlider(int value1, int value2) {
    m_pRangeSlider->SetRange(Mapping().ToOffset(value1), Mapping().ToOffset(value2));
}

void CRangeSliderSpinboxed::SlotCorrectSignalValueChanged(int lowerOffset, int upperOffset) {
    const int value1 = Mapping().ToValue(lowerOffset);
    const int value2 = Mapping().ToValue(upperOffset);
    if (m_bInverted)
        emit SignalValueChanged(value2, value1);
    else
        emit SignalValueChanged(value1, value2);
}

void CRangeSliderSpinboxed::SlotCorrectSignalLowerChanged(int lowerOffset) {
    if (m_bInverted)
        emit SignalUpperChanged(Mapping().ToValue(lowerOffset));
    else
        emit SignalLowerChanged(Mapping().ToValue(lowerOffset));
}

void CRangeSliderSpinboxed::SlotCorrectSignalUpperChanged(int upperOffset) {
    if (m_bInverted)
        emit SignalLowerChanged(Mapping().ToValue(upperOffset));
    else
        emit SignalUpperChanged(Mapping().ToValue(upperOffset));
}

StOffsetMapping CRangeSliderSpinboxed::Mapping() const {
    return {m_nMin, m_nMax, m_bInverted};
}

} // namespace TEVU
