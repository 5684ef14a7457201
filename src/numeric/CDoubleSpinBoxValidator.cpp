#include "CDoubleSpinBoxValidator.h"

#include "CDoubleSpinBox.h"
#include "DoubleSpinBoxText.h"

namespace TEVU {

CDoubleSpinBoxValidator::CDoubleSpinBoxValidator(CDoubleSpinBox* spinBox, const char* name)
    : qt3::DoubleValidator(spinBox, name), m_pSpinBox(spinBox) {}

CDoubleSpinBoxValidator::~CDoubleSpinBoxValidator() = default;

QValidator::State CDoubleSpinBoxValidator::validate(QString& text, int& position) const {
    if (!m_pSpinBox)
        return DoubleValidator::validate(text, position);
    const StAffixes affixes = {m_pSpinBox->prefix(), m_pSpinBox->suffix()};
    if (affixes.isEmpty())
        return DoubleValidator::validate(text, position);
    const StTextPart part = numberPart(text, affixes);
    if (part.isPresent())
        return validatePart(text, position, part.nStart, part.nLength);
    const QValidator::State state = DoubleValidator::validate(text, position);
    return state == QValidator::Invalid ? specialTextState(text, m_pSpinBox->specialValueText())
                                        : state;
}

QValidator::State CDoubleSpinBoxValidator::validatePart(QString& text, int& position, int start,
                                                        int length) const {
    QString part = text.mid(start, length);
    int partPosition = position - start;
    const QValidator::State state = DoubleValidator::validate(part, partPosition);
    position = partPosition + start;
    text.replace(start, length, part);
    return state;
}

void CDoubleSpinBoxValidator::detach() {
    m_pSpinBox = nullptr;
}

} // namespace TEVU
