#include "Warnings.h"

#include <gtest/gtest.h>
#include <qglobal.h>

using Lines = std::vector<std::string>;

TEST(Warnings, EachWarningIsALine) {
    const support::Warnings warnings;

    qWarning("first %d", 1);
    qWarning("second %lf", 2.5);

    EXPECT_EQ(warnings.lines(), (Lines{"first 1", "second 2.500000"}));
}

TEST(Warnings, DebugOutputIsLeftAlone) {
    const support::Warnings warnings;

    qDebug("not a warning");

    EXPECT_EQ(warnings.lines(), Lines{});
}

TEST(Warnings, TheNewestTakesThem) {
    const support::Warnings outer;
    {
        const support::Warnings inner;
        qWarning("for the inner");
        EXPECT_EQ(inner.lines(), Lines{"for the inner"});
    }
    qWarning("for the outer");

    EXPECT_EQ(outer.lines(), Lines{"for the outer"});
}
