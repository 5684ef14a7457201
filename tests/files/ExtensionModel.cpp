#include "ExtensionModel.h"

#include <vector>

namespace extension_model {

namespace {

std::string lowered(std::string text) {
    for (char& letter : text) {
        if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter - 'A' + 'a');
    }
    return text;
}

std::vector<std::string> sections(const std::string& text) {
    std::vector<std::string> all(1);
    for (const char letter : text) {
        if (letter == '.')
            all.emplace_back();
        else
            all.back() += letter;
    }
    return all;
}

/// The sections from \a first on, with a dot before each.
std::string dotted(const std::vector<std::string>& all, std::size_t first) {
    std::string text;
    for (std::size_t i = first; i < all.size(); ++i)
        text += '.' + all[i];
    return text;
}

bool beginsWithGz(const std::string& section) {
    return section.size() >= 2 && section[0] == 'g' && section[1] == 'z';
}

/// The last section that begins a compound ending, or 0.
std::size_t lastCompound(const std::vector<std::string>& all, const char* kind) {
    std::size_t found = 0;
    for (std::size_t i = 1; i + 1 < all.size(); ++i) {
        if (all[i] == kind && beginsWithGz(all[i + 1]))
            found = i;
    }
    return found;
}

/// With its dot; empty for a name without any.
std::string ofName(const std::string& lowerName) {
    const std::vector<std::string> all = sections(lowerName);
    for (const char* kind : {"iass", "svif", "rek", "stl"}) {
        if (const std::size_t found = lastCompound(all, kind))
            return dotted(all, found);
    }
    return all.size() > 1 ? dotted(all, all.size() - 1) : "";
}

/// A filter from some place on, with a blank before each closing parenthesis and one at the end.
class Reader {
public:
    Reader(const std::string& filter, std::size_t place) : m_sFilter(filter), m_nPlace(place) {}

    std::optional<char> next() {
        if (m_nPlace > m_sFilter.size())
            return {};
        const bool bEnd = m_nPlace == m_sFilter.size();
        if (!m_bBlankRead && (bEnd || m_sFilter[m_nPlace] == ')')) {
            m_bBlankRead = true;
            return ' ';
        }
        m_bBlankRead = false;
        ++m_nPlace;
        return bEnd ? std::optional<char>() : m_sFilter[m_nPlace - 1];
    }

private:
    const std::string& m_sFilter;
    std::size_t m_nPlace;
    bool m_bBlankRead = false;
};

bool goesOnWith(Reader reader, const std::string& expected) {
    for (const char letter : expected) {
        if (reader.next() != letter)
            return false;
    }
    return true;
}

bool lists(const std::string& filter, const std::string& extension) {
    for (std::size_t i = 0; i < filter.size(); ++i) {
        if (filter[i] == '*' && goesOnWith(Reader(filter, i + 1), extension + ' '))
            return true;
    }
    return false;
}

std::optional<std::string> first(const std::string& filter) {
    std::size_t star = 0;
    while (star < filter.size() && filter[star] != '*')
        ++star;
    if (star == filter.size() || !goesOnWith(Reader(filter, star + 1), "."))
        return {};
    std::string extension;
    Reader reader(filter, star + 1);
    for (char letter = *reader.next(); letter != ' '; letter = *reader.next())
        extension += letter;
    return extension;
}

} // namespace

std::optional<std::string> missing(const std::string& fileName, const std::string& filter) {
    const std::string extension = ofName(lowered(fileName));
    if (!extension.empty() && lists(filter, extension))
        return std::string();
    return first(filter);
}

std::string ofFile(const std::string& path) {
    const std::vector<std::string> all = sections(lowered(path));
    const std::size_t count = all.size();
    return all.back() == "gz" && count > 1 ? all[count - 2] + ".gz" : all.back();
}

} // namespace extension_model
