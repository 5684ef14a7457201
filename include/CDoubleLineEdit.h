#ifndef RUQGUI_CDOUBLELINEEDIT_H
#define RUQGUI_CDOUBLELINEEDIT_H

#include <memory>
#include <qt3/LineEdit.h>

namespace qt3 {
class DoubleValidator;
}

namespace TEVU {

/// A right-aligned field for one floating-point number, shown with a fixed number of decimals.
///
/// Good for a plain number in a form, without range, steps and unit; CDoubleSpinBox has those. Every
/// number is accepted, and typing is never blocked: Return, or asking for Value(), reads what was
/// typed, shows it with the decimals of the field, and puts the last good number back if it is no
/// number. Losing the focus does not read.
/// \code
/// TEVU::CDoubleLineEdit* spacing = new TEVU::CDoubleLineEdit(2.5, 3, form, "spacing");
/// // shows 2.500; the user types 7.12345 and Return: shows 7.123
/// const double shown = spacing->Value(); // 7.123, and writes it to standard output
/// \endcode
///
/// Invariants:
/// 1. The stored value is the last number that was set or read, with all its digits. Only the text
///    is rounded; Value() returns what the text says.
/// 2. Decimal point and digits are those of the C locale, whatever the locale.
///
/// It has the signals of a line edit and no more: textChanged() follows whenever the text becomes
/// another one, from code too. GUI thread only. A copy is a field of its own beside the original,
/// with the same text, value and precision.
class RUQGUI_EXPORT CDoubleLineEdit : public qt3::LineEdit {
    Q_OBJECT

public:
    /// Starts empty, with the stored value 0 and two decimals.
    explicit CDoubleLineEdit(QWidget* parent = 0, const char* name = 0);

    /// Shows \a value. \param precision digits after the point, at most 32767; 0 for no point, less
    /// for 6 digits
    CDoubleLineEdit(double value, int precision, QWidget* parent, const char* name);

    CDoubleLineEdit(const CDoubleLineEdit& other);
    CDoubleLineEdit& operator=(const CDoubleLineEdit& other);
    ~CDoubleLineEdit() override;

    /// Reads the field and shows the number with the field's decimals.
    ///
    /// With a null \a ok nothing is read: the stored value is shown. Otherwise \a ok tells whether
    /// the text is a number, and is not looked at before; the number becomes the stored value, or the
    /// stored value stays. After the text was set, textChanged() comes once more, with the text that
    /// stood there before, even if that has not changed.
    void SetText(bool* ok);

public slots:
    /// Reads the field as ValidateInput() does, writes the number to standard output, in a line of
    /// its own with the stream's default format, and returns it: the number shown, or the stored
    /// value if the text was no number.
    double Value();

    void SetValue(double dValue); ///< Stores and shows the number.

    void SetToDouble(); ///< SetValue(14.44): a sample number.

protected slots:
    /// Runs on Return. SetText(), so textChanged() follows with the new text, if that differs, and
    /// with the old one in any case. Returns whether the text was a number.
    bool ValidateInput();

protected:
    /// \a v in fixed notation with the field's decimals.
    QString ValueToText(double v) const;

    /// The number in the field; the stored value, and false in \a ok, if the text is none.
    double TextToValue(bool* ok) const;

private:
    void init(double v);
    void readOnReturn();

    double m_dValue;  ///< The last number set or read.
    int m_nPrecision; ///< Digits after the point.
    QString m_sText;  ///< What init(), SetValue() or SetToDouble() showed last.
    std::unique_ptr<qt3::DoubleValidator> m_pValidator; ///< Asked, but not installed.
};

} // namespace TEVU

#endif
