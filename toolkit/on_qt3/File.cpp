#include <qt3/File.h>

#include <cstdio>
#include <qdir.h>
#include <qfile.h>
#include <qfileinfo.h>

namespace qt3 {

namespace {

// As many links in a row as Linux follows.
const int c_nMaxLinks = 40;

QString linkTarget(const QFileInfo& link) {
    const QString target = link.readLink();
    return QDir::isRelativePath(target) ? link.dirPath(true) + "/" + target : target;
}

QString withoutLinks(QString name) {
    for (int link = 0; link < c_nMaxLinks && QFileInfo(name).isSymLink(); ++link)
        name = linkTarget(QFileInfo(name));
    return name;
}

} // namespace

bool exists(const QString& name) {
    return !name.isEmpty() && QFile::exists(name);
}

bool isReadable(const QString& name) {
    return QFileInfo(name).isReadable();
}

bool isWritable(const QString& name) {
    return QFileInfo(name).isWritable();
}

// Not QFile: it cannot be told to open only what it has made itself.
bool canCreate(const QString& name) {
    if (name.isEmpty())
        return false;
    const QString target = withoutLinks(name);
    std::FILE* const file = std::fopen(QFile::encodeName(target), "w+x");
    if (!file)
        return false;
    std::fclose(file);
    QFile::remove(target);
    return true;
}

QString dirPath(const QString& name) {
    return QFileInfo(name).dirPath(false);
}

bool isRelative(const QString& name) {
    return QFileInfo(name).isRelative();
}

bool isInExistingDir(const QString& name) {
    return QFileInfo(name).dir(false).exists();
}

QString homeDirPath() {
    return QDir::homeDirPath();
}

} // namespace qt3
