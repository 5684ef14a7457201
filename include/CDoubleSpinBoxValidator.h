#ifndef RUQGUI_CDOUBLESPINBOXVALIDATOR_H
#define RUQGUI_CDOUBLESPINBOXVALIDATOR_H

#include <qt3/DoubleValidator.h>

namespace TEVU {

class CDoubleSpinBox;

/// Keeps characters that cannot form a number out of a double spin box, between its prefix and its
/// suffix. Each CDoubleSpinBox makes its own; use CDoubleSpinBox::setValidator() for another rule.
/// \code
/// TEVU::CDoubleSpinBox width;
/// width.setSuffix(" mm");
/// QString text("2.5 mm");
/// int position = 0;
/// width.validator()->validate(text, position); // QValidator::Acceptable
/// \endcode
///
/// Invariants:
/// 1. It has the limits of a fresh double validator, not the range of its spin box: numbers outside
///    the range can be typed, and the spin box clamps them.
/// 2. It never changes the text.
///
/// It must not outlive its spin box, of which it is a child, unless it is detached.
class RUQGUI_EXPORT CDoubleSpinBoxValidator : public qt3::DoubleValidator {
    Q_OBJECT

public:
    /// \param spinBox the parent; it tells prefix, suffix and special text
    CDoubleSpinBoxValidator(CDoubleSpinBox* spinBox, const char* name);
    CDoubleSpinBoxValidator(const CDoubleSpinBoxValidator&) = delete;
    CDoubleSpinBoxValidator& operator=(const CDoubleSpinBoxValidator&) = delete;
    ~CDoubleSpinBoxValidator() override;

    /// Without prefix and suffix, the answer of a double validator to the whole text; so a special
    /// text of letters cannot be typed then. Otherwise, between the whole prefix and the whole
    /// suffix (or the suffix without the white space around it), its answer to what stands there.
    /// Otherwise its answer to the whole text; where that is Invalid, Acceptable for the special
    /// text and Intermediate for the beginning of it, white space around them aside.
    QValidator::State validate(QString& text, int& position) const override;

    /// Forgets the spin box: from now on a double validator like any other.
    void detach();

private:
    QValidator::State validatePart(QString& text, int& position, int start, int length) const;

    const CDoubleSpinBox* m_pSpinBox; ///< Null once detached.
};

} // namespace TEVU

#endif
