#ifndef RUQGUI_QT3_DIALOGGUARD_H
#define RUQGUI_QT3_DIALOGGUARD_H

#include <qguardedptr.h>
#include <qobject.h>
#include <qwidget.h>

namespace qt3 {

/// Lets a modal dialog outlive its parent: when the application destroys the parent under the open
/// dialog, the dialog leaves the parent and ends without an answer. The toolkit itself would go on
/// with a destroyed one.
/// \code
/// const DialogGuard guard(parent, "QFileDialog");
/// return QFileDialog::getOpenFileName(startWith, filter, parent, name, caption);
/// \endcode
/// It must be made before the dialog: a parent destroys its children in their order.
class DialogGuard {
public:
    /// \a parent may be null: then nothing is guarded. \a dialogClass as QObject::inherits() takes
    /// it.
    DialogGuard(QWidget* parent, const char* dialogClass);
    DialogGuard(const DialogGuard&) = delete;
    DialogGuard& operator=(const DialogGuard&) = delete;
    ~DialogGuard();

private:
    class Sentinel;

    QGuardedPtr<QObject> m_sentinel;
};

} // namespace qt3

#endif
