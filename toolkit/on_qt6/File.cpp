#include <qt3/File.h>

#include "FileNames.h"

#include <qdir.h>
#include <qfile.h>
#include <qfileinfo.h>

namespace qt3 {

namespace {

// As many links in a row as Linux follows.
const int c_nMaxLinks = 40;

QString withoutLinks(QString name) {
    for (int link = 0; link < c_nMaxLinks && QFileInfo(name).isSymLink(); ++link)
        name = QFileInfo(name).symLinkTarget();
    return name;
}

} // namespace

bool exists(const QString& name) {
    return QFile::exists(onDisk(name));
}

bool isReadable(const QString& name) {
    return QFileInfo(onDisk(name)).isReadable();
}

bool isWritable(const QString& name) {
    return QFileInfo(onDisk(name)).isWritable();
}

bool canCreate(const QString& name) {
    QFile file(withoutLinks(onDisk(name)));
    if (name.isEmpty() || !file.open(QIODevice::ReadWrite | QIODevice::NewOnly))
        return false;
    file.close();
    file.remove();
    return true;
}

QString dirPath(const QString& name) {
    return name.isEmpty() ? QString(".") : QFileInfo(name).path();
}

bool isRelative(const QString& name) {
    return QFileInfo(onDisk(name)).isRelative();
}

bool isInExistingDir(const QString& name) {
    return QFileInfo(onDisk(name)).dir().exists();
}

QString homeDirPath() {
    return qEnvironmentVariableIsSet("HOME") ? QFile::decodeName(qgetenv("HOME"))
                                             : QDir::homePath();
}

} // namespace qt3
