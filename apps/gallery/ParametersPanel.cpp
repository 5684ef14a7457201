#include "ParametersPanel.h"

#include "Form.h"

#include <exception>
#include <qt3/PushButton.h>
#include <qt3/Text.h>
#include <sstream>

using namespace TEVU;

namespace {

std::string textOf(const CValue* value) {
    std::ostringstream text;
    if (const auto* const flag = dynamic_cast<const CValueBool*>(value))
        text << (flag->Bool() ? "on" : "off");
    else if (const auto* const whole = dynamic_cast<const CValueLong*>(value))
        text << whole->Long();
    else if (const auto* const number = dynamic_cast<const CValueDouble*>(value))
        text << number->Double();
    else if (const auto* const string = dynamic_cast<const CValueString*>(value))
        text << '"' << string->String() << '"';
    return text.str();
}

/// A line for each value, with the keys that lead to it, and for what is empty.
std::string linesOf(const CValueContainerBase& container, const std::string& path) {
    std::string lines;
    for (const CValue_Key& key : container.Keys()) {
        const CValue* const value = container.Entry(key, true);
        const std::string place = path + key.String();
        const auto* const inner = dynamic_cast<const CValueContainerBase*>(value);
        if (inner && !inner->Keys().empty())
            lines += linesOf(*inner, place + '/');
        else if (inner)
            lines += place + ": none\n";
        else
            lines += place + ": " + textOf(value) + '\n';
    }
    return lines;
}

} // namespace

ParametersPanel::ParametersPanel(QWidget* parent, const char* name) : qt3::Widget(parent, name) {
    qt3::GroupBox* const box = boxIn(this, "Generated dialog");
    auto* column = columnIn(box);
    auto* button = new qt3::PushButton("Edit the &parameters...", box, "editParameters");
    connect(button, SIGNAL(clicked()), this, SLOT(edit()));
    column->addWidget(button);
    m_pMessage = addText(box, column, "Nothing edited yet", "parametersMessage");
    m_pParameters = addPane(box, column, "parameters", 0);
}

void ParametersPanel::edit() {
    std::string lines;
    try {
        m_pMessage->setText(m_dialog.show() ? "Edited:" : "Cancelled. Still:");
        lines = linesOf(m_dialog.m_parameters, "");
    } catch (const std::exception& error) {
        m_pMessage->setText("There is no dialog:");
        lines = error.what();
    }
    m_pParameters->setText(qt3::fromAscii(lines));
}
