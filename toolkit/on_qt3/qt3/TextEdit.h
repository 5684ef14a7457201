#ifndef RUQGUI_QT3_TEXTEDIT_H
#define RUQGUI_QT3_TEXTEDIT_H

#include <qt3/Export.h>
#include <qt3/WidgetFunctions.h>

#include <qclipboard.h>
#include <qtextedit.h>

namespace qt3 {

/// QTextEdit for plain text: what looks like markup stays as typed. With copying: besides what
/// takeOver() lists, the text and the read-only state.
///
/// paste() is reached by every way of pasting: keys, context menu, middle button. Dropped text is
/// not pasted. CR LF and CR in the pasted text are line breaks, as LF is.
class RUQGUI_EXPORT TextEdit : public QTextEdit {
public:
    explicit TextEdit(QWidget* parent, const char* name = 0);
    TextEdit(const TextEdit& other);
    TextEdit& operator=(const TextEdit& other);
    ~TextEdit();

    void paste();

protected:
    void contentsMouseReleaseEvent(QMouseEvent* event);

private:
    QClipboard::Mode m_eSource; ///< What a paste takes now: the middle button takes the selection.
};

} // namespace qt3

#endif
