#include "RememberedPaths.h"

#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueString.h>
#include <typeinfo>

namespace TEVU {

namespace {

const char* const c_sLoadingDir = "main/globalsettings/IO/loadingdir";
const char* const c_sSavingDir = "main/globalsettings/IO/savingdir";
const char* const c_sLastImages[] = {
    "main/globalsettings/IO/lastimage0", "main/globalsettings/IO/lastimage1",
    "main/globalsettings/IO/lastimage2", "main/globalsettings/IO/lastimage3"};

bool isStored(const char* key) {
    return CRegistry::Obj().HasEntry(key, typeid(CValueString));
}

std::string stored(const char* key) {
    return CRegistry::Obj().GetString(key, "");
}

void store(const char* key, const std::string& text) {
    CRegistry::Obj().SetEntry(key, new CValueString(text));
}

} // namespace

bool hasLoadingDirectory() {
    return isStored(c_sLoadingDir);
}

bool hasSavingDirectory() {
    return isStored(c_sSavingDir);
}

std::string loadingDirectory() {
    return stored(c_sLoadingDir);
}

std::string savingDirectory() {
    return stored(c_sSavingDir);
}

void rememberLoadingDirectory(const std::string& directory) {
    store(c_sLoadingDir, directory);
}

void rememberSavingDirectory(const std::string& directory) {
    store(c_sSavingDir, directory);
}

void forgetSavingDirectory() {
    if (CRegistry::Obj().HasEntry(c_sSavingDir))
        CRegistry::Obj().RemoveEntry(c_sSavingDir);
}

// Oldest first, so that no entry is overwritten before it has moved on.
void pushLastImage(const std::string& path) {
    for (int slot = 3; slot > 0; --slot)
        store(c_sLastImages[slot], stored(c_sLastImages[slot - 1]));
    store(c_sLastImages[0], path);
}

} // namespace TEVU
