#ifndef RUQLIB2CORE_CREGISTRY_H
#define RUQLIB2CORE_CREGISTRY_H

#include <ruqlib2core/CValueContainerBase.h>
#include <ruqlib2core/CValueMap.h>

namespace TEVU {

/// The settings that all applications of the product family share and that outlive them.
///
/// Keys are paths with slashes, by convention only: they form no tree.
/// \code
/// TEVU::CRegistry& registry = TEVU::CRegistry::Obj();
/// registry.SetEntry("main/globalsettings/IO/savingdir", new TEVU::CValueString("/data"));
/// \endcode
///
/// Bool, long, double and string entries are kept in a file: $RUQ_REGISTRY when that is set, else
/// ruq/registry.json in the user's folder for settings. Entries of other kinds live in memory only;
/// setting one removes what the file has under its key. An object of a class derived from one of
/// the four comes back as one of the four.
///
/// 1. A SetEntry() or RemoveEntry() that changes something is on disk when it returns. It changes
///    its own key only: what other processes have written meanwhile stays. A process that is killed
///    leaves the old file or the new one.
/// 2. Every look sees what other processes have written until then.
/// 3. A file that cannot be read or is no registry is kept beside as "<name>.unreadable-<n>", with
///    a line on standard error, and the registry goes on empty.
/// 4. What cannot be written costs a line on standard error. The value holds in this process, and
///    goes to the file with the next change that can be written.
///
/// A pointer from Entry() stays valid until the next SetEntry() or RemoveEntry() of this process,
/// also when another process replaces the entry.
///
/// To be used by one thread at a time.
class RUQLIB2CORE_EXPORT CRegistry : public CValueContainerBase {
public:
    /// The one object of the process. The environment is looked at in the first call only. The
    /// object is never destroyed, so that destructors of the application's own objects can use it.
    static CRegistry& Obj();

    CRegistry(const CRegistry&) = delete;
    CRegistry& operator=(const CRegistry&) = delete;
    ~CRegistry() override;

    EnGenericType GenericType() const override; ///< eMap
    CValueMap* Clone() const override;          ///< The entries of this moment, as a plain map.

    /// The file's path; empty when the environment names no place for it.
    const std::string& FilePath() const;

protected:
    const Entries& CurrentEntries() const override;
    const Entries& KnownEntries() const noexcept override;
    void StoreEntry(const CValue_Key& key, std::unique_ptr<CValue> value) override;
    bool EraseEntry(const CValue_Key& key) override;

private:
    class Contents;

    CRegistry();

    std::unique_ptr<Contents> m_pContents;
};

} // namespace TEVU

#endif
