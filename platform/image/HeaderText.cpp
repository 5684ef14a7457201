#include "HeaderText.h"

#include <ruqlib2core/CException.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>

#include <charconv>
#include <cstdint>
#include <cstring>
#include <memory>

namespace TEVU {

namespace {

static_assert(sizeof(double) == sizeof(std::uint64_t), "the bits of a double are written");

constexpr unsigned c_nDoubleDigits = 16;

bool isPlain(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '.' || c == ':' || c == '/' || c == '-';
}

std::string hex(std::uint64_t number, unsigned digits) {
    std::string text(digits, '0');
    for (unsigned at = digits; at-- > 0; number >>= 4)
        text[at] = "0123456789ABCDEF"[number & 15];
    return text;
}

std::string escaped(const std::string& bytes) {
    std::string text;
    for (const char c : bytes)
        text += isPlain(c) ? std::string(1, c) : "%" + hex(static_cast<unsigned char>(c), 2);
    return text;
}

std::string doubleText(double number) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return hex(bits, c_nDoubleDigits);
}

std::string containerText(const CValueContainerBase& container, unsigned depth);

/// Empty for what is left out.
std::string valueText(const CValue& value, unsigned depth) {
    if (const auto* flag = dynamic_cast<const CValueBool*>(&value))
        return flag->Bool() ? "b1" : "b0";
    if (const auto* whole = dynamic_cast<const CValueLong*>(&value))
        return "l" + std::to_string(whole->Long());
    if (const auto* number = dynamic_cast<const CValueDouble*>(&value))
        return "d" + doubleText(number->Double());
    if (const auto* text = dynamic_cast<const CValueString*>(&value))
        return "s" + escaped(text->String());
    if (const auto* vector = dynamic_cast<const CValueVector*>(&value))
        return "v" + containerText(*vector, depth + 1);
    if (const auto* map = dynamic_cast<const CValueMap*>(&value))
        return "m" + containerText(*map, depth + 1);
    return "";
}

std::string containerText(const CValueContainerBase& container, unsigned depth) {
    if (depth > c_nMaxHeaderDepth)
        throw CException("headerText", "the maps of the header are nested too deeply");
    std::string text;
    for (const CValue_Key& key : container.Keys()) {
        const std::string value = valueText(*container.Entry(key, true), depth);
        if (!value.empty())
            text += (text.empty() ? "" : ",") + escaped(key.String()) + "=" + value;
    }
    return "(" + text + ")";
}

/// Reads one value from front to back. Every function is false, or null, when the text is not what
/// it should be; where it then stands does not matter.
class CHeaderParser {
public:
    explicit CHeaderParser(const std::string& text) : m_sText(text) {}

    std::unique_ptr<CValue> value(unsigned depth);
    bool atEnd() const { return m_nAt == m_sText.size(); }

private:
    bool take(char expected);
    bool takeHex(unsigned digits, std::uint64_t& number);
    bool takeBytes(std::string& bytes);
    std::unique_ptr<CValue> boolValue();
    std::unique_ptr<CValue> longValue();
    std::unique_ptr<CValue> doubleValue();
    std::unique_ptr<CValue> stringValue();
    bool takeEntry(CValueContainerBase& container, unsigned depth);
    std::unique_ptr<CValue> filled(std::unique_ptr<CValueContainerBase> container, unsigned depth);

    const std::string& m_sText;
    std::size_t m_nAt = 0;
};

bool CHeaderParser::take(char expected) {
    if (atEnd() || m_sText[m_nAt] != expected)
        return false;
    ++m_nAt;
    return true;
}

bool CHeaderParser::takeHex(unsigned digits, std::uint64_t& number) {
    if (m_sText.size() - m_nAt < digits)
        return false;
    const char* first = m_sText.data() + m_nAt;
    m_nAt += digits;
    return std::from_chars(first, first + digits, number, 16).ptr == first + digits;
}

bool CHeaderParser::takeBytes(std::string& bytes) {
    for (; !atEnd(); ++m_nAt) {
        std::uint64_t byte = 0;
        if (isPlain(m_sText[m_nAt])) {
            bytes += m_sText[m_nAt];
        } else if (take('%')) {
            if (!takeHex(2, byte))
                return false;
            bytes += static_cast<char>(byte);
            --m_nAt;
        } else {
            break;
        }
    }
    return true;
}

std::unique_ptr<CValue> CHeaderParser::boolValue() {
    if (take('1'))
        return std::make_unique<CValueBool>(true);
    return take('0') ? std::make_unique<CValueBool>(false) : nullptr;
}

std::unique_ptr<CValue> CHeaderParser::longValue() {
    long number = 0;
    const char* first = m_sText.data() + m_nAt;
    const auto parsed = std::from_chars(first, m_sText.data() + m_sText.size(), number);
    if (parsed.ec != std::errc())
        return nullptr;
    m_nAt += static_cast<std::size_t>(parsed.ptr - first);
    return std::make_unique<CValueLong>(number);
}

std::unique_ptr<CValue> CHeaderParser::doubleValue() {
    std::uint64_t bits = 0;
    if (!takeHex(c_nDoubleDigits, bits))
        return nullptr;
    double number = 0;
    std::memcpy(&number, &bits, sizeof number);
    return std::make_unique<CValueDouble>(number);
}

std::unique_ptr<CValue> CHeaderParser::stringValue() {
    std::string bytes;
    return takeBytes(bytes) ? std::make_unique<CValueString>(bytes) : nullptr;
}

bool CHeaderParser::takeEntry(CValueContainerBase& container, unsigned depth) {
    std::string key;
    if (!takeBytes(key) || !take('='))
        return false;
    std::unique_ptr<CValue> entry = value(depth);
    if (!entry)
        return false;
    container.SetEntry(key, entry.release());
    return true;
}

std::unique_ptr<CValue> CHeaderParser::filled(std::unique_ptr<CValueContainerBase> container,
                                              unsigned depth) {
    if (depth > c_nMaxHeaderDepth || !take('('))
        return nullptr;
    if (take(')'))
        return container;
    do {
        if (!takeEntry(*container, depth))
            return nullptr;
    } while (take(','));
    return take(')') ? std::move(container) : nullptr;
}

std::unique_ptr<CValue> CHeaderParser::value(unsigned depth) {
    if (take('b'))
        return boolValue();
    if (take('l'))
        return longValue();
    if (take('d'))
        return doubleValue();
    if (take('s'))
        return stringValue();
    if (take('v'))
        return filled(std::make_unique<CValueVector>(), depth + 1);
    if (take('m'))
        return filled(std::make_unique<CValueMap>(), depth + 1);
    return nullptr;
}

} // namespace

std::string headerText(const CValueMap& header) {
    return "m" + containerText(header, 1);
}

std::optional<CValueMap> parseHeaderText(const std::string& text) try {
    CHeaderParser parser(text);
    const std::unique_ptr<CValue> value = parser.value(0);
    const auto* header = dynamic_cast<const CValueMap*>(value.get());
    return header && parser.atEnd() ? std::optional<CValueMap>(*header) : std::nullopt;
} catch (const CException&) {
    // A vector refuses a key that is no index.
    return std::nullopt;
}

} // namespace TEVU
