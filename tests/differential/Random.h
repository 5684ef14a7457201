#ifndef RUQGUI_TESTS_DIFFERENTIAL_RANDOM_H
#define RUQGUI_TESTS_DIFFERENTIAL_RANDOM_H

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace differential {

/// Random numbers that are the same wherever this is compiled: the engine is fixed by the language,
/// the distributions are our own.
class Random {
public:
    explicit Random(std::uint64_t seed) : m_engine(seed) {}

    /// \a least and \a greatest may both come.
    long long number(long long least, long long greatest);
    bool chance(int percent) { return number(0, 99) < percent; }

    template <class T>
    const T& pick(const std::vector<T>& from) {
        return from[static_cast<std::size_t>(number(0, static_cast<long long>(from.size()) - 1))];
    }

private:
    std::mt19937_64 m_engine;
};

/// One seed out of several things: a change of any of them gives another one.
std::uint64_t mixedSeed(std::uint64_t seed, const std::string& name, std::uint64_t index);

} // namespace differential

#endif
