// Processes that save one thing after the other and are killed at some moment.

#include "ChildProcess.h"
#include "Rounds.h"
#include "StoredImage.h"
#include "StoredRegistry.h"

#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueLong.h>

#include <gtest/gtest.h>
#include <random>
#include <unistd.h>

using namespace TEVU;

namespace {

const unsigned c_nSeed = 1;
const int c_nEveryday = 60;
const unsigned c_nMostAwaited = 3;    // saves
const unsigned c_nLongestRest = 3000; // microseconds, some saves' worth

void acknowledge(int descriptor, long number) {
    const std::string line = std::to_string(number) + "\n";
    if (::write(descriptor, line.data(), line.size()) < 0)
        ::_exit(4);
}

/// Lets \a save run for ever in a process, each time with the next number from 1 on, and kills the
/// process; the last number that was acknowledged, or 0.
long lastBeforeTheKill(const std::function<void(long)>& save, std::mt19937& random) {
    ChildProcess process([&](int descriptor) {
        for (long number = 1;; ++number) {
            save(number);
            acknowledge(descriptor, number);
        }
    });
    long last = 0;
    for (unsigned awaited = random() % (c_nMostAwaited + 1); awaited > 0; --awaited)
        last = std::stol(process.ReadLine());
    ::usleep(random() % c_nLongestRest);
    process.Kill();
    for (std::string line = process.ReadLine(); !line.empty(); line = process.ReadLine())
        last = std::stol(line);
    return last;
}

void saveInRegistry(const std::string& path, long number) {
    ::setenv("RUQ_REGISTRY", path.c_str(), 1);
    CRegistry::Obj().SetEntry("number", new CValueLong(number));
}

long numberInRegistry(const std::string& path) {
    const auto outcome = inChild([&] {
        ::setenv("RUQ_REGISTRY", path.c_str(), 1);
        return std::to_string(CRegistry::Obj().EntryLong("number", 0));
    });
    EXPECT_EQ(outcome.errors, "");
    return std::stol(outcome.output);
}

} // namespace

TEST(KilledWhileSaving, RegistryIsWholeAndHasWhatWasAcknowledged) {
    std::mt19937 random(c_nSeed);
    long saves = 0;
    const int wanted = rounds(c_nEveryday);
    for (int round = 0; round < wanted; ++round) {
        const StoredRegistry stored;
        const long last =
            lastBeforeTheKill([&](long number) { saveInRegistry(stored.Path(), number); }, random);
        const long found = numberInRegistry(stored.Path());
        ASSERT_TRUE(found == last || found == last + 1)
            << "round " << round << ": " << last << " acknowledged, " << found << " stored";
        ASSERT_EQ(stored.Complaint(false), "") << "round " << round;
        ASSERT_EQ(stored.ComplaintAfterTheNextSave(), "") << "round " << round;
        saves += last;
    }
    EXPECT_GT(saves, 0);
    std::cout << wanted << " kills, " << saves << " saves, seed " << c_nSeed << std::endl;
}

TEST(KilledWhileSaving, ImageIsWholeAndIsTheOneThatWasAcknowledged) {
    std::mt19937 random(c_nSeed);
    long saves = 0;
    const int wanted = rounds(c_nEveryday);
    for (int round = 0; round < wanted; ++round) {
        const StoredImage stored;
        stored.Save(0);
        const long last = lastBeforeTheKill(
            [&](long number) { stored.Save(static_cast<int>(number % 256)); }, random);
        const int found = stored.Pixel();
        ASSERT_TRUE(found == last % 256 || found == (last + 1) % 256)
            << "round " << round << ": " << last << " acknowledged, " << found << " stored";
        ASSERT_EQ(stored.ComplaintAfterTheNextSave(), "") << "round " << round;
        saves += last;
    }
    EXPECT_GT(saves, 0);
    std::cout << wanted << " kills, " << saves << " saves, seed " << c_nSeed << std::endl;
}
