#include <qt3/GroupBox.h>

#include <qt3/Layout.h>

namespace qt3 {

GroupBox::GroupBox(QWidget* parent, const char* name) : Bridged<QGroupBox>(name, parent) {}

GroupBox::GroupBox(const QString& title, QWidget* parent, const char* name)
    : Bridged<QGroupBox>(name, title, parent) {}

GroupBox::~GroupBox() = default;

void GroupBox::setColumnLayout(int strips, Qt::Orientation) {
    Q_ASSERT(strips == 0);
    Q_UNUSED(strips);
    delete layout();
    new VBoxLayout(this, 11, 0);
}

} // namespace qt3
