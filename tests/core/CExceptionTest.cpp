#include <ruqlib2core/CException.h>

#include <ruqlib2core/CExBadParam.h>

#include <gtest/gtest.h>

#include <memory>

using namespace TEVU;

TEST(CExceptionTest, WhatIsPlaceColonMessage) {
    const CException failure("CImageFile::Read", "no such file");

    EXPECT_STREQ(failure.what(), "CImageFile::Read: no such file");
    EXPECT_EQ(failure.Place(), "CImageFile::Read");
    EXPECT_EQ(failure.Message(), "no such file");
    EXPECT_EQ(failure.Cause(), nullptr);
}

TEST(CExceptionTest, CauseOutlivesTheExceptionItWasMadeFrom) {
    auto deepest = std::make_unique<CException>("c", "deepest");
    auto middle = std::make_unique<CException>("b", "middle", deepest.get());
    const CException failure("a", "top", middle.get());
    deepest.reset();
    middle.reset();

    ASSERT_NE(failure.Cause(), nullptr);
    EXPECT_STREQ(failure.Cause()->what(), "b: middle");
    ASSERT_NE(failure.Cause()->Cause(), nullptr);
    EXPECT_STREQ(failure.Cause()->Cause()->what(), "c: deepest");
}

TEST(CExceptionTest, CopiesAreComplete) {
    const CException cause("b", "cause");
    CException copy("x", "y");
    {
        const CException failure("a", "top", &cause);
        copy = failure;
    }
    const CException second(copy);

    EXPECT_STREQ(second.what(), "a: top");
    ASSERT_NE(second.Cause(), nullptr);
    EXPECT_STREQ(second.Cause()->what(), "b: cause");
}

TEST(CExceptionTest, CauseOfADerivedClassKeepsItsWhat) {
    const CExBadParam cause("bad", "Jan 31 2024-12:30:59", "f.cpp", "f", 1);

    const CException failure("a", "top", &cause);

    EXPECT_STREQ(failure.Cause()->what(), cause.what());
}

TEST(CExceptionTest, IsAStandardException) {
    try {
        throw CException("place", "message");
    } catch (const std::exception& failure) {
        EXPECT_STREQ(failure.what(), "place: message");
    }
}
