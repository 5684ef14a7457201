#include "ChildProcess.h"
#include "Display.h"
#include "System.h"
#include "Threads.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <vector>

namespace {

const unsigned c_patience = RUQGUI_PATIENCE; // seconds

/// Each test has the patience for itself, however many run in this process.
class CPatience : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { support::giveUpAfter(c_patience); }
};

int run(int argc, char** argv) {
    support::prepareDisplay();
    QApplication::setDesktopSettingsAware(false);
    std::vector<char*> arguments(argv, argv + argc);
    support::addDisplayOptions(arguments);
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    const QApplication application(count, arguments.data());
    support::setTestedStyle(); // set earlier, nobody would delete it
    if (support::ChildProcess::isOne())
        return support::ChildProcess::runItsTask();
    return RUN_ALL_TESTS();
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // The list is asked for at build time, where there is no display.
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();

    support::giveUpAfter(c_patience);
    testing::UnitTest::GetInstance()->listeners().Append(new CPatience); // deleted by the list
    const int result = run(argc, argv);
#ifdef __SANITIZE_ADDRESS__
    // What a thread of the toolkit's still holds while it ends would count as a leak.
    support::threadsEndDownTo(1, std::chrono::seconds(5));
#endif
    return result;
}
