#include "NumbersPage.h"

#include "Form.h"
#include "SignalLog.h"

using TEVU::CDoubleLineEdit;
using TEVU::CDoubleSpinBox;

NumbersPage::NumbersPage(QWidget* parent, SignalLog& log)
    : qt3::Widget(parent, "numbersPage"), m_pSpinBox(nullptr) {
    auto* row = new qt3::HBoxLayout(this, 8, 8);
    auto* left = new qt3::VBoxLayout(row, 8);
    left->addWidget(createSpinBox(log));
    left->addWidget(createOptions(), 1);
    row->addWidget(createLineEdits(log), 1);
}

QWidget* NumbersPage::createSpinBox(SignalLog& log) {
    auto* box = new qt3::GroupBox("Double spin box", this, "spinBoxGroup");
    auto* column = columnIn(box);
    m_pSpinBox = new CDoubleSpinBox(0.0, 1.0, 0.1, box, "doubleSpinBox");
    m_pSpinBox->setSuffix(" mm");
    log.watch(m_pSpinBox, "doubleSpinBox");
    column->addWidget(m_pSpinBox);
    addText(box, column, "Arrows, Up and Down, the wheel, or type and press Return");
    return box;
}

QWidget* NumbersPage::createOptions() {
    auto* box = new qt3::GroupBox("Its options", this, "options");
    auto* column = columnIn(box);
    const struct {
        const char* m_sLabel;
        const char* m_sText;
        const char* m_sSlot;
    } texts[] = {{"Prefix:", "", SLOT(setPrefix(const QString&))},
                 {"Suffix:", " mm", SLOT(setSuffix(const QString&))},
                 {"At the minimum:", "", SLOT(setSpecialText(const QString&))}};
    for (const auto& text : texts) {
        auto* field = new qt3::LineEdit(text.m_sText, box);
        connect(field, SIGNAL(textChanged(const QString&)), this, text.m_sSlot);
        addLabelled(box, column, text.m_sLabel, field);
    }
    const struct {
        const char* m_sLabel;
        double m_dValue;
        const char* m_sSlot;
    } numbers[] = {{"Minimum:", 0.0, SLOT(setMinimum(double))},
                   {"Maximum:", 1.0, SLOT(setMaximum(double))},
                   {"Step:", 0.1, SLOT(setStep(double))}};
    for (const auto& number : numbers) {
        auto* field = new CDoubleSpinBox(-1000.0, 1000.0, 0.1, box, 0);
        field->setValue(number.m_dValue);
        connect(field, SIGNAL(valueChanged(double)), this, number.m_sSlot);
        addLabelled(box, column, number.m_sLabel, field);
    }
    addSwitch(box, column, "Wrapping", false, this, SLOT(setWrapping(bool)));
    addSwitch(box, column, "Plus and minus on the buttons", false, this, SLOT(setPlusMinus(bool)));
    addSwitch(box, column, "Enabled", true, m_pSpinBox, SLOT(setEnabled(bool)));
    return box;
}

QWidget* NumbersPage::createLineEdits(SignalLog& log) {
    auto* box = new qt3::GroupBox("Double line edits: press Return", this, "lineEdits");
    auto* column = columnIn(box);
    const struct {
        const char* m_sLabel;
        int m_nPrecision;
        const char* m_sName;
    } edits[] = {{"Whole numbers:", 0, "precision0"},
                 {"Two decimals:", 2, "precision2"},
                 {"Six decimals:", 6, "precision6"}};
    for (const auto& edit : edits) {
        auto* field = new CDoubleLineEdit(3.14159265, edit.m_nPrecision, box, edit.m_sName);
        log.watch(field, edit.m_sName, "textChanged(const QString&)");
        addLabelled(box, column, edit.m_sLabel, field);
    }
    addText(box, column, "What is no number becomes the last good one again");
    return box;
}

void NumbersPage::setPrefix(const QString& text) {
    m_pSpinBox->setPrefix(text);
}

void NumbersPage::setSuffix(const QString& text) {
    m_pSpinBox->setSuffix(text);
}

void NumbersPage::setSpecialText(const QString& text) {
    m_pSpinBox->setSpecialValueText(text);
}

void NumbersPage::setWrapping(bool on) {
    m_pSpinBox->setWrapping(on);
}

void NumbersPage::setPlusMinus(bool on) {
    m_pSpinBox->setButtonSymbols(on ? CDoubleSpinBox::PlusMinus : CDoubleSpinBox::UpDownArrows);
}

void NumbersPage::setMinimum(double minimum) {
    m_pSpinBox->setMinValue(minimum);
}

void NumbersPage::setMaximum(double maximum) {
    m_pSpinBox->setMaxValue(maximum);
}

void NumbersPage::setStep(double step) {
    m_pSpinBox->setLineStep(step);
}

QWidget* createNumbersPage(QWidget* parent, SignalLog& log, const Options&) {
    return new NumbersPage(parent, log);
}
