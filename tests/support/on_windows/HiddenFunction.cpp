#include "HiddenFunction.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <windows.h>

namespace support {

namespace {

FARPROC find(const char* symbol) {
    for (const char* library : {"ruqgui.dll", "ruqlib2image.dll", "ruqlib2core.dll", "ntdll.dll"}) {
        if (const FARPROC found = ::GetProcAddress(::GetModuleHandleA(library), symbol))
            return found;
    }
    std::fprintf(stderr, "no library exports %s\n", symbol);
    std::abort();
}

void overwrite(void* place, const unsigned char* bytes, std::size_t count) {
    DWORD before = 0;
    ::VirtualProtect(place, count, PAGE_EXECUTE_READWRITE, &before);
    std::memcpy(place, bytes, count);
    ::VirtualProtect(place, count, before, &before);
    ::FlushInstructionCache(::GetCurrentProcess(), place, count);
}

} // namespace

HiddenFunction::HiddenFunction(const char* symbol, Any standIn)
    : m_function(reinterpret_cast<Any>(reinterpret_cast<void*>(find(symbol)))), m_standIn(standIn) {
    std::memcpy(m_beginning, reinterpret_cast<const void*>(m_function), c_jumpBytes);
    hide(true);
}

// Functions begin at multiples of sixteen bytes, so that the jump fits into the shortest.
void HiddenFunction::hide(bool hidden) const {
    unsigned char jump[c_jumpBytes] = {0x48, 0xb8, 0, 0, 0, 0, 0, 0, 0, 0, 0xff, 0xe0};
    std::memcpy(jump + 2, &m_standIn, sizeof m_standIn); // mov rax, stand-in; jmp rax
    overwrite(reinterpret_cast<void*>(m_function), hidden ? jump : m_beginning, c_jumpBytes);
}

} // namespace support
