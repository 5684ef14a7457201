#include "Operation.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <stdexcept>

namespace differential {

namespace {

bool isPlain(char c) {
    return c >= ' ' && c <= '~' && c != '"' && c != '\\';
}

/// The text between the quote at \a position and the next one; goes behind that.
std::string unquoted(const std::string& line, std::size_t& position) {
    std::string text;
    for (++position; position < line.size() && line[position] != '"'; ++position) {
        if (line[position] != '\\') {
            text += line[position];
            continue;
        }
        text += static_cast<char>(std::strtol(line.substr(position + 2, 2).c_str(), nullptr, 16));
        position += 3;
    }
    if (position >= line.size())
        throw std::runtime_error("no end of the text: " + line);
    ++position;
    return text;
}

double readNumber(const std::string& line, std::size_t& position) {
    const char* const begin = line.c_str() + position;
    char* end = nullptr;
    const double number = std::strtod(begin, &end);
    if (end == begin)
        throw std::runtime_error("neither a number nor a text: " + line);
    position += static_cast<std::size_t>(end - begin);
    return number;
}

} // namespace

std::string quoted(const std::string& text) {
    std::string shown = "\"";
    for (const char c : text) {
        char escaped[5];
        std::snprintf(escaped, sizeof escaped, "\\x%02x", static_cast<unsigned char>(c));
        shown += isPlain(c) ? std::string(1, c) : escaped;
    }
    return shown + '"';
}

std::string exactText(double number) {
    if (std::isnan(number))
        return "nan";
    char digits[40];
    std::snprintf(digits, sizeof digits, "%.17g", number);
    return digits;
}

Operation Operation::parsed(const std::string& line) {
    std::size_t position = std::min(line.find(' '), line.size());
    Operation operation(line.substr(0, position));
    while (position < line.size()) {
        ++position; // the blank
        if (position < line.size() && line[position] == '"')
            operation.m_vArguments.emplace_back(unquoted(line, position));
        else
            operation.m_vArguments.emplace_back(readNumber(line, position));
    }
    return operation;
}

std::string Operation::line() const {
    std::string all = m_sName;
    for (const Argument& argument : m_vArguments)
        all += ' ' + (argument.isText() ? quoted(argument.text()) : exactText(argument.number()));
    return all;
}

double Operation::real(std::size_t index) const {
    return index < m_vArguments.size() ? m_vArguments[index].number() : 0.0;
}

int Operation::integer(std::size_t index) const {
    const double least = std::numeric_limits<int>::min();
    const double greatest = std::numeric_limits<int>::max();
    const double number = real(index);
    return std::isnan(number) ? 0 : static_cast<int>(std::clamp(number, least, greatest));
}

std::string Operation::text(std::size_t index) const {
    return index < m_vArguments.size() ? m_vArguments[index].text() : std::string();
}

} // namespace differential
