#ifndef RUQGUI_TESTS_SUPPORT_THREADS_H
#define RUQGUI_TESTS_SUPPORT_THREADS_H

#include <chrono>
#include <cstddef>

namespace support {

/// The threads of this process, with those that are about to end.
std::ptrdiff_t countThreads();

/// Waits until no more than so many threads are left, at most as long as the patience.
/// \return whether it is so.
bool threadsEndDownTo(std::ptrdiff_t most, std::chrono::seconds patience);

} // namespace support

#endif
