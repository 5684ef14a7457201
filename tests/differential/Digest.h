#ifndef RUQGUI_TESTS_DIFFERENTIAL_DIGEST_H
#define RUQGUI_TESTS_DIFFERENTIAL_DIGEST_H

#include <cstdint>
#include <string>

namespace differential {

/// What remains of many lines: FNV-1a over their bytes, each line with its end.
class Digest {
public:
    void add(const std::string& line);

    std::uint64_t value() const { return m_nValue; }
    /// Eight hexadecimal digits, as records hold them.
    std::string text() const;

private:
    std::uint64_t m_nValue = 14695981039346656037U;
};

} // namespace differential

#endif
