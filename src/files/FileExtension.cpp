#include "FileExtension.h"

#include "AsciiCase.h"

#include <ruqlib2core/CException.h>

namespace TEVU {

namespace {

std::string lastSections(const std::string& path, int count) {
    std::string::size_type begin = path.size() + 1;
    for (int section = 0; section < count; ++section) {
        const auto dot = begin < 2 ? std::string::npos : path.rfind('.', begin - 2);
        if (dot == std::string::npos)
            return path;
        begin = dot + 1;
    }
    return path.substr(begin);
}

// In a compound ending the last dot but one counts. The first of them that occurs anywhere wins,
// even before a later plain dot: "x.rek.gz.bak" has the extension ".rek.gz.bak".
std::string::size_type extensionBegin(const std::string& name) {
    for (const char* ending : {".iass.gz", ".svif.gz", ".rek.gz", ".stl.gz"}) {
        const auto position = name.rfind(ending);
        if (position != std::string::npos)
            return position;
    }
    return name.rfind('.');
}

// The filter with a blank behind every pattern.
std::string withPatternsEnded(const std::string& filter) {
    std::string text;
    text.reserve(filter.size() + filter.size() / 8 + 1);
    for (const char c : filter) {
        if (c == ')')
            text += ' ';
        text += c;
    }
    return text + ' ';
}

std::string firstExtension(const std::string& patterns) {
    const auto star = patterns.find('*');
    if (star == std::string::npos || patterns[star + 1] != '.')
        throw CException("CFileDialog::GetMissingExtension", "Malformed type list", nullptr);
    return patterns.substr(star + 1, patterns.find(' ', star) - star - 1);
}

} // namespace

std::string fileExtension(const std::string& path) {
    const std::string extension = lowerCase(lastSections(path, 1));
    return extension == "gz" ? lowerCase(lastSections(path, 2)) : extension;
}

std::string missingExtension(const std::string& fileName, const std::string& filter) {
    const std::string name = lowerCase(fileName);
    const std::string patterns = withPatternsEnded(filter);
    const auto begin = extensionBegin(name);
    const bool listed = begin != std::string::npos &&
                        patterns.find('*' + name.substr(begin) + ' ') != std::string::npos;
    return listed ? std::string() : firstExtension(patterns);
}

} // namespace TEVU
