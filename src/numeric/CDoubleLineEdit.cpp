#include "CDoubleLineEdit.h"

#include <iostream>
#include <qt3/DoubleValidator.h>
#include <qt3/Text.h>

namespace TEVU {

namespace {

const int c_nDefaultPrecision = 2;
const double c_dSample = 14.44;

} // namespace

CDoubleLineEdit::CDoubleLineEdit(QWidget* parent, const char* name)
    : qt3::LineEdit(parent, name), m_dValue(0.0), m_nPrecision(c_nDefaultPrecision),
      m_pValidator(new qt3::DoubleValidator(nullptr)) {
    setAlignment(Qt::AlignRight);
    readOnReturn();
}

CDoubleLineEdit::CDoubleLineEdit(double value, int precision, QWidget* parent, const char* name)
    : qt3::LineEdit(parent, name), m_dValue(value), m_nPrecision(precision),
      m_pValidator(new qt3::DoubleValidator(nullptr)) {
    setAlignment(Qt::AlignRight);
    init(value);
    readOnReturn();
}

CDoubleLineEdit::CDoubleLineEdit(const CDoubleLineEdit& other)
    : qt3::LineEdit(other), m_dValue(other.m_dValue), m_nPrecision(other.m_nPrecision),
      m_sText(other.m_sText), m_pValidator(new qt3::DoubleValidator(nullptr)) {
    readOnReturn();
}

CDoubleLineEdit& CDoubleLineEdit::operator=(const CDoubleLineEdit& other) {
    if (this == &other)
        return *this;
    m_dValue = other.m_dValue;
    m_nPrecision = other.m_nPrecision;
    m_sText = other.m_sText;
    qt3::LineEdit::operator=(other); // last: it announces the text
    return *this;
}

CDoubleLineEdit::~CDoubleLineEdit() = default;

void CDoubleLineEdit::readOnReturn() {
    connect(this, SIGNAL(returnPressed()), this, SLOT(ValidateInput()));
}

void CDoubleLineEdit::SetText(bool* ok) {
    const QString before = text();
    if (!ok) {
        setText(ValueToText(m_dValue));
        return;
    }
    m_dValue = TextToValue(ok);
    setText(ValueToText(m_dValue));
    emit textChanged(before);
}

double CDoubleLineEdit::Value() {
    const double shown = ValidateInput() ? TextToValue(nullptr) : m_dValue;
    std::cout << shown << std::endl;
    return shown;
}

void CDoubleLineEdit::SetValue(double dValue) {
    init(dValue);
}

void CDoubleLineEdit::SetToDouble() {
    SetValue(c_dSample);
}

bool CDoubleLineEdit::ValidateInput() {
    QString typed = text();
    int position = 0;
    bool bNumber = m_pValidator->validate(typed, position) != QValidator::Invalid;
    SetText(&bNumber); // has its own verdict, which counts
    return bNumber;
}

QString CDoubleLineEdit::ValueToText(double v) const {
    return qt3::number(v, 'f', m_nPrecision);
}

double CDoubleLineEdit::TextToValue(bool* ok) const {
    bool bNumber = false;
    const double number = qt3::toDouble(text(), &bNumber);
    if (ok)
        *ok = bNumber;
    return bNumber ? number : m_dValue;
}

void CDoubleLineEdit::init(double v) {
    m_dValue = v;
    m_sText = ValueToText(v);
    setText(m_sText);
}

} // namespace TEVU
