#include "MessageText.h"

namespace TEVU {

std::string filledIn(const std::string& pattern, const std::vector<std::string>& arguments) {
    std::string text;
    for (std::string::size_type i = 0; i < pattern.size(); ++i) {
        const int number = pattern[i] == '%' ? pattern[i + 1] - '0' : 0; // behind the end is a NUL
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
