#ifndef RUQGUI_QT3_TEXTEDIT_H
#define RUQGUI_QT3_TEXTEDIT_H

#include <qt3/Bridged.h>

#include <qtextedit.h>

namespace qt3 {

/// QTextEdit for plain text: what looks like markup stays as typed. With the Qt 3.3 members and
/// with copying: besides what takeOver() lists, the text and the read-only state.
///
/// paste() is reached by every way of pasting: keys, context menu, middle button. Dropped text is
/// not pasted. CR LF and CR in the pasted text are line breaks, as LF is.
class RUQGUI_EXPORT TextEdit : public Bridged<QTextEdit> {
public:
    explicit TextEdit(QWidget* parent, const char* name = nullptr);
    TextEdit(const TextEdit& other);
    TextEdit& operator=(const TextEdit& other);
    ~TextEdit() override;

    /// The plain text with "\n" between the lines.
    QString text() const;

    /// Emits textChanged(); the cursor goes to the start and nothing can be undone. A read-only edit that
    /// has this very text already, which nobody has edited since it was set, stays as it is.
    void setText(const QString& text);

    virtual void paste();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    bool hasNothingToPaste() const;

    const QMimeData* m_pSource = nullptr; ///< What the toolkit is about to paste, if it began.
    bool m_bInserting = false;            ///< Mime data goes straight into the text.
};

} // namespace qt3

#endif
