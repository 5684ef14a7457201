#ifndef RUQGUI_ORUNPARAMDLG_SMALLFIELDS_H
#define RUQGUI_ORUNPARAMDLG_SMALLFIELDS_H

#include "Field.h"

#include <CColorPushButton.h>
#include <qt3/CheckBox.h>
#include <qt3/ComboBox.h>
#include <qt3/LineEdit.h>

namespace autodlg {

class CTextField : public CField {
public:
    CTextField(QWidget* parent, const char* name);
    QWidget* widget() const override;

    /// Not with a character that no byte stands for.
    bool isAcceptable(QWidget* window, const QString& label) override;

protected:
    void show(const Value& value) override;
    QString shown() override;
    Value edited() override;

private:
    qt3::LineEdit* m_pLineEdit;
};

class CChoiceField : public CField {
public:
    CChoiceField(const StChoiceKind& kind, QWidget* parent, const char* name);
    QWidget* widget() const override;

protected:
    void show(const Value& value) override;
    QString shown() override;
    Value edited() override;

private:
    Texts m_choices;
    qt3::ComboBox* m_pComboBox;
};

class CSwitchField : public CField {
public:
    CSwitchField(const std::string& label, QWidget* parent, const char* name);
    QWidget* widget() const override;
    bool hasOwnLabel() const override;

protected:
    void show(const Value& value) override;
    QString shown() override;
    Value edited() override;

private:
    qt3::CheckBox* m_pCheckBox;
};

class CColorField : public CField {
public:
    CColorField(QWidget* parent, const char* name);
    QWidget* widget() const override;

protected:
    void show(const Value& value) override;
    QString shown() override;
    Value edited() override;

private:
    TEVU::CColorPushButton* m_pButton;
};

} // namespace autodlg

#endif
