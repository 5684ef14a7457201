#include "MessageText.h"

namespace TEVU {

std::string filledIn(const std::string& pattern, const std::vector<std::string>& arguments) {
    std::string text;
    for (std::string::size_type i = 0; i < pattern.size(); ++i) {
        const bool marker = pattern[i] == '%' && i + 1 < pattern.size();
        const int number = marker ? pattern[i + 1] - '0' : 0;
        if (number >= 1 && number <= static_cast<int>(arguments.size())) {
            text += arguments[static_cast<std::size_t>(number - 1)];
            ++i;
        } else {
            text += pattern[i];
        }
    }
    return text;
}

} // namespace TEVU
