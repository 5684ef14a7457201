#include "Digest.h"

#include <cstdio>

namespace differential {

void Digest::add(const std::string& line) {
    const std::uint64_t prime = 1099511628211U;
    for (const char c : line)
        m_nValue = (m_nValue ^ static_cast<unsigned char>(c)) * prime;
    m_nValue = (m_nValue ^ '\n') * prime;
}

std::string Digest::text() const {
    char digits[9];
    std::snprintf(digits, sizeof digits, "%08x",
                  static_cast<unsigned>(m_nValue ^ (m_nValue >> 32)) & 0xffffffffU);
    return digits;
}

} // namespace differential
