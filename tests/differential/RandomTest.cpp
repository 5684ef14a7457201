#include "Random.h"

#include "Digest.h"

#include <gtest/gtest.h>
#include <limits>
#include <set>

using differential::mixedSeed;
using differential::Random;

TEST(RandomTest, NumbersOfASeedAreTheSameEverywhere) {
    Random random(1);
    std::vector<long long> numbers;
    for (int i = 0; i < 6; ++i)
        numbers.push_back(random.number(0, 99));
    EXPECT_EQ(numbers, (std::vector<long long>{28, 62, 30, 46, 84, 9}));
}

TEST(RandomTest, BothEndsOfARangeComeAndNothingBeyond) {
    Random random(7);
    std::set<long long> seen;
    for (int i = 0; i < 1000; ++i)
        seen.insert(random.number(-2, 2));
    EXPECT_EQ(seen, (std::set<long long>{-2, -1, 0, 1, 2}));
}

TEST(RandomTest, RangeMayBeThatOfAllIntegers) {
    Random random(7);
    bool negative = false;
    bool positive = false;
    for (int i = 0; i < 100; ++i) {
        const long long number = random.number(std::numeric_limits<long long>::min(),
                                               std::numeric_limits<long long>::max());
        negative = negative || number < 0;
        positive = positive || number > 0;
    }
    EXPECT_TRUE(negative && positive);
}

TEST(RandomTest, SeedDependsOnEachOfItsParts) {
    const std::set<std::uint64_t> seeds = {mixedSeed(1, "A", 0), mixedSeed(2, "A", 0),
                                           mixedSeed(1, "B", 0), mixedSeed(1, "A", 1)};
    EXPECT_EQ(seeds.size(), 4u);
}

TEST(DigestTest, DependsOnTheLinesAndTheirEnds) {
    differential::Digest one;
    one.add("ab");
    one.add("c");
    differential::Digest other;
    other.add("a");
    other.add("bc");
    EXPECT_NE(one.text(), other.text());
    EXPECT_EQ(one.text().size(), 8u);
}
