#include "ChildProcess.h"
#include "Display.h"
#include "System.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <vector>

namespace {

const unsigned c_patience = RUQGUI_PATIENCE; // seconds

/// Each test has the patience for itself, however many run in this process.
class CPatience : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { support::giveUpAfter(c_patience); }
};

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // The list is asked for at build time, where there is no display.
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();

    support::giveUpAfter(c_patience);
    testing::UnitTest::GetInstance()->listeners().Append(new CPatience); // deleted by the list
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
