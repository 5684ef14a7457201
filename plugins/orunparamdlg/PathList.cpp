#include "PathList.h"

#include <algorithm>

namespace autodlg {

namespace {

const std::size_t c_nLongestPath = 4096; // what is longer is no path, and not worth a look

/// Where the path that begins at \a begin ends.
std::size_t endOfPath(const std::string& text, std::size_t begin,
                      const std::function<bool(const std::string&)>& isFile) {
    const std::size_t firstEnd = std::min(text.find(',', begin), text.size());
    for (std::size_t end = firstEnd; end - begin <= c_nLongestPath;
         end = std::min(text.find(',', end + 1), text.size())) {
        if (isFile(text.substr(begin, end - begin)))
            return end;
        if (end == text.size())
            break;
    }
    return firstEnd;
}

} // namespace

std::string joinedPaths(const Texts& paths) {
    std::string text;
    for (const std::string& path : paths)
        text += (&path == &paths.front() ? "" : ",") + path;
    return text;
}

Texts splitPaths(const std::string& text, const std::function<bool(const std::string&)>& isFile) {
    Texts paths;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = endOfPath(text, begin, isFile);
        if (end > begin)
            paths.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return paths;
}

} // namespace autodlg
