#include <ruqlib2core/CString.h>

#include <algorithm>
#include <vector>

namespace TEVU {

const std::size_t CString::NPOS = std::string::npos;

namespace {

struct StMarker {
    std::size_t position;
    std::size_t length;
    int number;
};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The marker that begins at \a position; number 0 when none does.
StMarker markerAt(const std::string& text, std::size_t position) {
    StMarker marker = {position, 1, 0};
    if (text[position] != '%' || text[position + 1] == '0')
        return marker;
    while (marker.length < 3 && isDigit(text[position + marker.length])) // behind the end is a NUL
        marker.number = marker.number * 10 + (text[position + marker.length++] - '0');
    return marker;
}

std::vector<StMarker> markersOf(const std::string& text) {
    std::vector<StMarker> markers;
    for (std::size_t position = 0; position < text.size(); ++position) {
        const StMarker marker = markerAt(text, position);
        if (marker.number > 0)
            markers.push_back(marker);
    }
    return markers;
}

int lowestNumber(const std::vector<StMarker>& markers) {
    int lowest = 0;
    for (const StMarker& marker : markers)
        lowest = lowest == 0 ? marker.number : std::min(lowest, marker.number);
    return lowest;
}

} // namespace

CString::CString() = default;

CString::CString(const char* text) : std::string(text ? text : "") {}

CString::CString(const std::string& text) : std::string(text) {}

CString CString::Arg(const std::string& value) const {
    const std::vector<StMarker> markers = markersOf(*this);
    const int lowest = lowestNumber(markers);
    CString filled;
    std::size_t done = 0;
    for (const StMarker& marker : markers) {
        if (marker.number != lowest)
            continue;
        filled.append(*this, done, marker.position - done).append(value);
        done = marker.position + marker.length;
    }
    return filled.append(*this, done, NPOS);
}

} // namespace TEVU
