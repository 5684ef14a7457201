#include "Field.h"

#include <qt3/MessageBox.h>
#include <qt3/WidgetFunctions.h>

namespace autodlg {

CField::CField(QWidget* widget, QWidget* focusTarget)
    : m_pWidget(widget), m_pFocusTarget(focusTarget) {}

CField::~CField() = default;

bool CField::takesLabel(const QString&) {
    return false;
}

void CField::setValue(const Value& value) {
    show(value);
    m_value = value;
    m_sShown = shown();
}

Value CField::value() {
    return shown() == m_sShown ? m_value : edited();
}

bool CField::isAcceptable(QWidget*, const QString&) {
    return true;
}

FieldPointer createField(const StParameter& parameter, QWidget* parent) {
    const std::string name = joined(parameter.path);
    return std::visit([&](const auto& kind) { return createField(kind, parent, name.c_str()); },
                      parameter.kind);
}

int usualTextWidth(const QWidget* widget) {
    return qt3::textWidth(widget, "a text of thirty characters...");
}

bool refuse(QWidget* window, const QString& caption, const QString& text) {
    qt3::MessageBox::warning(window, caption, text, qt3::MessageBox::Ok | qt3::MessageBox::Default,
                             0);
    return false;
}

} // namespace autodlg
