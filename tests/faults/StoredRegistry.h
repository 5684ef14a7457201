#ifndef RUQGUI_FAULTS_STOREDREGISTRY_H
#define RUQGUI_FAULTS_STOREDREGISTRY_H

#include "TestFolder.h"

#include <string>

/// A registry file that a save replaces: "key" goes from "before" to "after", "other" stays.
class StoredRegistry {
public:
    StoredRegistry();

    static constexpr const char* c_sKind = "registry"; ///< For SAVE_ONCE.
    std::string Path() const;

    /// Looks at the registry in a fresh process, which then saves something else. Empty when the file was
    /// whole and held the new state, or the old one unless \a saved, or when a file that could not be read is
    /// kept aside unchanged; and when nothing but what belongs there is left. Otherwise what is wrong.
    std::string Complaint(bool saved) const;

    /// What the file has under this key, 0 if nothing; throws when the file is torn.
    long Number(const std::string& key) const;

    bool IsNewFile(const std::string& path) const; ///< That of a save that is under way.
    bool HasNewFile() const { return !m_folder.Names(".new").empty(); }

private:
    bool isRight(const std::string& said, bool saved) const;
    std::string keptAside() const; ///< Its name, or empty.

    TestFolder m_folder;
    std::string m_sOldBytes;
};

#endif
