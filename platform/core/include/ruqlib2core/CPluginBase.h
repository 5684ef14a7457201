#ifndef RUQLIB2CORE_CPLUGINBASE_H
#define RUQLIB2CORE_CPLUGINBASE_H

#include <ruqlib2core/CValueMap.h>

namespace TEVU {

/// What a plug-in does, in the order of the calls: Init() once, then Setup() and Execute().
/// How a plug-in is made is in PluginExport.h.
class RUQLIB2CORE_EXPORT CPluginBase {
public:
    CPluginBase();
    CPluginBase(const CPluginBase&) = delete;
    CPluginBase& operator=(const CPluginBase&) = delete;
    virtual ~CPluginBase();

    /// \a reserved is null. All values stay the caller's.
    virtual void Init(CValue* reserved, CValueMap& init) = 0;
    virtual void Setup(CValueMap& setup) = 0;
    virtual void Execute(CValueMap& setup) = 0; ///< Leaves its results in \a setup.
};

/// A new plug-in object, which the caller owns. \a name is "library::class", such as
/// "plugwdgt_orunparamdlg::autodlg".
///
/// A name given to RegisterPlugin() comes first. Else the library is looked for as library.so (.dll on
/// Windows) in these folders, and the first one found is taken:
/// 1. those in $RUQ_PLUGIN_PATH, separated as in $PATH;
/// 2. where plug-ins are installed, beside the place where this library is installed;
/// 3. the folder of this library and that of the program.
/// It stays loaded until the process ends.
///
/// A CException with the name and the cause when the name has another form, no folder has the library,
/// it cannot be loaded, it is no plug-in library or one of another interface version, it has no
/// such class, or the class cannot be created.
RUQLIB2CORE_EXPORT CPluginBase* GetNewPluginInstance(const char* name);

/// Makes \a create answer for \a name: a plug-in that is linked into the program. Replaces an earlier
/// one of the same name; null takes it away. \a create makes a new object with each call.
RUQLIB2CORE_EXPORT void RegisterPlugin(const char* name, CPluginBase* (*create)());

} // namespace TEVU

#endif
