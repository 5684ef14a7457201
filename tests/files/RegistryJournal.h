#ifndef RUQGUI_TESTS_FILES_REGISTRYJOURNAL_H
#define RUQGUI_TESTS_FILES_REGISTRYJOURNAL_H

#include "FileDialogTest.h"

/// Notes what is written to the settings registry, in its order, as "loadingdir=/data": afterwards the registry
/// does not show the order. The writes take place all the same. One at a time.
class RegistryJournal {
public:
    using Lines = FileDialogTest::Lines;

    RegistryJournal();
    RegistryJournal(const RegistryJournal&) = delete;
    RegistryJournal& operator=(const RegistryJournal&) = delete;
    ~RegistryJournal();

    void add(const std::string& write) { m_vWrites.push_back(write); }
    const Lines& writes() const { return m_vWrites; }

private:
    Lines m_vWrites;
};

#endif
