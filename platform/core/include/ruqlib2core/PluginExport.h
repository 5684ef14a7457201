#ifndef RUQLIB2CORE_PLUGINEXPORT_H
#define RUQLIB2CORE_PLUGINEXPORT_H

#include <ruqlib2core/CPluginBase.h>

#include <cstddef>
#include <cstring>

/// How a shared object becomes a plug-in library. One of its sources says, outside of any namespace:
/// \code
/// RUQ_EXPORT_PLUGINS(RUQ_PLUGIN_CLASS("autodlg", CAutoDialog),
///                    RUQ_PLUGIN_CLASS("textdlg", CTextDialog))
/// \endcode
/// With the file name plugwdgt_orunparamdlg.so the first is "plugwdgt_orunparamdlg::autodlg".

/// The version of the interface between the library and its plug-ins. It is raised when a plug-in built
/// against the old headers could not work any more: CPluginBase or a class of the values changed.
#define RUQ_PLUGIN_INTERFACE_VERSION 1

/// The name of the one function that a plug-in library exports.
#define RUQ_PLUGIN_FUNCTION_NAME "RuqCreatePlugin"

#if defined(_WIN32)
#define RUQ_PLUGIN_FUNCTION_EXPORT __declspec(dllexport)
#else
#define RUQ_PLUGIN_FUNCTION_EXPORT __attribute__((visibility("default")))
#endif

/// The exported function. It stores RUQ_PLUGIN_INTERFACE_VERSION as it was when the plug-in was built,
/// always, and returns a new object of the class; null when \a className is null, which only asks
/// for the version, or names no class of the library. It may throw what a constructor throws.
extern "C" RUQ_PLUGIN_FUNCTION_EXPORT TEVU::CPluginBase* RuqCreatePlugin(const char* className,
                                                                         int* interfaceVersion);

namespace TEVU {

/// A class of a plug-in library.
struct StPluginClass {
    const char* name;
    CPluginBase* (*create)();
};

template <class Plugin>
CPluginBase* newPlugin() {
    return new Plugin;
}

/// What the exported function does, for the classes of one library.
template <std::size_t count>
CPluginBase* createPlugin(const StPluginClass (&classes)[count], const char* className,
                          int* interfaceVersion) {
    *interfaceVersion = RUQ_PLUGIN_INTERFACE_VERSION;
    for (const StPluginClass& candidate : classes) {
        if (className && std::strcmp(candidate.name, className) == 0)
            return candidate.create();
    }
    return nullptr;
}

} // namespace TEVU

/// A class with a default constructor, derived from TEVU::CPluginBase, under the name that follows the
/// colons.
#define RUQ_PLUGIN_CLASS(name, className)                                                          \
    { name, TEVU::newPlugin<className> }

/// Exports the given classes. Once in a library.
#define RUQ_EXPORT_PLUGINS(...)                                                                    \
    extern "C" TEVU::CPluginBase* RuqCreatePlugin(const char* className, int* interfaceVersion) {  \
        static const TEVU::StPluginClass classes[] = {__VA_ARGS__};                                \
        return TEVU::createPlugin(classes, className, interfaceVersion);                           \
    }

#endif
