#include <ruqlib2core/CException.h>
#include <ruqlib2core/PluginExport.h>

#include <stdexcept>

namespace {

TEVU::CPluginBase* throwOurs() {
    throw TEVU::CException("Plugin", "no licence");
}

TEVU::CPluginBase* throwStandard() {
    throw std::runtime_error("no memory");
}

TEVU::CPluginBase* throwNumber() {
    throw 42;
}

TEVU::CPluginBase* createNothing() {
    return nullptr;
}

} // namespace

RUQ_EXPORT_PLUGINS({"ours", throwOurs}, {"standard", throwStandard}, {"number", throwNumber},
                   {"nothing", createNothing})
