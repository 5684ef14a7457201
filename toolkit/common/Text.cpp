#include <qt3/Text.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <system_error>
#include <utility>
#include <vector>

namespace qt3 {
namespace {

/// Reads one number from the front of plain characters, step by step.
class NumberReader {
public:
    explicit NumberReader(std::string text) : m_sText(std::move(text)) {}

    /// The number and whether there was one; atEnd() tells what is left over.
    bool read(double& value) {
        const bool bNegative = takeSign();
        if (!readWord(value) && !readDecimal(value))
            return false;
        if (bNegative)
            value = -value;
        return true;
    }

    std::size_t position() const { return m_nPosition; }

private:
    bool takeSign() {
        m_bSigned = next() == '-' || next() == '+';
        const bool bNegative = next() == '-';
        if (m_bSigned)
            ++m_nPosition;
        return bNegative;
    }

    bool readWord(double& value) {
        if (takeWord("inf"))
            value = std::numeric_limits<double>::infinity();
        else if (!m_bSigned && takeWord("nan"))
            value = std::numeric_limits<double>::quiet_NaN();
        else
            return false;
        return true;
    }

    bool takeWord(const std::string& word) {
        std::string candidate = m_sText.substr(m_nPosition, word.size());
        for (char& c : candidate) {
            if (c >= 'A' && c <= 'Z')
                c = static_cast<char>(c - 'A' + 'a');
        }
        if (candidate != word)
            return false;
        m_nPosition += word.size();
        return true;
    }

    bool readDecimal(double& value) {
        const std::size_t begin = m_nPosition;
        takeDigits();
        if (next() == '.') {
            ++m_nPosition;
            takeDigits();
        }
        return takeExponent() && convert(begin, value); // which wants a digit
    }

    /// No exponent is fine; an exponent without digits is not.
    bool takeExponent() {
        if (next() != 'e' && next() != 'E')
            return true;
        ++m_nPosition;
        if (next() == '-' || next() == '+')
            ++m_nPosition;
        return takeDigits() > 0;
    }

    std::size_t takeDigits() {
        const std::size_t begin = m_nPosition;
        while (next() >= '0' && next() <= '9')
            ++m_nPosition;
        return m_nPosition - begin;
    }

    bool convert(std::size_t begin, double& value) const {
        const char* const text = m_sText.data();
        const auto result = std::from_chars(text + begin, text + m_nPosition, value);
        return result.ec == std::errc(); // not for what a double is too small for, in either way
    }

    char next() const { return m_nPosition < m_sText.size() ? m_sText[m_nPosition] : '\0'; }

    std::string m_sText;
    std::size_t m_nPosition = 0;
    bool m_bSigned = false;
};

bool allBelow(const QString& text, unsigned limit) {
    for (int i = 0; i < length(text); ++i) {
        if (text.at(i).unicode() >= limit)
            return false;
    }
    return true;
}

int firstNonSpace(const QString& text) {
    int index = 0;
    while (index < length(text) && text.at(index).isSpace())
        ++index;
    return index;
}

/// Foreign characters become one that no number contains.
std::string plainCharacters(const QString& text, int begin) {
    std::string plain;
    for (int i = begin; i < length(text); ++i) {
        const unsigned code = text.at(i).unicode();
        plain += code < 128 ? static_cast<char>(code) : '?';
    }
    return plain;
}

std::chars_format charsFormat(char format) {
    switch (format) {
    case 'e':
    case 'E':
        return std::chars_format::scientific;
    case 'f':
        return std::chars_format::fixed;
    default:
        return std::chars_format::general;
    }
}

std::string upperAscii(std::string text) {
    for (char& c : text) {
        if (c >= 'a') // all else in a number comes before the letters
            c = static_cast<char>(c - 'a' + 'A');
    }
    return text;
}

const int c_nMostDigits =
    32767; // a field holds no longer text; a double has 1074 at most, then zeros

std::string formatted(double value, char format, int precision) {
    constexpr std::size_t longestIntegerPart = std::numeric_limits<double>::max_exponent10 + 10;
    std::vector<char> buffer(longestIntegerPart + static_cast<std::size_t>(precision));
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      charsFormat(format), precision);
    return std::string(buffer.data(), result.ptr);
}

} // namespace

std::string ascii(const QString& text) {
    std::string bytes;
    for (int i = 0; i < length(text); ++i) {
        const unsigned code = text.at(i).unicode();
        bytes += code < 256 ? static_cast<char>(code) : '?';
    }
    return bytes;
}

QString fromAscii(const std::string& bytes) {
    QString text;
    for (const char byte : bytes)
        text += QChar(static_cast<unsigned short>(static_cast<unsigned char>(byte)));
    return text;
}

QString plainMarkup(const QString& text) {
    QString markup = "<qt>";
    for (int i = 0; i < length(text); ++i) {
        const QChar c = text.at(i);
        if (c == '<')
            markup += "&lt;";
        else if (c == '&')
            markup += "&amp;";
        else if (c == '\n')
            markup += "<br>";
        else
            markup += c;
    }
    return markup + "</qt>";
}

bool isAscii(const QString& text) {
    return allBelow(text, 128);
}

bool isLatin1(const QString& text) {
    return allBelow(text, 256);
}

int length(const QString& text) {
    return static_cast<int>(text.length());
}

double toDouble(const QString& text, bool* ok) {
    const int begin = firstNonSpace(text);
    NumberReader reader(plainCharacters(text, begin));
    double value = 0.0;
    const bool bNumber = reader.read(value);
    const int end = begin + static_cast<int>(reader.position());
    const QString rest = text.mid(end);
    if (ok)
        *ok = bNumber && rest.isEmpty();
    return bNumber && stripWhiteSpace(rest).isEmpty() ? value : 0.0;
}

QString number(double value, char format, int precision) {
    if (std::isnan(value))
        return fromAscii("nan");
    const double unsignedZero = value == 0.0 ? 0.0 : value;
    const int digits = precision < 0 ? 6 : std::min(precision, c_nMostDigits);
    const std::string text = formatted(unsignedZero, format, digits);
    return fromAscii(format == 'E' || format == 'G' ? upperAscii(text) : text);
}

} // namespace qt3
