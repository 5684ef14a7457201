#include <ruqlib2core/ReplaceFile.h>

#include "FileSystem.h"

namespace TEVU {

void ReplaceFile(const std::string& path,
                 const std::function<void(const std::string& newFile)>& write) {
    // Links are followed, so that the rename does not put a file in the place of a link.
    const std::string target = FileSystem::resolveLinks(path);
    FileSystem::removeLeftBehind(target);
    FileSystem::NewFile newFile(target);
    write(newFile.Path());
    newFile.MoveToTarget();
}

} // namespace TEVU
