// Processes that save one thing after the other and are killed at some moment.

#include "Rounds.h"
#include "StoredImage.h"
#include "StoredRegistry.h"

#include <ChildProcess.h>
#include <System.h>
#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueLong.h>

#include <chrono>
#include <gtest/gtest.h>
#include <iostream>
#include <random>
#include <thread>

using namespace TEVU;
using support::ChildProcess;

namespace {

const int c_nEveryday = 60;
const unsigned c_nMostAwaited = 3; // saves

#ifdef _WIN32
const unsigned c_nLongestRest = 20000; // microseconds, some saves' worth
#else
const unsigned c_nLongestRest = 3000;
#endif

using Save = void (*)(const std::string& path, long number);

/// Saves for ever, each time with the next number from 1 on, and acknowledges each.
template <Save save>
void saveForEver(ChildProcess::Output& output, const ChildProcess::Arguments& path) {
    for (long number = 1;; ++number) {
        save(path[0], number);
        output.write(std::to_string(number) + "\n");
    }
}

/// The moment for the kill, which is random and has no other purpose.
void rest(std::chrono::microseconds duration) {
#ifdef _WIN32
    // Busy: who sleeps is woken at multiples of a millisecond at best.
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + duration;
    while (Clock::now() < end) {
    }
#else
    std::this_thread::sleep_for(duration);
#endif
}

/// Lets \a task run in a process and kills it; the last number that was acknowledged, or 0.
long lastBeforeTheKill(ChildProcess::Task task, const std::string& path, std::mt19937& random) {
    ChildProcess process(task, {path});
    long last = 0;
    for (unsigned awaited = random() % (c_nMostAwaited + 1); awaited > 0; --awaited)
        last = std::stol(process.readLine());
    rest(std::chrono::microseconds(random() % c_nLongestRest));
    process.kill();
    for (std::string line = process.readLine(); !line.empty(); line = process.readLine())
        last = std::stol(line);
    return last;
}

void saveInRegistry(const std::string& path, long number) {
    support::setVariable("RUQ_REGISTRY", path);
    CRegistry::Obj().SetEntry("number", new CValueLong(number));
}

void saveImage(const std::string& path, long number) {
    StoredImage::SaveAs(path, static_cast<int>(number % 256));
}

struct StKills {
    int wanted = rounds(c_nEveryday);
    unsigned seed = ::seed();
    long saves = 0;
    int remains = 0;
};

std::ostream& operator<<(std::ostream& stream, const StKills& kills) {
    return stream << kills.wanted << " kills, " << kills.remains << " in the middle of writing, "
                  << kills.saves << " saves, seed " << kills.seed;
}

} // namespace

TEST(KilledWhileSaving, RegistryIsWholeAndHasWhatWasAcknowledged) {
    StKills kills;
    std::mt19937 random(kills.seed);
    for (int round = 0; round < kills.wanted; ++round) {
        const StoredRegistry stored;
        const long last = lastBeforeTheKill(saveForEver<saveInRegistry>, stored.Path(), random);
        const long found = stored.Number("number");
        ASSERT_TRUE(found == last || found == last + 1)
            << "round " << round << ": " << last << " acknowledged, " << found << " stored";
        kills.remains += stored.HasNewFile();
        ASSERT_EQ(stored.Complaint(false), "") << "round " << round << " of " << kills;
        kills.saves += last;
    }
    EXPECT_GT(kills.saves, 0);
    std::cout << kills << std::endl;
}

TEST(KilledWhileSaving, ImageIsWholeAndIsTheOneThatWasAcknowledged) {
    StKills kills;
    std::mt19937 random(kills.seed);
    for (int round = 0; round < kills.wanted; ++round) {
        const StoredImage stored;
        stored.Save(0);
        const long last = lastBeforeTheKill(saveForEver<saveImage>, stored.Path(), random);
        const int found = stored.Pixel();
        ASSERT_TRUE(found == last % 256 || found == (last + 1) % 256)
            << "round " << round << ": " << last << " acknowledged, " << found << " stored";
        kills.remains += stored.HasNewFile();
        ASSERT_EQ(stored.ComplaintAfterTheNextSave(), "") << "round " << round << " of " << kills;
        kills.saves += last;
    }
    EXPECT_GT(kills.saves, 0);
    std::cout << kills << std::endl;
}
