#include "Field.h"

#include "FileField.h"
#include "NumberFields.h"
#include "SmallFields.h"

#include <qt3/WidgetFunctions.h>

namespace autodlg {

namespace {

struct StFieldMaker {
    const StParameter& parameter;
    QWidget* parent;
    const char* name;

    std::unique_ptr<CField> operator()(const StIntegerKind& kind) const {
        return std::make_unique<CIntegerField>(kind, parent, name);
    }
    std::unique_ptr<CField> operator()(const StNumberKind& kind) const {
        return std::make_unique<CNumberField>(kind, parent, name);
    }
    std::unique_ptr<CField> operator()(const StRangeKind& kind) const {
        return std::make_unique<CRangeField>(kind, parent, name);
    }
    std::unique_ptr<CField> operator()(const StTextKind&) const {
        return std::make_unique<CTextField>(parent, name);
    }
    std::unique_ptr<CField> operator()(const StFileKind& kind) const {
        return std::make_unique<CFileField>(kind, parent, name);
    }
    std::unique_ptr<CField> operator()(const StChoiceKind& kind) const {
        return std::make_unique<CChoiceField>(kind, parent, name);
    }
    std::unique_ptr<CField> operator()(const StSwitchKind&) const {
        return std::make_unique<CSwitchField>(parameter.label, parent, name);
    }
    std::unique_ptr<CField> operator()(const StColorKind&) const {
        return std::make_unique<CColorField>(parent, name);
    }
};

} // namespace

CField::CField() = default;
CField::~CField() = default;

QWidget* CField::focusTarget() const {
    return widget();
}

bool CField::hasOwnLabel() const {
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

int usualTextWidth(const QWidget* widget) {
    return qt3::textWidth(widget, "a text of thirty characters...");
}

std::unique_ptr<CField> createField(const StParameter& parameter, QWidget* parent) {
    const std::string name = joined(parameter.path);
    return std::visit(StFieldMaker{parameter, parent, name.c_str()}, parameter.kind);
}

} // namespace autodlg
