#include "FileChecks.h"

#include <qt3/File.h>
#include <qt3/MessageBox.h>

namespace TEVU {

bool isReadable(const QString& name) {
    return qt3::isReadable(name);
}

bool isWritable(const QString& name) {
    return qt3::exists(name) ? qt3::isWritable(name) : qt3::canCreate(name);
}

bool passesOrCancelled(bool (*test)(const QString&), const QString& name, QWidget* parent,
                       const char* caption, const char* text) {
    while (!test(name)) {
        const int answer =
            qt3::MessageBox::warning(parent, caption, QString(text).arg(name),
                                     qt3::MessageBox::Cancel | qt3::MessageBox::Escape,
                                     qt3::MessageBox::Retry | qt3::MessageBox::Default);
        if (answer != qt3::MessageBox::Retry)
            return false;
    }
    return true;
}

void warnAboutNonAsciiName(const QString& name, QWidget* parent) {
    qt3::MessageBox::warning(
        parent, "Not an ASCII filename",
        QString("Not an ASCII filename, it contains special (unicode) characters.\nNon-ASCII "
                "filenames are not supported (yet), please change the name of the file: %1")
            .arg(name),
        qt3::MessageBox::Ok | qt3::MessageBox::Default, 0);
}

} // namespace TEVU
