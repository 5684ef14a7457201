#include "RegistryText.h"

#include <ruqlib2core/CException.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueString.h>

#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>

namespace TEVU {
namespace RegistryText {

namespace {

using nlohmann::json;

const char* const c_sBytesMark = "bytes:";
const char* const c_sDoubleMark = "double:";
const char* const c_sDigits = "0123456789abcdef";

bool beginsWith(const std::string& text, const std::string& beginning) {
    return text.compare(0, beginning.size(), beginning) == 0;
}

std::string hexOf(const std::string& bytes) {
    std::string hex;
    for (const char byte : bytes) {
        hex += c_sDigits[static_cast<unsigned char>(byte) >> 4];
        hex += c_sDigits[static_cast<unsigned char>(byte) & 15];
    }
    return hex;
}

std::optional<std::string> bytesOf(const std::string& hex) {
    const std::string digits = c_sDigits;
    if (hex.size() % 2 != 0 || hex.find_first_not_of(digits) != std::string::npos)
        return std::nullopt;
    std::string bytes;
    for (std::size_t i = 0; i < hex.size(); i += 2)
        bytes += static_cast<char>(digits.find(hex[i]) << 4 | digits.find(hex[i + 1]));
    return bytes;
}

bool isUtf8(const std::string& bytes) {
    try {
        json(bytes).dump();
        return true;
    } catch (const json::type_error&) {
        return false;
    }
}

std::string textOf(const std::string& bytes) {
    const bool isPlain =
        !beginsWith(bytes, c_sBytesMark) && !beginsWith(bytes, c_sDoubleMark) && isUtf8(bytes);
    return isPlain ? bytes : c_sBytesMark + hexOf(bytes);
}

json jsonOf(double number) {
    if (std::isnan(number))
        return std::string(c_sDoubleMark) + "nan";
    if (std::isinf(number))
        return std::string(c_sDoubleMark) + (number > 0 ? "inf" : "-inf");
    return number;
}

json jsonOf(const Scalar& scalar) {
    if (const auto* text = std::get_if<std::string>(&scalar))
        return textOf(*text);
    if (const auto* number = std::get_if<double>(&scalar))
        return jsonOf(*number);
    if (const auto* number = std::get_if<long>(&scalar))
        return *number;
    return std::get<bool>(scalar);
}

std::optional<Scalar> scalarOfText(const std::string& text) {
    if (beginsWith(text, c_sBytesMark))
        return bytesOf(text.substr(std::string(c_sBytesMark).size()));
    if (!beginsWith(text, c_sDoubleMark))
        return text;
    for (const double number :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        if (jsonOf(number) == text)
            return number;
    }
    return std::nullopt;
}

/// Takes the settings from the parser, event by event, and stops it at the first thing that is
/// none. No tree is built, so that neither depth nor size of a hostile file does harm.
class Reader : public nlohmann::json_sax<json> {
public:
    Settings m_mapSettings;
    std::string m_sError;

    bool null() override { return refuse("a null"); }
    bool boolean(bool value) override { return add(value); }
    bool number_integer(number_integer_t number) override {
        if (number < std::numeric_limits<long>::min() || number > std::numeric_limits<long>::max())
            return refuse("a number out of range");
        return add(static_cast<long>(number));
    }
    bool number_unsigned(number_unsigned_t number) override {
        if (number > static_cast<unsigned long>(std::numeric_limits<long>::max()))
            return refuse("a number out of range");
        return add(static_cast<long>(number));
    }
    bool number_float(number_float_t number, const string_t& digits) override {
        // The parser hands on whole numbers too large for it as floating-point ones. A decimal point is
        // whatever the locale has: the parser has put it in.
        const bool isWhole = digits.find_first_not_of("-0123456789") == std::string::npos;
        return isWhole ? refuse("a number out of range") : add(number);
    }
    bool string(string_t& text) override { return add(scalarOfText(text)); }
    bool binary(binary_t&) override { return refuse("binary data"); }
    bool start_array(std::size_t) override { return refuse("an array"); }
    bool end_array() override { return true; }
    bool start_object(std::size_t) override {
        const bool isOutermost = !m_bInside;
        m_bInside = true;
        return isOutermost || refuse("an object");
    }
    bool end_object() override { return true; }
    bool key(string_t& text) override {
        const std::optional<Scalar> decoded = scalarOfText(text);
        if (!decoded || !std::holds_alternative<std::string>(*decoded))
            return refuse("a malformed key");
        m_sKey = std::get<std::string>(*decoded);
        return true;
    }
    bool parse_error(std::size_t, const std::string&, const json::exception& error) override {
        // What it quotes from the text may be as long as the text.
        m_sError = std::string(error.what()).substr(0, 200);
        return false;
    }

private:
    bool add(const std::optional<Scalar>& scalar) {
        if (!m_bInside || !scalar)
            return refuse("a malformed value");
        m_mapSettings[m_sKey] = *scalar;
        return true;
    }
    bool refuse(const char* what) {
        m_sError = std::string("holds ") + what;
        return false;
    }

    bool m_bInside = false;
    std::string m_sKey;
};

} // namespace

std::optional<Scalar> scalarOf(const CValue& value) {
    if (const auto* truth = dynamic_cast<const CValueBool*>(&value))
        return truth->Bool();
    if (const auto* number = dynamic_cast<const CValueLong*>(&value))
        return number->Long();
    if (const auto* number = dynamic_cast<const CValueDouble*>(&value))
        return number->Double();
    if (const auto* text = dynamic_cast<const CValueString*>(&value))
        return text->String();
    return std::nullopt;
}

std::unique_ptr<CValue> valueOf(const Scalar& scalar) {
    if (const auto* text = std::get_if<std::string>(&scalar))
        return std::make_unique<CValueString>(*text);
    if (const auto* number = std::get_if<double>(&scalar))
        return std::make_unique<CValueDouble>(*number);
    if (const auto* number = std::get_if<long>(&scalar))
        return std::make_unique<CValueLong>(*number);
    return std::make_unique<CValueBool>(std::get<bool>(scalar));
}

bool areSame(const Scalar& a, const Scalar& b) {
    // What is written tells all values apart, which == on doubles does not.
    return a.index() == b.index() && jsonOf(a).dump() == jsonOf(b).dump();
}

std::string write(const Settings& settings) {
    // No tree of the whole: taking one down needs memory, and without it the process ends.
    std::map<std::string, std::string> values;
    for (const auto& [key, scalar] : settings)
        values[json(textOf(key)).dump()] = jsonOf(scalar).dump();
    std::string text;
    for (const auto& [key, value] : values) {
        text += text.empty() ? "\n    " : ",\n    ";
        text.append(key).append(": ").append(value);
    }
    return "{" + (text.empty() ? text : text + "\n") + "}\n";
}

Settings read(const std::string& text) {
    Reader reader;
    if (!json::sax_parse(text, &reader))
        throw CException("RegistryText::read", reader.m_sError);
    return std::move(reader.m_mapSettings);
}

} // namespace RegistryText
} // namespace TEVU
