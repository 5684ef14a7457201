// Processes that save one thing after the other and are killed at some moment.

#include "Rounds.h"
#include "StoredImage.h"
#include "StoredRegistry.h"

#include <ChildProcess.h>
#include <System.h>
#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueLong.h>

#include <gtest/gtest.h>
#include <random>
#include <unistd.h>

using namespace TEVU;
using support::ChildProcess;
using support::inChild;

namespace {

const unsigned c_nSeed = 1;
const int c_nEveryday = 60;
const unsigned c_nMostAwaited = 3;    // saves
const unsigned c_nLongestRest = 3000; // microseconds, some saves' worth

using Save = void (*)(const std::string& path, long number);

/// Saves for ever, each time with the next number from 1 on, and acknowledges each.
template <Save save>
void saveForEver(ChildProcess::Output& output, const ChildProcess::Arguments& path) {
    for (long number = 1;; ++number) {
        save(path[0], number);
        output.write(std::to_string(number) + "\n");
    }
}

/// Lets \a task run in a process and kills it; the last number that was acknowledged, or 0.
long lastBeforeTheKill(ChildProcess::Task task, const std::string& path, std::mt19937& random) {
    ChildProcess process(task, {path});
    long last = 0;
    for (unsigned awaited = random() % (c_nMostAwaited + 1); awaited > 0; --awaited)
        last = std::stol(process.readLine());
    ::usleep(random() % c_nLongestRest);
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

long numberInRegistry(const std::string& path) {
    support::setVariable("RUQ_REGISTRY", path);
    const auto outcome =
        inChild([] { return std::to_string(CRegistry::Obj().EntryLong("number", 0)); });
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
        const long last = lastBeforeTheKill(saveForEver<saveInRegistry>, stored.Path(), random);
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
        const long last = lastBeforeTheKill(saveForEver<saveImage>, stored.Path(), random);
        const int found = stored.Pixel();
        ASSERT_TRUE(found == last % 256 || found == (last + 1) % 256)
            << "round " << round << ": " << last << " acknowledged, " << found << " stored";
        ASSERT_EQ(stored.ComplaintAfterTheNextSave(), "") << "round " << round;
        saves += last;
    }
    EXPECT_GT(saves, 0);
    std::cout << wanted << " kills, " << saves << " saves, seed " << c_nSeed << std::endl;
}
