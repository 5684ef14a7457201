#include "SettingsFile.h"

#include <charconv>
#include <fstream>
#include <memory>
#include <ruqlib2core/CException.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueString.h>
#include <sstream>

using namespace TEVU;

namespace {

const char* const c_sPlace = "SettingsFile";
const char* const c_sEquals = " = ";

std::string quoted(const std::string& text) {
    std::string all = "\"";
    for (const char letter : text) {
        if (letter == '"' || letter == '\\')
            all += '\\';
        all += letter == '\n' ? std::string("\\n") : std::string(1, letter);
    }
    return all + '"';
}

/// The string in quotation marks; null when the text is something else.
std::unique_ptr<CValue> stringFrom(const std::string& text) {
    std::string content;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] == '"')
            return i + 1 == text.size() ? std::make_unique<CValueString>(content) : nullptr;
        const bool bEscaped = text[i] == '\\' && i + 1 < text.size();
        const char letter = bEscaped ? text[++i] : text[i];
        content += bEscaped && letter == 'n' ? '\n' : letter;
    }
    return nullptr;
}

std::unique_ptr<CValue> numberFrom(const std::string& text) {
    long number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    if (read.ec != std::errc() || read.ptr != end)
        return nullptr;
    return std::make_unique<CValueLong>(number);
}

std::unique_ptr<CValue> valueFrom(const std::string& text) {
    if (text == "true" || text == "false")
        return std::make_unique<CValueBool>(text == "true");
    return !text.empty() && text[0] == '"' ? stringFrom(text) : numberFrom(text);
}

std::string textOf(const CValue& value) {
    if (const auto* const flag = dynamic_cast<const CValueBool*>(&value))
        return flag->Bool() ? "true" : "false";
    if (const auto* const number = dynamic_cast<const CValueLong*>(&value))
        return std::to_string(number->Long());
    if (const auto* const text = dynamic_cast<const CValueString*>(&value))
        return quoted(text->String());
    throw CException(c_sPlace, "only truth values, whole numbers and strings can be written");
}

void readLine(const std::string& line, CValueMap& map) {
    const auto equals = line.find(c_sEquals);
    std::unique_ptr<CValue> value;
    if (equals != std::string::npos && equals > 0)
        value = valueFrom(line.substr(equals + 3));
    if (!value)
        throw CException(c_sPlace, "this is no entry: " + line);
    map.SetEntry(line.substr(0, equals), value.release());
}

} // namespace

CValueMap SettingsFile::fromText(const std::string& text) {
    CValueMap map;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line[0] != '#')
            readLine(line, map);
    }
    return map;
}

std::string SettingsFile::toText(const CValueMap& map) {
    std::string text;
    for (const CValue_Key& key : map.Keys()) {
        const std::string name = key.String();
        if (name.empty() || name[0] == '#' || name.find_first_of("=\n") != std::string::npos)
            throw CException(c_sPlace, "this is no key for a file: " + name);
        text += name + c_sEquals + textOf(*map.Entry(key, true)) + '\n';
    }
    return text;
}

CValueMap SettingsFile::read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    file.peek(); // a folder can be opened, but not read
    if (!file.is_open() || file.bad())
        throw CException(c_sPlace, "cannot read " + path);
    std::ostringstream text;
    text << file.rdbuf();
    try {
        return fromText(text.str());
    } catch (const CException& error) {
        throw CException(c_sPlace, path + ": " + error.Message());
    }
}

void SettingsFile::write(const CValueMap& map, const std::string& path) {
    const std::string text = toText(map); // before the file is touched
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << text << std::flush;
    if (!file)
        throw CException(c_sPlace, "cannot write " + path);
}
