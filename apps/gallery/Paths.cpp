#include "Paths.h"

#include <qfile.h>
#include <qt3/Application.h>

std::string dataFile(const std::string& name) {
    const auto folder = QFile::encodeName(qApp->applicationDirPath());
    return std::string(folder.data()) + "/" GALLERY_DATA_FROM_PROGRAM "/" + name;
}

std::string lastPart(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1); // npos + 1 is 0
}
