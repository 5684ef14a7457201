#include "FormatModel.h"

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <limits>
#include <vector>

namespace format_model {

namespace {

std::vector<std::string> sections(const std::string& identifier) {
    std::vector<std::string> all(1);
    for (const char letter : identifier) {
        if (letter == ':')
            all.emplace_back();
        else
            all.back() += letter;
    }
    return all;
}

bool isDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

bool isOneOf(const char* letters, char letter) {
    return letter != '\0' && std::string(letters).find(letter) != std::string::npos;
}

/// What stands in front of a text, taken piece by piece.
class CReader {
public:
    explicit CReader(const std::string& text) : m_sText(text + '\0') {}

    void SkipBlanks() {
        while (isOneOf(" \t\n\v\f\r", Next()))
            ++m_nNext;
    }

    bool Take(const char* letters) {
        if (!isOneOf(letters, Next()))
            return false;
        m_sTaken += m_sText[m_nNext++];
        return true;
    }

    int TakeDigits() {
        int count = 0;
        for (; isDigit(Next()); ++count)
            m_sTaken += m_sText[m_nNext++];
        return count;
    }

    const std::string& Taken() const { return m_sTaken; }

private:
    char Next() const { return m_sText[m_nNext]; }

    std::string m_sText;
    std::string m_sTaken;
    std::size_t m_nNext = 0;
};

/// The decimal number in front, 0 when there is none or only half of one.
double number(const std::string& version) {
    CReader reader(version);
    reader.SkipBlanks();
    reader.Take("+-");
    int digits = reader.TakeDigits();
    if (reader.Take("."))
        digits += reader.TakeDigits();
    if (digits == 0)
        return 0.0;
    if (reader.Take("eE")) {
        reader.Take("+-");
        if (reader.TakeDigits() == 0)
            return 0.0;
    }
    const double greatest = std::numeric_limits<double>::max();
    std::string inLocale = reader.Taken();
    std::replace(inLocale.begin(), inLocale.end(), '.', *std::localeconv()->decimal_point);
    return std::clamp(std::strtod(inLocale.c_str(), nullptr), -greatest, greatest);
}

} // namespace

std::pair<std::string, std::string> split(const std::string& identifier) {
    const std::vector<std::string> all = sections(identifier);
    if (all.size() < 3)
        return {identifier, ""};
    std::string family = all[0];
    if (family.size() == 2)
        family.clear();
    else if (!family.empty())
        family.pop_back();
    std::string remainder = all[1];
    for (std::size_t i = 2; i < all.size(); ++i)
        remainder += ':' + all[i];
    return {family, remainder};
}

bool isNewer(const std::string& ofFile, const std::string& own) {
    return number(ofFile) > number(own);
}

} // namespace format_model
