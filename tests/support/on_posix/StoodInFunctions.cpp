#include "StoodInFunctions.h"

#include <qt3/ColorDialog.h>
#include <qt3/File.h>
#include <qt3/FileDialog.h>
#include <qt3/MessageBox.h>

// A program's own definition of a function goes before that of the shared library, for all callers.
namespace qt3 {

QString FileDialog::getOpenFileName(const QString& startWith, const QString& filter,
                                    QWidget* parent, const char* name, const QString& caption) {
    return stand_in::getOpenFileName(startWith, filter, parent, name, caption);
}

QStringList FileDialog::getOpenFileNames(const QString& filter, const QString& dir, QWidget* parent,
                                         const char* name, const QString& caption) {
    return stand_in::getOpenFileNames(filter, dir, parent, name, caption);
}

QString FileDialog::getSaveFileName(const QString& startWith, const QString& filter,
                                    QWidget* parent, const char* name, const QString& caption) {
    return stand_in::getSaveFileName(startWith, filter, parent, name, caption);
}

void useNativeDialogs(bool use) {
    stand_in::useNativeDialogs(use);
}

int MessageBox::warning(QWidget* parent, const QString& caption, const QString& text, int button0,
                        int button1, int button2) {
    return stand_in::warning(parent, caption, text, button0, button1, button2);
}

int MessageBox::information(QWidget* parent, const QString& caption, const QString& text,
                            int button0, int button1, int button2) {
    return stand_in::information(parent, caption, text, button0, button1, button2);
}

QColor ColorDialog::getColor(const QColor& initial, QWidget* parent, const char* name) {
    return stand_in::getColor(initial, parent, name);
}

bool exists(const QString& name) {
    return stand_in::exists(name);
}

bool isReadable(const QString& name) {
    return stand_in::isReadable(name);
}

bool isWritable(const QString& name) {
    return stand_in::isWritable(name);
}

bool canCreate(const QString& name) {
    return stand_in::canCreate(name);
}

bool isInExistingDir(const QString& name) {
    return stand_in::isInExistingDir(name);
}

} // namespace qt3

// The linker takes this file into a program because of this function.
void stand_in::takePlaces() {}
