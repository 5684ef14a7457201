#include <qt3/FileDialog.h>

#include "DialogGuard.h"

#include <qfiledialog.h>

extern bool qt_use_native_dialogs;

namespace qt3 {

namespace {

const char* const c_sDialogClass = "QFileDialog";

} // namespace

QString FileDialog::getOpenFileName(const QString& startWith, const QString& filter,
                                    QWidget* parent, const char* name, const QString& caption) {
    const DialogGuard guard(parent, c_sDialogClass);
    return QFileDialog::getOpenFileName(startWith, filter, parent, name, caption, nullptr, true);
}

QStringList FileDialog::getOpenFileNames(const QString& filter, const QString& dir, QWidget* parent,
                                         const char* name, const QString& caption) {
    const DialogGuard guard(parent, c_sDialogClass);
    return QFileDialog::getOpenFileNames(filter, dir, parent, name, caption, nullptr, true);
}

QString FileDialog::getSaveFileName(const QString& startWith, const QString& filter,
                                    QWidget* parent, const char* name, const QString& caption) {
    const DialogGuard guard(parent, c_sDialogClass);
    return QFileDialog::getSaveFileName(startWith, filter, parent, name, caption, nullptr, true);
}

void useNativeDialogs(bool use) {
    qt_use_native_dialogs = use;
}

} // namespace qt3
