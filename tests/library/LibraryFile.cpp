#include "LibraryFile.h"

#include <gtest/gtest.h>
#include <windows.h>

LibraryFile::LibraryFile(const std::string& name) : m_pModule(::GetModuleHandleA(name.c_str())) {
    EXPECT_NE(m_pModule, nullptr) << name;
}

std::set<std::string> LibraryFile::Exports() const {
    const auto* const begin = static_cast<const char*>(m_pModule);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(begin);
    const auto* const nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(begin + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& place =
        nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
    const auto* const table =
        reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(begin + place.VirtualAddress);
    const auto* const offsets = reinterpret_cast<const DWORD*>(begin + table->AddressOfNames);
    std::set<std::string> names;
    for (DWORD at = 0; at < table->NumberOfNames; ++at)
        names.insert(begin + offsets[at]);
    return names;
}

const void* LibraryFile::Address(const std::string& name) const {
    return reinterpret_cast<const void*>(
        ::GetProcAddress(static_cast<HMODULE>(m_pModule), name.c_str()));
}
