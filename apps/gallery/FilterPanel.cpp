#include "FilterPanel.h"

#include "Form.h"
#include "ImageText.h"

#include <algorithm>
#include <qt3/Text.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueString.h>

using TEVU::CAvailableImages;
using TEVU::CValueBool;
using TEVU::CValueMap;
using TEVU::CValueString;

namespace {

const char* const c_sCheckTypes = "check types";
const char* const c_sTypes = "types";
const char* const c_sCheckSizes = "check sizes";
const char* const c_sSizes = "sizes";
const std::size_t c_nTypesInALine = 3;

} // namespace

FilterPanel::FilterPanel(QWidget* parent, const char* name)
    : qt3::Widget(parent, name), m_pCheckTypes(nullptr), m_pCheckSizes(nullptr), m_pSizes(nullptr) {
    qt3::GroupBox* const box = boxIn(this, "Filter");
    auto* column = columnIn(box);
    addTypes(box, column);
    addSizes(box, column);
    m_pMessage = addMessage(box, column, "", "sizesMessage");
    tell();
}

void FilterPanel::addTypes(qt3::GroupBox* box, qt3::VBoxLayout* column) {
    m_pCheckTypes = addSwitch(box, column, "Only these types:", true, this, SLOT(tell()));
    auto* line = new qt3::HBoxLayout(column, 6);
    for (const TEVU::IImage::CType& type : allTypes()) {
        if (!m_types.empty() && m_types.size() % c_nTypesInALine == 0)
            line = new qt3::HBoxLayout(column, 6);
        auto* option = new qt3::CheckBox(qt3::fromAscii(textOf(type)), box);
        option->setChecked(type == TEVU::IImage::CType::eUInt8);
        connect(option, SIGNAL(toggled(bool)), this, SLOT(tell()));
        line->addWidget(option);
        m_types.push_back(option);
    }
}

void FilterPanel::addSizes(qt3::GroupBox* box, qt3::VBoxLayout* column) {
    m_pCheckSizes = addSwitch(box, column, "Only these sizes:", false, this, SLOT(tell()));
    m_pSizes = new qt3::LineEdit("96 x 96 x 9, 640 x 480", box, "sizes");
    connect(m_pSizes, SIGNAL(textChanged(const QString&)), this, SLOT(tell()));
    column->addWidget(m_pSizes);
}

CAvailableImages FilterPanel::Available() const {
    CAvailableImages available(m_pCheckTypes->isChecked(), m_pCheckSizes->isChecked());
    for (std::size_t i = 0; i < m_types.size(); ++i) {
        if (m_types[i]->isChecked())
            available.addAllowedType(allTypes()[i]);
    }
    for (const std::string& text : listFrom(qt3::ascii(m_pSizes->text()))) {
        if (const auto size = sizeFrom(text))
            available.addAllowedSize(*size);
    }
    return available;
}

CValueMap FilterPanel::Settings() const {
    std::string types;
    for (std::size_t i = 0; i < m_types.size(); ++i) {
        if (m_types[i]->isChecked())
            types += (types.empty() ? "" : ", ") + textOf(allTypes()[i]);
    }
    CValueMap settings;
    settings.SetEntry(c_sCheckTypes, new CValueBool(m_pCheckTypes->isChecked()));
    settings.SetEntry(c_sTypes, new CValueString(types));
    settings.SetEntry(c_sCheckSizes, new CValueBool(m_pCheckSizes->isChecked()));
    settings.SetEntry(c_sSizes, new CValueString(qt3::ascii(m_pSizes->text())));
    return settings;
}

void FilterPanel::SetSettings(const CValueMap& settings) {
    m_pCheckTypes->setChecked(settings.EntryBool(c_sCheckTypes, m_pCheckTypes->isChecked()));
    m_pCheckSizes->setChecked(settings.EntryBool(c_sCheckSizes, m_pCheckSizes->isChecked()));
    if (settings.HasEntry(c_sTypes, typeid(CValueString))) {
        const std::vector<std::string> types = listFrom(settings.EntryString(c_sTypes));
        for (std::size_t i = 0; i < m_types.size(); ++i)
            m_types[i]->setChecked(std::count(types.begin(), types.end(), textOf(allTypes()[i])) >
                                   0);
    }
    m_pSizes->setText(qt3::fromAscii(settings.GetString(c_sSizes, qt3::ascii(m_pSizes->text()))));
}

/// Of the sizes, also which one is none.
void FilterPanel::tell() {
    std::string message = "Separate sizes by commas";
    for (const std::string& text : listFrom(qt3::ascii(m_pSizes->text()))) {
        if (!sizeFrom(text))
            message = "This is no size: " + text;
    }
    m_pMessage->setText(qt3::fromAscii(message));
    emit changed();
}
