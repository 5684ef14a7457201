#include "CParameterDialog.h"
#include "DialogParameters.h"

#include <memory>
#include <optional>
#include <qt3/Application.h>
#include <qt3/Pointer.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/PluginExport.h>

namespace autodlg {

namespace {

const char* const c_sDialog = "dialog";
const char* const c_sParameters = "parameters";
const char* const c_sConfigUser = "config user";
const char* const c_sCancelled = "cancelled";

/// Without parameters each has its default, as in an empty map.
TEVU::CValueMap parametersOf(const TEVU::CValueMap& map) {
    const TEVU::CValue* const parameters = map.Entry(c_sParameters, false);
    return parameters ? toMap(*parameters, Subject(std::string("\"") + c_sParameters + '"'))
                      : TEVU::CValueMap();
}

/// The edited values, nothing when the user cancelled.
std::optional<std::vector<Value>> ask(const StDialog& dialog, const std::vector<Value>& values,
                                      bool showAdvanced) {
    // It goes with its parent, should that go while the dialog is open.
    const qt3::Pointer<CParameterDialog> form =
        new CParameterDialog(dialog, values, showAdvanced, qt3::mainWidget());
    const bool accepted = form->exec() == qt3::Dialog::Accepted;
    std::optional<std::vector<Value>> edited;
    if (form && accepted)
        edited = form->values();
    delete static_cast<CParameterDialog*>(form);
    return edited;
}

} // namespace

/// The plug-in: docs/generated-dialogs.md says what its maps hold.
class CAutoDialog : public TEVU::CPluginBase {
public:
    void Init(TEVU::CValue*, TEVU::CValueMap& init) override {
        m_dialog.reset();
        StDialog dialog = parseDescription(init.Entry(c_sDialog, false));
        readParameters(dialog, parametersOf(init));
        m_dialog = std::move(dialog);
    }

    void Setup(TEVU::CValueMap& setup) override { readParameters(dialog(), parametersOf(setup)); }

    void Execute(TEVU::CValueMap& setup) override {
        TEVU::CValueMap parameters = parametersOf(setup);
        const std::vector<Value> values = readParameters(dialog(), parameters);
        if (!qApp)
            Subject("the dialog").refuse("needs an application object");
        const bool showAdvanced = setup.EntryBool(c_sConfigUser, false);
        const auto edited = ask(dialog(), values, showAdvanced);
        if (edited) {
            writeParameters(dialog(), *edited, parameters);
            setup.SetEntry(c_sParameters, new TEVU::CValueMap(parameters));
        }
        setup.SetEntry(c_sCancelled, new TEVU::CValueBool(!edited));
    }

private:
    const StDialog& dialog() const {
        if (!m_dialog)
            Subject("\"dialog\"").refuse("is missing: Init() comes first");
        return *m_dialog;
    }

    std::optional<StDialog> m_dialog;
};

} // namespace autodlg

RUQ_EXPORT_PLUGINS(RUQ_PLUGIN_CLASS("autodlg", autodlg::CAutoDialog))
