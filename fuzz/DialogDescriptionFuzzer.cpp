#include "Random.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

/// Each byte is a throw of the dice that a description and its parameters are made with; behind the last
/// one come zeros.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::size_t next = 0;
    const auto dice = [&](unsigned limit) { return next < size ? data[next++] % limit : 0; };
    try {
        random_maps::check(dice);
    } catch (const std::logic_error& violation) {
        std::fprintf(stderr, "%s\n", violation.what());
        std::abort();
    }
    return 0;
}
