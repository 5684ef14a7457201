#include "FileExtension.h"

#include "AsciiCase.h"

#include <algorithm>
#include <ruqlib2core/CException.h>
#include <string_view>

namespace TEVU {

namespace {

std::string lastSections(const std::string& path, int count) {
    std::string::size_type begin = path.size() + 1;
    for (int section = 0; section < count; ++section)
        begin = begin < 2 ? 0 : path.rfind('.', begin - 2) + 1; // 0 where there is no dot
    return path.substr(begin);
}

bool isLowered(std::string_view text, std::string_view lower) {
    return std::equal(text.begin(), text.end(), lower.begin(), lower.end(),
                      [](char c, char wanted) { return lowerCase(c) == wanted; });
}

/// Where \a text occurs last in the name, its case apart. It begins with a dot.
std::string_view::size_type lastOf(std::string_view text, std::string_view name) {
    auto dot = name.rfind('.');
    while (dot != std::string_view::npos && !isLowered(name.substr(dot, text.size()), text))
        dot = dot > 0 ? name.rfind('.', dot - 1) : std::string_view::npos;
    return dot;
}

// In a compound ending the last dot but one counts. The first of them that occurs anywhere wins,
// even before a later plain dot: "x.rek.gz.bak" has the extension ".rek.gz.bak".
std::string_view extensionOf(std::string_view name) {
    for (const char* ending : {".iass.gz", ".svif.gz", ".rek.gz", ".stl.gz", "."}) {
        const auto position = lastOf(ending, name);
        if (position != std::string_view::npos)
            return name.substr(position);
    }
    return {};
}

/// The filter with a blank before each closing parenthesis and one at its end, so that there is a blank
/// behind every pattern. Read in place: a copy of a long filter costs more than the search in it.
class PatternReader {
public:
    PatternReader(std::string_view filter, std::size_t position)
        : m_sFilter(filter), m_nPosition(position) {}

    /// Goes on by one character. \return whether that was \a expected.
    bool take(char expected) {
        if (m_nPosition > m_sFilter.size())
            return false;
        const char c = m_nPosition == m_sFilter.size() ? ' ' : m_sFilter[m_nPosition];
        m_bIsInserted = c == ')' && !m_bIsInserted;
        if (m_bIsInserted)
            return expected == ' ';
        ++m_nPosition;
        return expected == c;
    }

private:
    std::string_view m_sFilter;
    std::size_t m_nPosition;
    bool m_bIsInserted = false; ///< The last one was a blank before a parenthesis.
};

bool isPattern(PatternReader reader, std::string_view extension) {
    return std::all_of(extension.begin(), extension.end(),
                       [&reader](char c) { return reader.take(lowerCase(c)); }) &&
           reader.take(' ');
}

bool isListed(std::string_view extension, std::string_view filter) {
    auto star = filter.find('*');
    while (star != std::string_view::npos && !isPattern({filter, star + 1}, extension))
        star = filter.find('*', star + 1);
    return star != std::string_view::npos;
}

std::string_view firstExtension(std::string_view filter) {
    const auto star = filter.find('*');
    const std::string_view pattern =
        star == std::string_view::npos ? std::string_view() : filter.substr(star + 1);
    if (pattern.empty() || pattern.front() != '.')
        throw CException("CFileDialog::GetMissingExtension", "Malformed type list", nullptr);
    return pattern.substr(0, pattern.find_first_of(" )"));
}

} // namespace

std::string fileExtension(const std::string& path) {
    const std::string extension = lowerCase(lastSections(path, 1));
    return extension == "gz" ? lowerCase(lastSections(path, 2)) : extension;
}

std::string missingExtension(const std::string& fileName, const std::string& filter) {
    const std::string_view extension = extensionOf(fileName);
    const bool listed = !extension.empty() && isListed(extension, filter);
    return listed ? std::string() : std::string(firstExtension(filter));
}

} // namespace TEVU
