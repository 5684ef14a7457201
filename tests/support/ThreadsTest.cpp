#include "Threads.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

namespace {

using namespace std::chrono_literals;

std::atomic<int> s_nGone = 0;

struct LastWords {
    ~LastWords() {
        std::this_thread::yield();
        ++s_nGone;
    }
};

TEST(Threads, AreWaitedForUntilTheyAreGoneAltogether) {
    const std::ptrdiff_t before = support::countThreads();
    for (int i = 1; i <= 20; ++i) {
        std::thread([] { thread_local const LastWords s_words; }).detach();

        EXPECT_TRUE(support::threadsEndDownTo(before, 60s));

        EXPECT_EQ(s_nGone, i);
    }
}

TEST(Threads, ThatStayAreNotWaitedForLongerThanThePatience) {
    const std::ptrdiff_t before = support::countThreads();
    std::atomic<bool> mayEnd = false;
    std::thread thread([&] {
        while (!mayEnd)
            std::this_thread::yield();
    });

    EXPECT_FALSE(support::threadsEndDownTo(before, 0s));

    mayEnd = true;
    thread.join();
}

} // namespace
