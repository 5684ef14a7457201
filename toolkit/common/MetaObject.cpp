#include <qt3/MetaObject.h>

namespace qt3 {
namespace {

std::string trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return std::string();
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string plainType(const std::string& type) {
    const std::string constant = "const ";
    const std::string text = trimmed(type);
    if (text.empty() || text.back() != '&' || text.compare(0, constant.size(), constant) != 0)
        return text;
    return trimmed(text.substr(constant.size(), text.size() - constant.size() - 1));
}

/// The index of the comma or parenthesis that ends the type at \a begin; commas in <> belong to it.
std::size_t endOfType(const std::string& signature, std::size_t begin) {
    int depth = 0;
    std::size_t i = begin;
    for (; i < signature.size(); ++i) {
        depth += (signature[i] == '<') - (signature[i] == '>');
        if (depth == 0 && (signature[i] == ',' || signature[i] == ')'))
            break;
    }
    return i;
}

} // namespace

std::string plainSignature(const std::string& signature) {
    const std::size_t open = signature.find('(');
    std::string result = trimmed(signature.substr(0, open)) + '(';
    for (std::size_t begin = open; begin < signature.size() && signature[begin] != ')';) {
        const std::size_t end = endOfType(signature, begin + 1);
        result += plainType(signature.substr(begin + 1, end - begin - 1));
        if (end < signature.size() && signature[end] == ',')
            result += ',';
        begin = end;
    }
    return result + ')';
}

} // namespace qt3
