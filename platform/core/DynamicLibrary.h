#ifndef RUQLIB2CORE_DYNAMICLIBRARY_H
#define RUQLIB2CORE_DYNAMICLIBRARY_H

#include <string>

namespace TEVU {

/// What plug-ins need of the operating system, once for each system.
namespace DynamicLibrary {

using Function = void (*)();

extern const char* const c_sEnding; ///< Of the name of a shared object, with its point.
extern const char c_cPathSeparator; ///< Between the folders in $RUQ_PLUGIN_PATH.

/// Loads a shared object; a CException with the system's reason when that fails.
void* load(const std::string& path);
void unload(void* library);

/// The exported function; null when there is none of that name.
Function find(void* library, const char* name);

/// The folders of this library and of the program; empty when the system does not tell.
std::string folderOfThisLibrary();
std::string folderOfTheProgram();

} // namespace DynamicLibrary
} // namespace TEVU

#endif
