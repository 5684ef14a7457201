#include <ChildProcess.h>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (support::ChildProcess::isOne())
        return support::ChildProcess::runItsTask();
    return RUN_ALL_TESTS();
}
