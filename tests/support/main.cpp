#include "Display.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <execinfo.h>
#include <gtest/gtest.h>
#include <qapplication.h>
#include <unistd.h>
#include <vector>

namespace {

const unsigned c_patience = RUQGUI_PATIENCE; // seconds

void tellWhereItHangs(int) {
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    std::fprintf(stderr, "No end after %u seconds: %s.%s hangs here:\n", c_patience,
                 test ? test->test_suite_name() : "", test ? test->name() : "");
    void* frames[100];
    backtrace_symbols_fd(frames, backtrace(frames, 100), STDERR_FILENO);
    std::abort();
}

/// Each test has the patience for itself, however many run in this process.
class CPatience : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { alarm(c_patience); }
};

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // The list is asked for at build time, where there is no display.
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();

    std::signal(SIGALRM, tellWhereItHangs);
    alarm(c_patience);
    testing::UnitTest::GetInstance()->listeners().Append(new CPatience); // deleted by the list
    support::prepareDisplay();
    QApplication::setDesktopSettingsAware(false);
    std::vector<char*> arguments(argv, argv + argc);
    support::addDisplayOptions(arguments);
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    const QApplication application(count, arguments.data());
    QApplication::setStyle("windows"); // set earlier, nobody would delete it
    return RUN_ALL_TESTS();
}
