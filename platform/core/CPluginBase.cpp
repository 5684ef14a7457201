#include <ruqlib2core/CPluginBase.h>

#include "DynamicLibrary.h"
#include "FileSystem.h"

#include <ruqlib2core/CException.h>
#include <ruqlib2core/PluginExport.h>

#include <algorithm>

namespace TEVU {

namespace {

using CreateFunction = CPluginBase* (*)();
using ExportedFunction = CPluginBase* (*)(const char*, int*);

struct StPluginName {
    std::string library;
    std::string className;
};

[[noreturn]] void refuse(const std::string& message, const CException* cause = nullptr) {
    throw CException("GetNewPluginInstance", message, cause);
}

std::map<std::string, CreateFunction>& registeredPlugins() {
    static std::map<std::string, CreateFunction> plugins;
    return plugins;
}

StPluginName parse(const std::string& name) {
    const std::size_t colons = name.find("::");
    if (colons == std::string::npos || colons == 0 || colons + 2 == name.size())
        refuse("\"" + name + "\" is no plug-in name: it must be library::class");
    const StPluginName parsed = {name.substr(0, colons), name.substr(colons + 2)};
    if (parsed.library.find_first_of("/\\") != std::string::npos)
        refuse("\"" + name + "\" is no plug-in name: the library is a name, not a path");
    return parsed;
}

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(separator, begin), text.size());
        if (end > begin) // an empty part is not the current folder
            parts.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return parts;
}

std::vector<std::string> searchedFolders() {
    std::vector<std::string> folders =
        split(FileSystem::environmentVariable("RUQ_PLUGIN_PATH"), DynamicLibrary::c_cPathSeparator);
    const std::string own = DynamicLibrary::folderOfThisLibrary();
    if (!own.empty()) {
        folders.push_back(own + "/" + RUQLIB2CORE_PLUGINS_FROM_LIBRARY);
        folders.push_back(own);
    }
    const std::string program = DynamicLibrary::folderOfTheProgram();
    if (!program.empty() && program != own)
        folders.push_back(program);
    return folders;
}

std::string pathOf(const std::string& library, const std::string& folder) {
    return folder + "/" + library + DynamicLibrary::c_sEnding;
}

std::string findLibrary(const std::string& library) {
    std::string searched;
    for (const std::string& folder : searchedFolders()) {
        const std::string path = pathOf(library, folder);
        if (FileSystem::exists(path))
            return path;
        searched.append(searched.empty() ? "" : ", ").append(folder);
    }
    refuse("there is no library " + library + DynamicLibrary::c_sEnding + " in " + searched);
}

/// Why the library is no plug-in library of this interface; empty when it is one.
std::string objectionTo(ExportedFunction exported) {
    if (!exported)
        return "is no plug-in library: it does not export " RUQ_PLUGIN_FUNCTION_NAME;
    int version = 0;
    exported(nullptr, &version);
    if (version == RUQ_PLUGIN_INTERFACE_VERSION)
        return std::string();
    return "has version " + std::to_string(version) + " of the plug-in interface, expected is " +
           std::to_string(RUQ_PLUGIN_INTERFACE_VERSION);
}

ExportedFunction loadPluginLibrary(const std::string& path) {
    void* library = DynamicLibrary::load(path);
    const auto exported =
        reinterpret_cast<ExportedFunction>(DynamicLibrary::find(library, RUQ_PLUGIN_FUNCTION_NAME));
    const std::string objection = objectionTo(exported);
    if (!objection.empty()) {
        DynamicLibrary::unload(library);
        refuse(path + ": " + objection);
    }
    return exported;
}

/// A new object by \a create. \a what names it, \a ifNull is said when \a create gives none.
template <class Create>
CPluginBase* newInstance(const std::string& what, const std::string& ifNull, Create create) {
    CPluginBase* instance = nullptr;
    try {
        instance = create();
    } catch (const CException& failure) {
        refuse(what + ": " + failure.what(), &failure);
    } catch (const std::exception& failure) {
        refuse(what + ": " + failure.what());
    } catch (...) {
        refuse(what + ": an exception of an unknown type");
    }
    if (!instance)
        refuse(what + ": " + ifNull);
    return instance;
}

} // namespace

CPluginBase::CPluginBase() = default;
CPluginBase::~CPluginBase() = default;

CPluginBase* GetNewPluginInstance(const char* name) {
    const std::string fullName = name ? name : "";
    const auto registered = registeredPlugins().find(fullName);
    if (registered != registeredPlugins().end())
        return newInstance(fullName, "the registered function creates nothing", registered->second);
    const StPluginName parsed = parse(fullName);
    const std::string path = findLibrary(parsed.library);
    const ExportedFunction exported = loadPluginLibrary(path);
    const std::string what = path + ": class \"" + parsed.className + "\"";
    return newInstance(what, "there is none, or it creates nothing", [&] {
        int version = 0;
        return exported(parsed.className.c_str(), &version);
    });
}

void RegisterPlugin(const char* name, CPluginBase* (*create)()) {
    if (create)
        registeredPlugins()[name ? name : ""] = create;
    else
        registeredPlugins().erase(name ? name : "");
}

} // namespace TEVU
