#ifndef RUQGUI_TESTS_NUMERIC_NUMBERMODEL_H
#define RUQGUI_TESTS_NUMERIC_NUMBERMODEL_H

#include <AsciiLetters.h>
#include <algorithm>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <vector>

/// What the models of the number fields have in common: numbers as text and back, in plain C++, and
/// the material of the random runs.
namespace model {

const double c_nan = std::numeric_limits<double>::quiet_NaN();
const double c_infinity = std::numeric_limits<double>::infinity();
const double c_epsilon = 2.220446049250313e-16;

inline bool same(double a, double b) {
    return (std::isnan(a) && std::isnan(b)) || (a == b && std::signbit(a) == std::signbit(b));
}

/// As printf writes it in the C locale, but for the signs of zero and of what is no number.
/// \param format such as "%.*g"
inline std::string show(double number, const char* format, int precision) {
    if (std::isnan(number))
        return "nan";
    char text[400];
    const int length =
        std::snprintf(text, sizeof text, format, precision, number == 0.0 ? 0.0 : number);
    std::replace(text, text + length, *std::localeconv()->decimal_point, '.');
    return text;
}

/// As in logs: enough digits to tell the number from others.
inline std::string logged(double number) {
    if (std::isnan(number))
        return "nan";
    char digits[32];
    return std::string(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

inline std::string stripped(const std::string& text) {
    const char* const blanks = " \t\n\r\v\f";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string::npos)
        return std::string();
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

inline bool startsWith(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

inline bool endsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

inline bool readUnsigned(const std::string& text, double* number) {
    if (text.empty() || text.find_first_not_of("0123456789.eE+-") != std::string::npos ||
        text[0] == '-')
        return false;
    const char* const end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, *number);
    return result.ec == std::errc() && result.ptr == end;
}

/// The number that the text spells, with blanks in front of it only.
inline bool read(const std::string& text, double* number) {
    const std::size_t start = text.find_first_not_of(" \t\n\r\v\f");
    std::string rest = start == std::string::npos ? "" : text.substr(start);
    for (char& c : rest)
        c = support::lowerLetter(c);
    if (rest == "nan") {
        *number = c_nan;
        return true;
    }
    const bool negative = startsWith(rest, "-");
    if (negative || startsWith(rest, "+"))
        rest.erase(0, 1);
    if (rest == "inf")
        *number = c_infinity;
    else if (!readUnsigned(rest, number))
        return false;
    if (negative)
        *number = -*number;
    return true;
}

template <class T>
const T& pick(std::mt19937& random, const std::vector<T>& choices) {
    return choices[random() % choices.size()];
}

/// Mostly few different numbers, so that equal ones and ends of a range are frequent.
inline double anyNumber(std::mt19937& random) {
    static const std::vector<double> odd = {
        0.0,       -0.0,      0.1,        1e300,    -1e300,     c_infinity,      -c_infinity,
        c_nan,     c_epsilon, -c_epsilon, 2.3e-16,  5e-324,     -1e-17,          0.1 + 0.2,
        1.0 / 3.0, 100000.5,  100001.5,   -1234565, 1234567.0,  1.0000005,       999999.5,
        0.125,     -0.001,    1e-5,       1e15,     -2.0 / 3.0, 1.7976931348e308};
    if (random() % 5 == 0)
        return pick(random, odd);
    return (static_cast<int>(random() % 41) - 20) * 0.5;
}

/// Texts that are numbers, nearly numbers, and none.
inline std::string anyNumberText(std::mt19937& random) {
    static const std::vector<std::string> odd = {
        "",         " ",    "-",        "+",        ".",       "abc",
        "nan",      "NaN",  "-nan",     "inf",      "-INF",    "+inf",
        "+2.5",     "--1",  "- 1.5",    "1e",       "e5",      "1e+",
        "5.",       ".5",   "1.e3",     "1e400",    "-1e400",  "1e-400",
        "4.9e-324", "0x10", "1,5",      "1 0",      "017",     "1e-5",
        "2.5e-1",   "-0",   "infinity", "100000.5", "1234565", "0.3333333333",
        "7\t",      "\t7"};
    if (random() % 3 == 0)
        return pick(random, odd);
    return show(anyNumber(random), "%.*g", random() % 2 ? 6 : 17);
}

} // namespace model

#endif
