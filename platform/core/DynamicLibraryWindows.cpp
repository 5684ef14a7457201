#include "DynamicLibrary.h"

#include "FileSystem.h"
#include "WideText.h"

#include <ruqlib2core/CException.h>

#include <algorithm>
#include <system_error>
#include <windows.h>

namespace TEVU {
namespace DynamicLibrary {

const char* const c_sEnding = ".dll";
const char c_cPathSeparator = ';';

namespace {

/// What the plug-in needs is looked for beside the plug-in instead of beside the program; and if it is not
/// all there, as for every library.
HMODULE loadWithWhatItNeeds(const std::wstring& path) {
    const HMODULE library = ::LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (library || ::GetLastError() != ERROR_MOD_NOT_FOUND)
        return library;
    return ::LoadLibraryExW(path.c_str(), nullptr, 0);
}

} // namespace

void* load(const std::string& path) {
    std::string native = path;
    std::replace(native.begin(), native.end(), '/',
                 '\\'); // the loader insists on its own separator
    HMODULE library = loadWithWhatItNeeds(toWide(native));
    if (!library) {
        const int error = static_cast<int>(::GetLastError());
        throw CException("GetNewPluginInstance",
                         path + ": cannot be loaded: " + std::system_category().message(error));
    }
    return library;
}

void unload(void* library) {
    ::FreeLibrary(static_cast<HMODULE>(library));
}

Function find(void* library, const char* name) {
    // By way of void*: the compiler warns of every other cast between function types.
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(library), name)));
}

namespace {

/// Null is the program.
std::string folderOfModule(HMODULE module) {
    wchar_t path[MAX_PATH];
    const DWORD length = ::GetModuleFileNameW(module, path, MAX_PATH);
    return length > 0 && length < MAX_PATH ? FileSystem::folderOf(toUtf8(path)) : std::string();
}

} // namespace

std::string folderOfThisLibrary() {
    HMODULE module = nullptr;
    const DWORD flags =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (!::GetModuleHandleExW(flags, reinterpret_cast<const wchar_t*>(&c_sEnding), &module))
        return std::string();
    return folderOfModule(module);
}

std::string folderOfTheProgram() {
    return folderOfModule(nullptr);
}

} // namespace DynamicLibrary
} // namespace TEVU
