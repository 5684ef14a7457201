#include "Random.h"

#include "Digest.h"

namespace differential {

// The remainder prefers small numbers by less than one part in 2^31 for any range of ints.
long long Random::number(long long least, long long greatest) {
    const std::uint64_t count =
        static_cast<std::uint64_t>(greatest) - static_cast<std::uint64_t>(least) + 1;
    const std::uint64_t drawn = m_engine();
    return static_cast<long long>(static_cast<std::uint64_t>(least) +
                                  (count ? drawn % count : drawn));
}

std::uint64_t mixedSeed(std::uint64_t seed, const std::string& name, std::uint64_t index) {
    Digest digest;
    digest.add(name + ' ' + std::to_string(seed) + ' ' + std::to_string(index));
    return digest.value();
}

} // namespace differential
