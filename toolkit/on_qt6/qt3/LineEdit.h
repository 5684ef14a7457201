#ifndef RUQGUI_QT3_LINEEDIT_H
#define RUQGUI_QT3_LINEEDIT_H

#include <qt3/Bridged.h>

#include <qlineedit.h>

namespace qt3 {

/// QLineEdit, with the Qt 3.3 members and with copying: besides what takeOver() lists, text,
/// alignment, maximum length, frame, echo mode, read-only state and the pointer to the validator.
class RUQGUI_EXPORT LineEdit : public Bridged<QLineEdit> {
public:
    explicit LineEdit(QWidget* parent, const char* name = nullptr);
    LineEdit(const QString& text, QWidget* parent, const char* name = nullptr);
    LineEdit(const LineEdit& other);
    LineEdit& operator=(const LineEdit& other);
    ~LineEdit() override;

    bool frame() const { return hasFrame(); }
    virtual void setText(const QString& text) { QLineEdit::setText(text); }

    /// A negative length or a start outside the text deselects; a length beyond the end is cut.
    virtual void setSelection(int start, int length);

protected:
    /// A key that leaves a text which the validator rejects is undone, whatever it thought of the
    /// text before. The selection that it would have replaced is dropped.
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct StEditing {
        QString sText;
        int nCursor;
        int nStart; ///< Of the selection; -1 if there is none.
        QString sSelected;
    };

    bool isRejected() const;
    void edit(QKeyEvent* event);
    void tellChanges(const StEditing& before, bool bEdited);
};

} // namespace qt3

#endif
