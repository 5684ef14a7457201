#include "Field.h"

#include <CColorPushButton.h>
#include <algorithm>
#include <qt3/CheckBox.h>
#include <qt3/ComboBox.h>
#include <qt3/LineEdit.h>
#include <qt3/Text.h>

namespace autodlg {

namespace {

class CTextField : public CFieldOf<qt3::LineEdit> {
public:
    CTextField(QWidget* parent, const char* name) : CFieldOf(new qt3::LineEdit(parent, name)) {
        m_pEditor->setMinimumWidth(usualTextWidth(parent));
    }

    bool isAcceptable(QWidget* window, const QString& label) override {
        return qt3::isLatin1(m_pEditor->text()) ||
               refuse(window, "Not a Latin-1 text",
                      "The text of \"" + label +
                          "\" contains characters that cannot be stored.\nOnly those of Latin-1 "
                          "can.");
    }

protected:
    void show(const Value& value) override {
        m_pEditor->setText(qt3::fromAscii(std::get<std::string>(value)));
    }

    QString shown() override { return m_pEditor->text(); }
    Value edited() override { return qt3::ascii(m_pEditor->text()); }
};

class CChoiceField : public CFieldOf<qt3::ComboBox> {
public:
    CChoiceField(const StChoiceKind& kind, QWidget* parent, const char* name)
        : CFieldOf(new qt3::ComboBox(false, parent, name)), m_choices(kind.choices) {
        for (const std::string& label : kind.labels)
            m_pEditor->insertItem(qt3::fromAscii(label));
    }

protected:
    void show(const Value& value) override {
        const auto choice =
            std::find(m_choices.begin(), m_choices.end(), std::get<std::string>(value));
        m_pEditor->setCurrentItem(static_cast<int>(choice - m_choices.begin()));
    }

    QString shown() override { return QString::number(m_pEditor->currentItem()); }

    Value edited() override {
        return m_choices[static_cast<std::size_t>(m_pEditor->currentItem())];
    }

private:
    Texts m_choices;
};

class CSwitchField : public CFieldOf<qt3::CheckBox> {
public:
    CSwitchField(QWidget* parent, const char* name) : CFieldOf(new qt3::CheckBox(parent, name)) {}

    bool takesLabel(const QString& label) override {
        m_pEditor->setText(label);
        return true;
    }

protected:
    void show(const Value& value) override { m_pEditor->setChecked(std::get<bool>(value)); }
    QString shown() override { return m_pEditor->isChecked() ? "on" : "off"; }
    Value edited() override { return m_pEditor->isChecked(); }
};

class CColorField : public CFieldOf<TEVU::CColorPushButton> {
public:
    CColorField(QWidget* parent, const char* name)
        : CFieldOf(new TEVU::CColorPushButton(Qt::white, parent, name)) {}

protected:
    void show(const Value& value) override {
        m_pEditor->setColor(QColor(qt3::fromAscii(std::get<std::string>(value))));
    }

    QString shown() override { return m_pEditor->color().name(); }
    Value edited() override { return qt3::ascii(m_pEditor->color().name()); }
};

} // namespace

FieldPointer createField(const StTextKind&, QWidget* parent, const char* name) {
    return std::make_unique<CTextField>(parent, name);
}

FieldPointer createField(const StChoiceKind& kind, QWidget* parent, const char* name) {
    return std::make_unique<CChoiceField>(kind, parent, name);
}

FieldPointer createField(const StSwitchKind&, QWidget* parent, const char* name) {
    return std::make_unique<CSwitchField>(parent, name);
}

FieldPointer createField(const StColorKind&, QWidget* parent, const char* name) {
    return std::make_unique<CColorField>(parent, name);
}

} // namespace autodlg
