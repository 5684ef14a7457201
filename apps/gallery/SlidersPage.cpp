#include "SlidersPage.h"

#include "Form.h"
#include "SignalLog.h"

#include <qt3/PushButton.h>
#include <qt3/SpinBox.h>

using TEVU::CRangeSlider;
using TEVU::CRangeSliderSpinboxed;
using TEVU::CSpinboxSlider;

SlidersPage::SlidersPage(QWidget* parent, SignalLog& log)
    : qt3::Widget(parent, "slidersPage"), m_nMin(0), m_nMax(255) {
    auto* row = new qt3::HBoxLayout(this, 8, 8);
    auto* left = new qt3::VBoxLayout(row, 8);
    left->addWidget(createRangeSliders(log));
    left->addWidget(createSpinboxed(log));
    left->addWidget(createSpinboxSliders(log), 1);
    auto* right = new qt3::VBoxLayout(row, 8);
    right->addWidget(createVertical(log), 1);
    right->addWidget(createOptions());
}

/// A number to enter whose change runs \a slot of the page, written with SLOT() and taking an int.
void SlidersPage::addNumber(qt3::GroupBox* box, qt3::VBoxLayout* column, const char* label,
                            int value, const char* slot, const char* name) {
    auto* field = new qt3::SpinBox(-1000, 1000, 1, box, name);
    field->setValue(value);
    connect(field, SIGNAL(valueChanged(int)), this, slot);
    addLabelled(box, column, label, field);
}

QWidget* SlidersPage::createRangeSliders(SignalLog& log) {
    auto* box = new qt3::GroupBox("Range slider", this, "rangeSliders");
    auto* column = columnIn(box);
    m_sliders[0] = new CRangeSlider(Qt::Horizontal, 60, 180, m_nMin, m_nMax, box, "rangeSlider");
    log.watch(m_sliders[0], "rangeSlider");
    column->addWidget(m_sliders[0]);
    return box;
}

QWidget* SlidersPage::createSpinboxed(SignalLog& log) {
    auto* box = new qt3::GroupBox("The same between two spin boxes", this, "spinboxed");
    auto* column = columnIn(box);
    addText(box, column, "Straight:");
    m_spinboxed[0] = new CRangeSliderSpinboxed(Qt::Horizontal, false, m_nMin, 180, m_nMin, m_nMax,
                                               box, "straight");
    column->addWidget(m_spinboxed[0]);
    addText(box, column, "Inverted:");
    m_spinboxed[1] = new CRangeSliderSpinboxed(Qt::Horizontal, true, 60, m_nMax, m_nMin, m_nMax,
                                               box, "inverted");
    column->addWidget(m_spinboxed[1]);
    log.watch(m_spinboxed[0], "straight");
    log.watch(m_spinboxed[1], "inverted");
    return box;
}

QWidget* SlidersPage::createSpinboxSliders(SignalLog& log) {
    auto* box = new qt3::GroupBox("Slider with a spin box", this, "spinboxSliders");
    auto* column = columnIn(box);
    const struct {
        bool m_bSpinFirst;
        bool m_bInverted;
        const char* m_sLabel;
        const char* m_sName;
    } variants[] = {{false, false, "Straight:", "slider"},
                    {true, false, "Spin box first:", "spinFirst"},
                    {false, true, "Inverted:", "sliderInverted"}};
    std::size_t i = 0;
    for (const auto& variant : variants) {
        auto* slider = new CSpinboxSlider(0, 100, 10, 30, Qt::Horizontal, variant.m_bSpinFirst,
                                          variant.m_bInverted, box, variant.m_sName);
        log.watch(slider, variant.m_sName);
        addLabelled(box, column, variant.m_sLabel, slider);
        m_spinboxSliders[i++] = slider;
    }
    addText(box, column, "Options of these and of the vertical one:");
    addNumber(box, column, "Minimum:", 0, SLOT(setSliderMin(int)), "sliderMinimum");
    addNumber(box, column, "Maximum:", 100, SLOT(setSliderMax(int)), "sliderMaximum");
    addNumber(box, column, "Step:", 10, SLOT(setSliderStep(int)), "sliderStep");
    addSwitch(box, column, "Enabled", true, this, SLOT(setSlidersEnabled(bool)));
    return box;
}

