#include "CAutoDialogPluginWrapper.h"

#include <memory>
#include <ruqlib2core/CPluginBase.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueMap.h>

namespace TEVU {

namespace {

const char* const c_sPlugin = "plugwdgt_orunparamdlg::autodlg";
const char* const c_sDialog = "dialog";
const char* const c_sParameters = "parameters";
const char* const c_sConfigUser = "config user";
const char* const c_sCancelled = "cancelled";

CValueMap* parametersOf(CValueMap& map) {
    return dynamic_cast<CValueMap*>(map.Entry(c_sParameters, false));
}

} // namespace

CAutoDialogPluginWrapper::CAutoDialogPluginWrapper() = default;
CAutoDialogPluginWrapper::CAutoDialogPluginWrapper(const CAutoDialogPluginWrapper& other) = default;
CAutoDialogPluginWrapper&
CAutoDialogPluginWrapper::operator=(const CAutoDialogPluginWrapper& other) = default;
CAutoDialogPluginWrapper::~CAutoDialogPluginWrapper() = default;

bool CAutoDialogPluginWrapper::show() {
    const std::unique_ptr<CPluginBase> plugin(GetNewPluginInstance(c_sPlugin));
    CValueMap init;
    CValueMap setup;
    init.SetEntry(c_sDialog, GetDialogValue());
    init.SetEntry(c_sParameters, GetParameterValue());
    plugin->Init(nullptr, init);
    if (const CValueMap* const parameters = parametersOf(init))
        setup.SetEntry(c_sParameters, new CValueMap(*parameters));
    plugin->Setup(setup);
    setup.SetEntry(c_sConfigUser, new CValueBool(true));
    plugin->Execute(setup);

    if (setup.EntryBool(c_sCancelled, false))
        return false;
    CValueMap* const edited = parametersOf(setup);
    return edited && SetParameterValue(*edited);
}

} // namespace TEVU
