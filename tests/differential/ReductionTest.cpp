#include "Reduction.h"

#include <algorithm>
#include <gtest/gtest.h>

using differential::Operation;
using differential::Operations;

namespace {

Operations numbered(int count) {
    Operations operations;
    for (int i = 0; i < count; ++i)
        operations.emplace_back("do", std::vector<differential::Argument>{double(i)});
    return operations;
}

std::vector<int> numbersOf(const Operations& operations) {
    std::vector<int> numbers;
    for (const Operation& operation : operations)
        numbers.push_back(operation.integer(0));
    return numbers;
}

bool holds(const Operations& operations, int number) {
    const std::vector<int> numbers = numbersOf(operations);
    return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

} // namespace

TEST(ReductionTest, KeepsOnlyWhatTheFaultNeedsInItsOrder) {
    const Operations shortest =
        differential::reduced(numbered(100), [](const Operations& candidate) {
            return holds(candidate, 3) && holds(candidate, 50) && holds(candidate, 99);
        });
    EXPECT_EQ(numbersOf(shortest), (std::vector<int>{3, 50, 99}));
}

TEST(ReductionTest, FaultThatNeedsACountKeepsThatMany) {
    const Operations shortest = differential::reduced(
        numbered(37), [](const Operations& candidate) { return candidate.size() >= 10; });
    EXPECT_EQ(shortest.size(), 10u);
}

TEST(ReductionTest, FaultThatNeedsNothingLeavesNothing) {
    EXPECT_TRUE(differential::reduced(numbered(8), [](const Operations&) { return true; }).empty());
}

TEST(ReductionTest, FaultThatNeedsAllKeepsAll) {
    const Operations shortest = differential::reduced(
        numbered(9), [](const Operations& candidate) { return candidate.size() == 9; });
    EXPECT_EQ(shortest.size(), 9u);
}
