#include "System.h"

#include <gtest/gtest.h>

namespace support {

std::string presentTest() {
    const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
    return test ? std::string(test->test_suite_name()) + '.' + test->name() : ".";
}

} // namespace support
