#include "Threads.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

namespace {

using namespace std::chrono_literals;

/// The last thing that a thread does which has one.
struct LastWords {
    ~LastWords() {
        std::this_thread::yield();
        ++*m_pGone;
    }

    std::atomic<int>* m_pGone;
};

TEST(Threads, AreWaitedForUntilTheyAreGoneAltogether) {
    const std::ptrdiff_t before = support::countThreads();
    std::atomic<int> gone = 0;
    for (int i = 1; i <= 20; ++i) {
        std::thread([&] { thread_local const LastWords s_words{&gone}; }).detach();

        ASSERT_TRUE(support::threadsEndDownTo(before, 60s));

        EXPECT_EQ(gone, i);
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
