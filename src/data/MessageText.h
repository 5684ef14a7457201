#ifndef RUQGUI_DATA_MESSAGETEXT_H
#define RUQGUI_DATA_MESSAGETEXT_H

#include <string>
#include <vector>

namespace TEVU {

/// The pattern with each "%1", "%2", … replaced by an argument, all at once: an argument that looks
/// like a marker, as a file name may, stays as it is. A marker without an argument stays too.
std::string filledIn(const std::string& pattern, const std::vector<std::string>& arguments);

} // namespace TEVU

#endif
