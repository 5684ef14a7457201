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
};

} // namespace qt3

#endif
