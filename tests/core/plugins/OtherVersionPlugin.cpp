#include <ruqlib2core/PluginExport.h>

#include <cstdlib>

TEVU::CPluginBase* RuqCreatePlugin(const char* className, int* interfaceVersion) {
    if (className)
        std::abort(); // nobody may ask a library of another version for an object
    *interfaceVersion = RUQ_PLUGIN_INTERFACE_VERSION + 1;
    return nullptr;
}
