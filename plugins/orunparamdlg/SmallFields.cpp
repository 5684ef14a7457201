#include "SmallFields.h"

#include <algorithm>
#include <qt3/MessageBox.h>
#include <qt3/Text.h>

namespace autodlg {

CTextField::CTextField(QWidget* parent, const char* name)
    : m_pLineEdit(new qt3::LineEdit(parent, name)) {
    m_pLineEdit->setMinimumWidth(usualTextWidth(parent));
}

QWidget* CTextField::widget() const {
    return m_pLineEdit;
}

bool CTextField::isAcceptable(QWidget* window, const QString& label) {
    if (qt3::isLatin1(m_pLineEdit->text()))
        return true;
    qt3::MessageBox::warning(window, "Not a Latin-1 text",
                             "The text of \"" + label +
                                 "\" contains characters that cannot be stored.\nOnly those of "
                                 "Latin-1 can.",
                             qt3::MessageBox::Ok | qt3::MessageBox::Default, 0);
    return false;
}

void CTextField::show(const Value& value) {
    m_pLineEdit->setText(qt3::fromAscii(std::get<std::string>(value)));
}

QString CTextField::shown() {
    return m_pLineEdit->text();
}

Value CTextField::edited() {
    return qt3::ascii(m_pLineEdit->text());
}

CChoiceField::CChoiceField(const StChoiceKind& kind, QWidget* parent, const char* name)
    : m_choices(kind.choices), m_pComboBox(new qt3::ComboBox(false, parent, name)) {
    for (const std::string& label : kind.labels)
        m_pComboBox->insertItem(qt3::fromAscii(label));
}

QWidget* CChoiceField::widget() const {
    return m_pComboBox;
}

void CChoiceField::show(const Value& value) {
    const auto choice = std::find(m_choices.begin(), m_choices.end(), std::get<std::string>(value));
    m_pComboBox->setCurrentItem(static_cast<int>(choice - m_choices.begin()));
}

QString CChoiceField::shown() {
    return QString::number(m_pComboBox->currentItem());
}

Value CChoiceField::edited() {
    return m_choices[static_cast<std::size_t>(m_pComboBox->currentItem())];
}

CSwitchField::CSwitchField(const std::string& label, QWidget* parent, const char* name)
    : m_pCheckBox(new qt3::CheckBox(qt3::fromAscii(label), parent, name)) {}

QWidget* CSwitchField::widget() const {
    return m_pCheckBox;
}

bool CSwitchField::hasOwnLabel() const {
    return true;
}

void CSwitchField::show(const Value& value) {
    m_pCheckBox->setChecked(std::get<bool>(value));
}

QString CSwitchField::shown() {
    return m_pCheckBox->isChecked() ? "on" : "off";
}

Value CSwitchField::edited() {
    return m_pCheckBox->isChecked();
}

CColorField::CColorField(QWidget* parent, const char* name)
    : m_pButton(new TEVU::CColorPushButton(Qt::white, parent, name)) {}

QWidget* CColorField::widget() const {
    return m_pButton;
}

void CColorField::show(const Value& value) {
    m_pButton->setColor(QColor(qt3::fromAscii(std::get<std::string>(value))));
}

QString CColorField::shown() {
    return m_pButton->color().name();
}

Value CColorField::edited() {
    return qt3::ascii(m_pButton->color().name());
}

} // namespace autodlg
