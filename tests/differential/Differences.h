#ifndef RUQGUI_TESTS_DIFFERENTIAL_DIFFERENCES_H
#define RUQGUI_TESTS_DIFFERENTIAL_DIFFERENCES_H

#include <string>
#include <vector>

namespace differential {

/// Something that the toolkits may do differently under these operations.
struct Difference {
    std::string what;
    std::string reason;
    std::string keptOut; ///< How it is kept out of the logs.
};

/// All there are. What else differs is a fault.
const std::vector<Difference>& differences();

} // namespace differential

#endif
