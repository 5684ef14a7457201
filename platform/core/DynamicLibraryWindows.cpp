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

void* load(const std::string& path) {
    std::string native = path;
    std::replace(native.begin(), native.end(), '/',
                 '\\'); // the loader insists on its own separator
    // With this flag, what the plug-in needs is looked for beside the plug-in.
    HMODULE library =
        ::LoadLibraryExW(toWide(native).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
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
