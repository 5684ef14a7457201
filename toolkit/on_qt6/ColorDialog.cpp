#include <qt3/ColorDialog.h>

#include <QColorDialog>
#include <QPointer>

namespace qt3 {

QColor ColorDialog::getColor(const QColor& initial, QWidget* parent, const char* name) {
    const QPointer<QColorDialog> dialog = new QColorDialog(initial, parent);
    dialog->setObjectName(QLatin1String(name));
    dialog->setWindowTitle("Select color");
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    const QColor chosen = dialog && accepted ? dialog->selectedColor() : QColor();
    delete dialog;
    return chosen;
}

} // namespace qt3
