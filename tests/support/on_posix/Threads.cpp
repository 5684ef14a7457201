#include "Threads.h"

#include <filesystem>
#include <iterator>
#include <thread>

namespace support {

std::ptrdiff_t countThreads() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
}

bool threadsEndDownTo(std::ptrdiff_t most, std::chrono::seconds patience) {
    const auto end = std::chrono::steady_clock::now() + patience;
    while (countThreads() > most) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::yield();
    }
    return true;
}

} // namespace support
