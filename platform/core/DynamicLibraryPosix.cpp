#include "DynamicLibrary.h"

#include "FileSystem.h"

#include <ruqlib2core/CException.h>

#include <cstdlib>
#include <dlfcn.h>
#include <memory>

namespace TEVU {
namespace DynamicLibrary {

const char* const c_sEnding = ".so";
const char c_cPathSeparator = ':';

void* load(const std::string& path) {
    void* library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library)
        throw CException("GetNewPluginInstance", path + ": cannot be loaded: " + ::dlerror());
    return library;
}

void unload(void* library) {
    ::dlclose(library);
}

Function find(void* library, const char* name) {
    return reinterpret_cast<Function>(::dlsym(library, name));
}

namespace {

std::string folderOfReal(const char* path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path, nullptr), &std::free);
    return real ? FileSystem::folderOf(real.get()) : std::string();
}

} // namespace

std::string folderOfThisLibrary() {
    Dl_info info = {};
    if (!::dladdr(reinterpret_cast<const void*>(&c_sEnding), &info) || !info.dli_fname)
        return std::string();
    return folderOfReal(info.dli_fname);
}

std::string folderOfTheProgram() {
    return folderOfReal("/proc/self/exe");
}

} // namespace DynamicLibrary
} // namespace TEVU