QWidget* SlidersPage::createVertical(SignalLog& log) {
    auto* box = new qt3::GroupBox("Vertical: the smallest value is at the top", this, "vertical");
    auto* row = new qt3::HBoxLayout(columnIn(box), 24);
    m_sliders[1] = new CRangeSlider(Qt::Vertical, 60, 180, m_nMin, m_nMax, box, "verticalRange");
    m_sliders[1]->setMinimumHeight(200);
    m_spinboxed[2] = new CRangeSliderSpinboxed(Qt::Vertical, false, m_nMin, 180, m_nMin, m_nMax,
                                               box, "verticalSpinboxed");
    auto* slider =
        new CSpinboxSlider(0, 100, 10, 30, Qt::Vertical, false, false, box, "verticalSlider");
    row->addWidget(m_sliders[1]);
    row->addWidget(m_spinboxed[2]);
    row->addWidget(slider);
    m_spinboxSliders[3] = slider;
    log.watch(m_sliders[1], "verticalRange");
    log.watch(m_spinboxed[2], "verticalSpinboxed");
    log.watch(slider, "verticalSlider");
    return box;
}

QWidget* SlidersPage::createOptions() {
    auto* box = new qt3::GroupBox("Options of the range sliders", this, "rangeOptions");
    auto* column = columnIn(box);
    addNumber(box, column, "Minimum:", m_nMin, SLOT(setMin(int)), "minimum");
    addNumber(box, column, "Maximum:", m_nMax, SLOT(setMax(int)), "maximum");
    addSwitch(box, column, "Lower may equal upper", true, this, SLOT(setNullRange(bool)));
    addSwitch(box, column, "Enabled (range sliders show it when they change)", true, this,
              SLOT(setRangesEnabled(bool)));
    auto* buttons = new qt3::HBoxLayout(column, 6);
    auto* down = new qt3::PushButton("Move by -20", box);
    auto* up = new qt3::PushButton("Move by 20", box);
    connect(down, SIGNAL(clicked()), this, SLOT(moveDown()));
    connect(up, SIGNAL(clicked()), this, SLOT(moveUp()));
    buttons->addWidget(down);
    buttons->addWidget(up);
    return box;
}

void SlidersPage::setNullRange(bool allowed) {
    for (CRangeSlider* slider : m_sliders)
        slider->EnableNullRange(allowed);
    for (CRangeSliderSpinboxed* slider : m_spinboxed) {
        if (allowed)
            slider->SlotEnableNullRange();
        else
            slider->SlotDisableNullRange();
    }
}

void SlidersPage::setMin(int min) {
    m_nMin = min;
    for (CRangeSlider* slider : m_sliders)
        slider->SetBound(m_nMin, m_nMax);
    for (CRangeSliderSpinboxed* slider : m_spinboxed)
        slider->SlotSetMin(m_nMin);
}

void SlidersPage::setMax(int max) {
    m_nMax = max;
    for (CRangeSlider* slider : m_sliders)
        slider->SetBound(m_nMin, m_nMax);
    for (CRangeSliderSpinboxed* slider : m_spinboxed)
        slider->SlotSetMax(m_nMax);
}

void SlidersPage::moveDown() {
    for (CRangeSlider* slider : m_sliders)
        slider->Move(-20);
}

void SlidersPage::moveUp() {
    for (CRangeSlider* slider : m_sliders)
        slider->Move(20);
}

void SlidersPage::setRangesEnabled(bool enabled) {
    for (CRangeSlider* slider : m_sliders)
        slider->setEnabled(enabled);
    for (CRangeSliderSpinboxed* slider : m_spinboxed)
        slider->setEnabled(enabled);
}

void SlidersPage::setSliderMin(int min) {
    for (CSpinboxSlider* slider : m_spinboxSliders)
        slider->SlotSetMinValue(min);
}

void SlidersPage::setSliderMax(int max) {
    for (CSpinboxSlider* slider : m_spinboxSliders)
        slider->SlotSetMaxValue(max);
}

void SlidersPage::setSliderStep(int step) {
    for (CSpinboxSlider* slider : m_spinboxSliders)
        slider->SlotSetStep(step);
}

void SlidersPage::setSlidersEnabled(bool enabled) {
    for (CSpinboxSlider* slider : m_spinboxSliders)
        slider->setEnabled(enabled);
}

QWidget* createSlidersPage(QWidget* parent, SignalLog& log, const Options&) {
    return new SlidersPage(parent, log);
}
