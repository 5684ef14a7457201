#include "Operation.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <stdexcept>

using differential::Operation;

namespace {

Operation again(const Operation& operation) {
    return Operation::parsed(operation.line());
}

} // namespace

TEST(OperationTest, LineHasTheNameAndTheArguments) {
    EXPECT_EQ(Operation("resize", {200.0, 24.0}).line(), "resize 200 24");
    EXPECT_EQ(Operation("setText", {"a \"b\"", 1.0}).line(), "setText \"a \\x22b\\x22\" 1");
    EXPECT_EQ(Operation("stepUp").line(), "stepUp");
}

TEST(OperationTest, NumbersComeBackExactly) {
    for (const double number : {0.1, 1e300, -2.2e-308, 4.9e-324, 2147483647.0, -0.0}) {
        const double read = again(Operation("set", {number})).real(0);
        EXPECT_EQ(read, number);
        EXPECT_EQ(std::signbit(read), std::signbit(number));
    }
    EXPECT_TRUE(std::isnan(again(Operation("set", {std::nan("")})).real(0)));
    EXPECT_TRUE(std::isinf(again(Operation("set", {-HUGE_VAL})).real(0)));
}

TEST(OperationTest, TextsComeBackByteByByte) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    const Operation read = again(Operation("set", {all, "", "\\x41", 7.0}));
    EXPECT_EQ(read.text(0), all);
    EXPECT_EQ(read.text(1), "");
    EXPECT_EQ(read.text(2), "\\x41");
    EXPECT_EQ(read.integer(3), 7);
}

TEST(OperationTest, IntegersAreClampedIntoTheirRange) {
    EXPECT_EQ(Operation("set", {1e300}).integer(0), std::numeric_limits<int>::max());
    EXPECT_EQ(Operation("set", {-1e300}).integer(0), std::numeric_limits<int>::min());
    EXPECT_EQ(Operation("set", {std::nan("")}).integer(0), 0);
}

TEST(OperationTest, MissingArgumentsAreZeroAndEmpty) {
    EXPECT_EQ(Operation("set").real(3), 0.0);
    EXPECT_EQ(Operation("set").text(0), "");
}

TEST(OperationTest, LineThatIsNoneIsRefused) {
    EXPECT_THROW(Operation::parsed("set word"), std::runtime_error);
    EXPECT_THROW(Operation::parsed("set \"no end"), std::runtime_error);
}
