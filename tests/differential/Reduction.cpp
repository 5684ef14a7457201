#include "Reduction.h"

#include <algorithm>

namespace differential {

namespace {

Operations without(const Operations& operations, std::size_t begin, std::size_t count) {
    Operations rest(operations.begin(), operations.begin() + static_cast<std::ptrdiff_t>(begin));
    const std::size_t end = std::min(begin + count, operations.size());
    rest.insert(rest.end(), operations.begin() + static_cast<std::ptrdiff_t>(end),
                operations.end());
    return rest;
}

} // namespace

// Pieces go from the end: what came last is least likely to be needed by the others.
Operations reduced(const Operations& operations,
                   const std::function<bool(const Operations&)>& fails) {
    Operations kept = operations;
    std::size_t piece = std::max<std::size_t>(kept.size() / 2, 1);
    while (true) {
        bool shorter = false;
        for (std::size_t pieces = (kept.size() + piece - 1) / piece; pieces-- > 0;) {
            const Operations candidate = without(kept, pieces * piece, piece);
            if (candidate.size() < kept.size() && fails(candidate)) {
                kept = candidate;
                shorter = true;
            }
        }
        if (piece == 1 && !shorter)
            return kept;
        piece = shorter ? piece : std::max<std::size_t>(piece / 2, 1);
    }
}

} // namespace differential
