#ifndef RUQGUI_CDOUBLESPINBOX_H
#define RUQGUI_CDOUBLESPINBOX_H

#include "CRangeControl.h"

#include <qt3/Pointer.h>
#include <qt3/Widget.h>

class QValidator;

namespace qt3 {
class LineEdit;
}

namespace TEVU {

class CDoubleSpinBoxValidator;
struct StDoubleSpinBoxPrivate;

/// A field with an up and a down button for one floating-point number of a range.
///
/// Good for a number that users type or nudge, with a unit behind it if you like. Not for whole
/// numbers (the toolkit's spin box does those) and not where a fixed number of decimals must show:
/// the text has at most six significant digits and no trailing zeros. For a field without a range
/// and with fixed decimals see CDoubleLineEdit.
/// \code
/// TEVU::CDoubleSpinBox* width = new TEVU::CDoubleSpinBox(0.0, 10.0, 0.5, form, "width");
/// width->setSuffix(" mm");
/// width->setSpecialValueText("auto"); // shown at 0
/// connect(width, SIGNAL(valueChanged(double)), this, SLOT(setWidth(double)));
/// \endcode
///
/// Users step with the buttons, with Up, Down and the mouse wheel (a step a notch), or type. What is
/// typed is read back, "interpreted", on Return, Enter, Tab, when the editor loses the focus or is
/// hidden, before a step, by value(), and by all that shows the value anew: the setters of the range,
/// of the texts, of wrapping and of the enabled state. setValue() alone drops it. Text that is neither
/// a number nor the special text gives way to the text of the value in force; nothing is said. A
/// number outside the range is clamped. Page Up and Page Down do nothing.
///
/// Invariants:
/// 1. Those of CRangeControl.
/// 2. Unless there is pending text, the editor shows currentValueText().
/// 3. valueChanged(double), then valueChanged(const QString&), come once for each change of the
///    value, after the display has followed, and never without a change.
/// 4. A button is enabled when the widget is, and wrapping is on or the value is not at that end.
///
/// Where one number is shown with fewer digits than it has, the digits beyond stay as long as
/// nothing interprets the text. One oddity belongs to it: in a visible box that has the focus and a
/// prefix or a suffix, a change of the value selects the number, and that interprets the text that
/// was just shown. The value then becomes the number shown, with a second pair of signals. Where that
/// would go on for ever, as in a reversed range or with what is not a number, it ends when a value comes
/// for the second time, and after ten changes at the latest.
///
/// A copy has the same range, texts and flags, and works on the editor and the buttons of the
/// original: they stay the original's children, and their signals go to the original. Of the two,
/// either may be destroyed first; what is left without an editor keeps its value and shows nothing.
///
/// GUI thread only. The state of the wheel is one for all double spin boxes of the process.
class RUQGUI_EXPORT CDoubleSpinBox : public qt3::Widget, public CRangeControl {
    Q_OBJECT

public:
    /// What the buttons show.
    enum ButtonSymbols { UpDownArrows = 0, PlusMinus = 1 };

    /// Range [0, 99], line step 1, page step 10, value 0.
    explicit CDoubleSpinBox(QWidget* parent = 0, const char* name = 0);

    /// The range as given, even when reversed; the absolute value of \a step as both steps; the
    /// value is \a minValue, clamped by bound().
    CDoubleSpinBox(double minValue, double maxValue, double step, QWidget* parent,
                   const char* name);

    CDoubleSpinBox(const CDoubleSpinBox& other);
    CDoubleSpinBox& operator=(const CDoubleSpinBox& other);
    ~CDoubleSpinBox() override;

    /// The value. Pending text is interpreted first, which may emit both signals from in here.
    double value() const;

    double minValue() const;
    double maxValue() const;
    double lineStep() const;

    // The virtual functions keep their order: programs find them by it.
    virtual QString prefix() const;
    virtual QString suffix() const;
    QString specialValueText() const;
    bool wrapping() const;
    ButtonSymbols buttonSymbols() const;

    /// The editor's validator: at first one that lets through what can become a number.
    const QValidator* validator() const;

    /// The editor's text as it stands.
    QString text() const;

    /// text() without prefix and suffix and without the white space around what is left.
    virtual QString cleanText() const;

