#ifndef RUQGUI_TESTS_SUPPORT_VIRTUALPLACES_H
#define RUQGUI_TESTS_SUPPORT_VIRTUALPLACES_H

#include <cstddef>
#include <cstring>
#include <vector>

namespace support {

/// The index of a virtual function in the table of its class; for any other function a number that is
/// no index. Programs that were built against the library call by this index.
/// \code
/// EXPECT_TRUE(support::standInARow({support::placeOf(&Open::first), support::placeOf(&Open::second)}));
/// \endcode
template <class Class, class Function>
std::ptrdiff_t placeOf(Function Class::*function) {
    std::ptrdiff_t offset = 0; // in the table, plus 1 on some machines
    static_assert(sizeof function > sizeof offset, "the offset or address, and that of the object");
    std::memcpy(&offset, &function, sizeof offset);
    return offset / static_cast<std::ptrdiff_t>(sizeof(void*));
}

/// Whether each place is the one right behind the place before it.
inline bool standInARow(const std::vector<std::ptrdiff_t>& places) {
    for (std::size_t i = 1; i < places.size(); ++i) {
        if (places[i] != places[i - 1] + 1)
            return false;
    }
    return true;
}

} // namespace support

#endif
