#include <ruqlib2core/CValue_Key.h>

#include <charconv>
#include <optional>

namespace TEVU {

namespace {

std::optional<int> indexOf(const std::string& text) {
    int index = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), index);
    // Only the form that String() writes: "03", "3 " and "-0" stay texts. Most are no number at all.
    if (parsed.ec != std::errc() || std::to_string(index) != text)
        return std::nullopt;
    return index;
}

} // namespace

CValue_Key::CValue_Key(const char* text) : CValue_Key(std::string(text ? text : "")) {}

CValue_Key::CValue_Key(const std::string& text) : m_nIndex(0), m_bIndex(false) {
    const std::optional<int> index = indexOf(text);
    if (index)
        *this = CValue_Key(*index);
    else
        m_sText = text;
}

CValue_Key::CValue_Key(int index) : m_nIndex(index), m_bIndex(true) {}

std::string CValue_Key::String() const {
    return m_bIndex ? std::to_string(m_nIndex) : m_sText;
}

bool CValue_Key::IsIndex() const {
    return m_bIndex;
}

int CValue_Key::Index() const {
    return m_nIndex;
}

bool CValue_Key::operator==(const CValue_Key& other) const {
    return m_bIndex == other.m_bIndex && m_nIndex == other.m_nIndex && m_sText == other.m_sText;
}

bool CValue_Key::operator!=(const CValue_Key& other) const {
    return !(*this == other);
}

bool CValue_Key::operator>(const CValue_Key& other) const {
    return other < *this;
}

bool CValue_Key::operator<=(const CValue_Key& other) const {
    return !(other < *this);
}

bool CValue_Key::operator>=(const CValue_Key& other) const {
    return !(*this < other);
}

} // namespace TEVU
