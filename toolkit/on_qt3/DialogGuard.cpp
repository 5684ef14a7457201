#include "DialogGuard.h"

#include <qobjectlist.h>

namespace qt3 {

/// A child that the parent destroys before the dialog.
class DialogGuard::Sentinel : public QObject {
public:
    Sentinel(QWidget* parent, const char* dialogClass)
        : QObject(parent), m_pParent(parent), m_sDialogClass(dialogClass) {}

    // The parent that destroys its children has taken this one out before.
    ~Sentinel() override {
        if (!parent())
            freeDialog();
    }

private:
    void freeDialog() const {
        QWidget* const dialog = firstDialog();
        if (!dialog)
            return;
        m_pParent->removeChild(dialog);
        dialog->hide(); // ends its event loop
    }

    // All children made before the dialog are gone.
    QWidget* firstDialog() const {
        const QObjectList* const children = m_pParent->children();
        if (!children)
            return nullptr;
        for (QObjectListIt it(*children); it.current(); ++it) {
            if (it.current()->inherits(m_sDialogClass))
                return static_cast<QWidget*>(it.current());
        }
        return nullptr;
    }

    QWidget* const m_pParent;
    const char* const m_sDialogClass;
};

DialogGuard::DialogGuard(QWidget* parent, const char* dialogClass)
    : m_sentinel(parent ? new Sentinel(parent, dialogClass) : nullptr) {}

DialogGuard::~DialogGuard() {
    delete static_cast<QObject*>(m_sentinel);
}

} // namespace qt3
