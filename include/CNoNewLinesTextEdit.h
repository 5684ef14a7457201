#ifndef RUQGUI_CNONEWLINESTEXTEDIT_H
#define RUQGUI_CNONEWLINESTEXTEDIT_H

#include <qt3/Export.h>
#include <qt3/TextEdit.h>

namespace TEVU {

/// A text edit that has no line breaks after a paste, whatever was pasted.
///
/// Good for text that is one line by its meaning but is wrapped to be read, such as a title or a long
/// path. It filters nothing else: typed line breaks and those set by code stay until the next paste.
/// \code
/// auto* title = new TEVU::CNoNewLinesTextEdit(this, "title");
/// \endcode
/// GUI thread only. A copy takes over what the base takes over.
class RUQGUI_EXPORT CNoNewLinesTextEdit : public qt3::TextEdit {
    Q_OBJECT

public:
    CNoNewLinesTextEdit(QWidget* parent, const char* name);
    CNoNewLinesTextEdit(const CNoNewLinesTextEdit& other);
    CNoNewLinesTextEdit& operator=(const CNoNewLinesTextEdit& other);
    ~CNoNewLinesTextEdit();

public slots:
    /// Pastes, then removes every carriage return and line feed of the whole text and sets it anew:
    /// textChanged() comes also when nothing was pasted, the cursor goes to the start, and nothing can
    /// be undone; only a read-only edit that keeps its text may stay as it is. Every way of pasting comes
    /// here: keys, context menu, middle button. Dropped text does not.
    void paste() override;
};

} // namespace TEVU

#endif
