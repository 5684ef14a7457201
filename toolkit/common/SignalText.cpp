#include "SignalText.h"

#include <charconv>

namespace qt3 {

std::string signalText(bool value) {
    return value ? "true" : "false";
}

std::string signalText(int value) {
    return std::to_string(value);
}

std::string signalText(double value) {
    char digits[32];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, value);
    return std::string(digits, end.ptr);
}

std::string signalText(const std::string& utf8) {
    std::string text = "\"";
    for (const char c : utf8) {
        if (c == '\n')
            text += "\\n";
        else
            text += c;
    }
    return text + '"';
}

std::string signalText(const void* pointer) {
    return pointer ? "pointer" : "null";
}

std::string signalName(const std::string& signature) {
    return signature.substr(0, signature.find('('));
}

} // namespace qt3
