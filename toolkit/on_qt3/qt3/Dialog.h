#ifndef RUQGUI_QT3_DIALOG_H
#define RUQGUI_QT3_DIALOG_H

#include <qt3/Export.h>
#include <qt3/Global.h>

#include <qdialog.h>

namespace qt3 {

/// QDialog, as a base of dialogs.
class RUQGUI_EXPORT Dialog : public QDialog {
public:
    explicit Dialog(QWidget* parent = 0, const char* name = 0, bool modal = false,
                    WFlags flags = 0);
    ~Dialog();

    /// Ends the exec() of a dialog that was destroyed while another one was open over it. To be called
    /// from its slot that had opened the other one, when that has returned.
    static void endExecOfDestroyed();
};

} // namespace qt3

#endif