    QRect upRect() const;   ///< The up button, in the coordinates of this widget.
    QRect downRect() const; ///< The down button, in the coordinates of this widget.

    /// Wide enough for the text of either end, or for the special text.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Moves the other end if it lies below. Whatever changes the range shows the value anew; when
    /// that moves the value into the range, both signals follow. Pending text is interpreted and
    /// announced, but then the value from before comes back, with both signals again.
    void setMinValue(double minimum);
    void setMaxValue(double maximum); ///< As setMinValue(), moving an end that lies above.
    void setLineStep(double step);    ///< The absolute value counts. The page step stays.

    /// The text to show instead of the number while the value is the minimum; empty for none.
    /// Without prefix and suffix it cannot be typed if it is no number: the validator is in the way.
    virtual void setSpecialValueText(const QString& special);

    /// On: a step that would pass an end goes to the other end, without carrying the rest over.
    virtual void setWrapping(bool on);

    virtual void setButtonSymbols(ButtonSymbols symbols); ///< Nothing happens for those in force.

    /// Stays the caller's. Null: anything can be typed.
    virtual void setValidator(const QValidator* newValidator);

public slots:
    /// Drops pending text. A number of at most the double epsilon counts as 0. The range clamps it.
    /// If the value changes: updateDisplay(), valueChanged(double), valueChanged(const QString&).
    /// The display follows once more in any case.
    virtual void setValue(double dValue);

    virtual void setPrefix(const QString& text); ///< Shows the value anew.
    virtual void setSuffix(const QString& text); ///< Shows the value anew.

    /// Interprets pending text, then adds the line step: stops at the maximum, or goes to the
    /// minimum if wrapping is on and the step would pass the maximum.
    virtual void stepUp();
    virtual void stepDown(); ///< stepUp() in the other direction.

    /// The buttons follow; also when a parent is enabled or disabled.
    void setEnabled(bool enabled) override;

    /// Selects the number, or the whole text if there is no prefix and suffix or if it is the
    /// special text. With a prefix or a suffix this interprets pending text.
    virtual void selectAll();

signals:
    void valueChanged(double dValue);
    void valueChanged(const QString& valueText); ///< With prefix and suffix, or the special text.

protected slots:
    void textChanged(); ///< The editor's text is pending from now on.

protected:
    /// The special text at the minimum if there is one, else the number between prefix and suffix.
    /// As value() it interprets pending text.
    QString currentValueText();

    /// The number in the editor, alone or with prefix and suffix. Otherwise 0, and \a ok is false.
    virtual double mapTextToValue(bool* ok);

    /// At most six significant digits, with an exponent for what is very large or small.
    virtual QString mapValueToText(double v);

    /// Shows the value, puts the cursor before the suffix, paints the editor at once if it shows
    /// anything else, and enables the buttons that can step. Afterwards no text is pending.
    virtual void updateDisplay();

    /// Makes the editor's text the value with setValue() if it is a number or the special text, and
    /// shows the value in any case.
    virtual void interpretText();

    void valueChange() override; ///< updateDisplay(), then both signals.
    void rangeChange() override; ///< updateDisplay().

    bool eventFilter(QObject* watched, QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void styleChange(QStyle& style) override;

private:
    void buildChildren();
    void shareChildren(const CDoubleSpinBox& other);
    int longestTextWidth() const;
    void showCurrentText();
    bool isPainted(const QString& shown) const;
    int cursorPositionIn(const QString& shown) const;
    void enableButtons();
    bool filterKey(QKeyEvent* event);

    QString m_sPrefix;
    QString m_sSuffix;
    QString m_sSpecialValueText;
    bool m_bEdited : 1; ///< The editor's text is pending: not yet read back into the value.
    bool m_bWrapping : 1;
    qt3::Pointer<qt3::LineEdit> m_pEditor;              ///< Of a copy, the original's.
    void* m_pReserved;                                  ///< For later extension; always null.
    StDoubleSpinBoxPrivate* m_pPrivate;                 ///< Owned.
    qt3::Pointer<CDoubleSpinBoxValidator> m_pValidator; ///< Of a copy, the original's.
};

} // namespace TEVU

#endif
