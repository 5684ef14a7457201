#include "DescriptionLines.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <locale>
#include <sstream>

namespace TEVU {

namespace {

const std::string c_sBlockBegin = "ImageJ=";
const std::string c_sUnit = "unit=";
const std::string c_sSpacing = "spacing=";
const std::string c_sImages = "images=";
const char c_sAsciiAlphanumerics[] =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

struct StLengthName {
    const char* m_sName;
    double m_dMetres;
};

const StLengthName c_LengthNames[] = {
    {"m", 1.0},
    {"cm", 1e-2},
    {"mm", 1e-3},
    {"um", 1e-6},
    {"micron", 1e-6},
    {"microns", 1e-6},
    {"\\u00B5m", 1e-6},  // as Java's property files escape
                         // it
    {"\xC2\xB5m", 1e-6}, // the micro sign in UTF-8
    {"\xCE\xBCm", 1e-6}, // the Greek letter in UTF-8
    {"\xB5m", 1e-6},     // the micro sign in Latin-1
    {"nm", 1e-9},
    {"inch", 0.0254},
};

std::optional<double> metres(const std::string& name) {
    for (const StLengthName& length : c_LengthNames)
        if (name == length.m_sName)
            return length.m_dMetres;
    return std::nullopt;
}

/// The same in every locale, unlike what the C library offers.
std::optional<double> number(const std::string& text) {
    std::istringstream stream(text);
    stream.exceptions(std::ios::badbit); // else no memory reads as no number
    stream.imbue(std::locale::classic());
    double value = 0;
    if (!(stream >> value) || !std::isfinite(value))
        return std::nullopt;
    return value;
}

unsigned count(const std::string& text) {
    const double value = number(text).value_or(0);
    return value >= 1 && value <= INT_MAX ? static_cast<unsigned>(value) : 0;
}

std::string decimal(double number) {
    std::ostringstream stream;
    stream.exceptions(std::ios::badbit); // else no memory cuts the text off
    stream.imbue(std::locale::classic());
    stream.precision(15);
    stream << number;
    return stream.str();
}

bool beginsWith(const std::string& text, const std::string& begin) {
    return text.compare(0, begin.size(), begin) == 0;
}

/// The line that begins at \a begin, without its end of line; \a next is where the next one begins.
std::string lineAt(const std::string& text, std::size_t begin, std::size_t& next) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    next = std::min(end + 1, text.size());
    const bool returns = end > begin && text[end - 1] == '\r';
    return text.substr(begin, end - begin - (returns ? 1 : 0));
}

/// A name of ASCII letters and digits, whatever the locale counts as letters, before a '='.
bool isProperty(const std::string& line) {
    const std::size_t end = line.find_first_not_of(c_sAsciiAlphanumerics);
    return end != 0 && end != std::string::npos && line[end] == '=';
}

/// The first line of a kind counts.
void heed(const std::string& line, StDescription& description) {
    if (beginsWith(line, c_sUnit) && !description.m_dUnit)
        description.m_dUnit = metres(line.substr(c_sUnit.size()));
    if (beginsWith(line, c_sSpacing) && !description.m_dPages)
        description.m_dPages = number(line.substr(c_sSpacing.size()));
}

} // namespace

StDescription parseDescription(const std::string& imageDescription) {
    StDescription description;
    const bool hasBlock = beginsWith(imageDescription, c_sBlockBegin);
    std::size_t textBegin = hasBlock ? imageDescription.size() : 0;
    for (std::size_t begin = 0, next = 0; begin < imageDescription.size(); begin = next) {
        const std::string line = lineAt(imageDescription, begin, next);
        if (hasBlock && !isProperty(line)) {
            textBegin = line.empty() ? next : begin;
            break;
        }
        heed(line, description);
        if (hasBlock && beginsWith(line, c_sImages))
            description.m_nImages = count(line.substr(c_sImages.size()));
    }
    description.m_sText = imageDescription.substr(textBegin);
    return description;
}

std::string describePages(unsigned pages, double centimetres, const std::string& text) {
    const std::string count = std::to_string(pages);
    return c_sBlockBegin + "1.54f\nimages=" + count + "\nslices=" + count + "\n" + c_sUnit +
           "cm\n" + c_sSpacing + decimal(centimetres) + "\nloop=false\n\n" + text;
}

} // namespace TEVU
