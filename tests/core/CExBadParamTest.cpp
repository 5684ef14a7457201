#include <ruqlib2core/CExBadParam.h>

#include <gtest/gtest.h>

using namespace TEVU;

TEST(CExBadParamTest, TellsItsFiveParts) {
    const CExBadParam failure("bad type", "Jan 31 2024-12:30:59", "src\\Value", "TEVU::Unwrap",
                              676);

    EXPECT_EQ(failure.Message(), "bad type");
    EXPECT_EQ(failure.BuildStamp(), "Jan 31 2024-12:30:59");
    EXPECT_EQ(failure.File(), "src\\Value");
    EXPECT_EQ(failure.Function(), "TEVU::Unwrap");
    EXPECT_EQ(failure.Line(), 676);
    EXPECT_EQ(failure.Place(), failure.Function());
}

TEST(CExBadParamTest, WhatContainsAllFiveParts) {
    const CExBadParam failure("bad type", "Jan 31 2024-12:30:59", "src\\Value", "TEVU::Unwrap",
                              676);

    EXPECT_STREQ(failure.what(),
                 "TEVU::Unwrap: bad type (src\\Value:676, built Jan 31 2024-12:30:59)");
}

TEST(CExBadParamTest, IsCaughtAsCExceptionWithItsFullText) {
    try {
        throw CExBadParam("bad", "stamp", "file", "function", 1);
    } catch (const CException& failure) {
        EXPECT_STREQ(failure.what(), "function: bad (file:1, built stamp)");
    }
}

TEST(CExBadParamTest, CopiesAreComplete) {
    CExBadParam copy("", "", "", "", 0);
    copy = CExBadParam("bad", "stamp", "file", "function", 1);

    EXPECT_EQ(copy.BuildStamp(), "stamp");
    EXPECT_EQ(copy.File(), "file");
    EXPECT_EQ(copy.Line(), 1);
    EXPECT_STREQ(copy.what(), "function: bad (file:1, built stamp)");
}
