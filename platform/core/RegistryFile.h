#ifndef RUQLIB2CORE_REGISTRYFILE_H
#define RUQLIB2CORE_REGISTRYFILE_H

#include "FileSystem.h"
#include "RegistryText.h"

namespace TEVU {

/// Changes of single settings, by key; none: the setting is removed.
using SettingChanges = std::map<std::string, std::optional<RegistryText::Scalar>>;

void applyChanges(const SettingChanges& changes, RegistryText::Settings& settings);

/// The file behind the registry, shared with other processes. A failure is a line on standard
/// error.
class RegistryFile {
public:
    /// An empty path: the environment names no place for the file. Nothing is read or kept.
    explicit RegistryFile(const std::string& path);

    const std::string& Path() const { return m_sPath; }

    /// Reads the file into \a settings when it is not the one of the last look that was kept; else,
    /// or when nothing can be told about it now, false. A file that is no registry is kept aside: no
    /// settings.
    bool Load(RegistryText::Settings& settings);

    /// What the last look read has been taken over. Until then every look reads again.
    void Keep() { m_bKept = true; }

    /// Puts \a changes into the file as it is now, and all that it then holds into \a settings.
    /// False when that fails: the file and \a settings stay.
    bool Save(const SettingChanges& changes, RegistryText::Settings& settings);

private:
    bool loadOrKeepAside(RegistryText::Settings& settings);
    RegistryText::Settings readLocked() const;
    void replaceLocked(const RegistryText::Settings& settings) const;
    void keepAside(const std::string& reason) const;

    std::string m_sPath;
    bool m_bKept = false;
    std::string m_sVersion;              ///< Of the file at the last look.
    std::shared_ptr<const void> m_pHold; ///< Keeps m_sVersion from being used for another file.
};

} // namespace TEVU

#endif
