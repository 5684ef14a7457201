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

    /// Empty when the file is whole and holds the new state, or the old one unless \a saved; or when
    /// a file that could not be read is kept aside unchanged. Otherwise what is wrong.
    std::string Complaint(bool saved) const;

    /// Saves something else, in a fresh process; empty when nothing but what belongs there is left.
    std::string ComplaintAfterTheNextSave() const;

    bool IsNewFile(const std::string& path) const; ///< That of a save that is under way.

private:
    std::string keptAside() const; ///< Its name, or empty.

    TestFolder m_folder;
    std::string m_sOldBytes;
};

#endif
