#ifndef RUQGUI_QT3_DIALOG_H
#define RUQGUI_QT3_DIALOG_H

#include <qt3/Bridged.h>

#include <qdialog.h>

namespace qt3 {

/// QDialog with the Qt 3.3 members, as a base of dialogs.
class RUQGUI_EXPORT Dialog : public Bridged<QDialog> {
public:
    explicit Dialog(QWidget* parent = nullptr, const char* name = nullptr, bool modal = false,
                    WFlags flags = 0);
    ~Dialog() override;

    /// Ends the exec() of a dialog that was destroyed while another one was open over it: here its
    /// destruction has.
    static void endExecOfDestroyed() {}
};

} // namespace qt3

#endif
