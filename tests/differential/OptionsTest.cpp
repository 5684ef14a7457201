#include "Options.h"

#include <gtest/gtest.h>
#include <stdexcept>

using differential::Options;

TEST(DifferentialOptionsTest, WithoutArgumentsEachClassIsCounted) {
    const Options options = Options::parsed({});
    EXPECT_EQ(options.mode, Options::Summary);
    EXPECT_TRUE(options.classes.empty());
    EXPECT_EQ(options.seed, 1u);
    EXPECT_EQ(options.operations, 10000u);
    EXPECT_FALSE(options.isolated);
}

TEST(DifferentialOptionsTest, ArgumentsAreReadInAnyOrder) {
    const Options options = Options::parsed(
        {"--operations", "5", "--class", "A", "--check", "folder", "--class", "B", "--seed", "9"});
    EXPECT_EQ(options.mode, Options::Check);
    EXPECT_EQ(options.file, "folder");
    EXPECT_EQ(options.classes, (std::vector<std::string>{"A", "B"}));
    EXPECT_EQ(options.seed, 9u);
    EXPECT_EQ(options.operations, 5u);
}

TEST(DifferentialOptionsTest, RubbishIsIsolated) {
    const Options options = Options::parsed({"--rubbish"});
    EXPECT_TRUE(options.rubbish && options.isolated);
}

TEST(DifferentialOptionsTest, WhatIsUnknownOrIncompleteIsRefused) {
    EXPECT_THROW(Options::parsed({"--speed"}), std::runtime_error);
    EXPECT_THROW(Options::parsed({"--seed"}), std::runtime_error);
    EXPECT_THROW(Options::parsed({"--seed", "-1"}), std::runtime_error);
    EXPECT_THROW(Options::parsed({"--seed", "3x"}), std::runtime_error);
}
