#ifndef RUQGUI_FILES_REMEMBEREDPATHS_H
#define RUQGUI_FILES_REMEMBEREDPATHS_H

#include <string>

namespace TEVU {

/// The directories and images that the settings registry remembers between dialogs and processes.
/// An entry that is no string counts as
/// missing; a missing one reads as empty.
bool hasLoadingDirectory();
bool hasSavingDirectory();
std::string loadingDirectory();
std::string savingDirectory();
void rememberLoadingDirectory(const std::string& directory);
void rememberSavingDirectory(const std::string& directory);
void forgetSavingDirectory();

/// Pushes a path onto the history of the last four images. The newest stands first; a path that is
/// there already stands there twice.
void pushLastImage(const std::string& path);

} // namespace TEVU

#endif
