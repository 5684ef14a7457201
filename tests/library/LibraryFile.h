#ifndef RUQGUI_TESTS_LIBRARY_LIBRARYFILE_H
#define RUQGUI_TESTS_LIBRARY_LIBRARYFILE_H

#include <set>
#include <string>

/// A .dll that this program has loaded, as it lies in the memory.
class LibraryFile {
public:
    explicit LibraryFile(const std::string& name);

    std::set<std::string> Exports() const; ///< The names in its table.
    const void*
    Address(const std::string& name) const; ///< Of what it exports; null if it does not.

private:
    void* m_pModule; ///< Where it begins.
};

#endif
