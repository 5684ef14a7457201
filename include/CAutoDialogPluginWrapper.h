#ifndef RUQGUI_CAUTODIALOGPLUGINWRAPPER_H
#define RUQGUI_CAUTODIALOGPLUGINWRAPPER_H

#include <qt3/Export.h>

namespace TEVU {

class CValue;
class CValueMap;

/// Shows a parameter dialog that a plug-in generates from a description.
///
/// Derive from it, supply description and parameters, and take the edited ones:
/// \code
/// class CFilterDialog : public TEVU::CAutoDialogPluginWrapper {
///     TEVU::CValue* GetDialogValue() override { return Description().Clone(); }
///     TEVU::CValue* GetParameterValue() override { return m_parameters.Clone(); }
///     bool SetParameterValue(TEVU::CValueMap& edited) override { m_parameters = edited; return true; }
/// };
/// \endcode
/// The plug-in is "plugwdgt_orunparamdlg::autodlg". The form of a description is the plug-in's: that of
/// the one in plugins/orunparamdlg is told, with a whole example, in docs/generated-dialogs.md.
///
/// GUI thread only. It has no state of its own.
class RUQGUI_EXPORT CAutoDialogPluginWrapper {
public:
    CAutoDialogPluginWrapper();
    CAutoDialogPluginWrapper(const CAutoDialogPluginWrapper& other);
    CAutoDialogPluginWrapper& operator=(const CAutoDialogPluginWrapper& other);

    /// The description of the dialog, new; the caller owns it. Null is none.
    virtual CValue* GetDialogValue() = 0;

    /// The current parameters, new; the caller owns them. Null is none.
    virtual CValue* GetParameterValue() = 0;

    /// Takes the edited parameters, which live as long as the call. Not called after a cancel.
    /// \return what show() is to return
    virtual bool SetParameterValue(CValueMap& parameters) = 0;

    virtual ~CAutoDialogPluginWrapper();

    /// Runs the dialog.
    /// \return what SetParameterValue() returned; false when the user cancelled, or the plug-in left no
    ///         map of parameters.
    /// \throws CException for a plug-in that is not there, and what plug-in or derived class throw.
    ///         Nothing is left behind then.
    bool show();
};

} // namespace TEVU

#endif
