// One save with each of its system calls refused once, and the order in which a save makes them.

#include "StoredImage.h"
#include "StoredRegistry.h"
#include "SystemCallTrace.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace {

#ifdef __SANITIZE_ADDRESS__
const bool c_bHasSanitizer = true;
#else
const bool c_bHasSanitizer = false;
#endif

template <class Stored>
StTracedRun save(const Stored& stored, const TestFolder& traces, const std::string& fault = "") {
    return runTraced(std::string(Stored::c_sKind) + " \"" + stored.Path() + '"',
                     traces.Path("trace"), fault);
}

template <class Stored>
std::vector<StSystemCall> callsOfASave() {
    const TestFolder traces;
    const Stored stored;
    StTracedRun run = save(stored, traces);
    EXPECT_EQ(run.output, "saved\n");
    EXPECT_EQ(stored.Complaint(true), "");
    return run.calls;
}

template <class Stored>
void refuseEachCallOnce(const std::string& error) {
    const TestFolder traces;
    const auto calls = callsOfASave<Stored>();
    ASSERT_GT(calls.size(), 10u);
    int refused = 0;
    for (const StSystemCall& call : calls) {
        const Stored stored;
        const StTracedRun run =
            save(stored, traces,
                 call.name + ":error=" + error + ":when=" + std::to_string(call.ordinal));
        const bool saved = run.output == "saved\n";
        refused += run.injected ? 1 : 0;
        EXPECT_TRUE(run.injected) << call.text << " was not made to fail with " << error;
        // The address sanitizer ends the process when one of its own calls is refused.
        EXPECT_TRUE(run.survived || c_bHasSanitizer) << error << " for " << call.text;
        // Who may not look at his new file takes it for removed by another; the next save removes it.
        const bool mayLeave = call.name.find("stat") != std::string::npos || !run.survived;
        EXPECT_FALSE(stored.HasNewFile() && !mayLeave) << "left: " << error << " for " << call.text;
        EXPECT_EQ(stored.Complaint(saved), "") << error << " for " << call.text;
    }
    std::cout << refused << " calls refused with " << error << std::endl;
}

/// What counts for a save that outlives a power failure, in the order of the calls: "write new",
/// "sync new", "rename", "sync folder"; repetitions in a row are one. Any other file that is synced has its name.
template <class Stored>
std::vector<std::string> stepsOfASave() {
    const TestFolder traces;
    const Stored stored;
    const StTracedRun run = save(stored, traces);
    const std::string folder = std::filesystem::path(stored.Path()).parent_path();
    const std::regex onFile("(?:write|pwrite64|writev)\\(\\d+<([^>]*)>.*");
    const std::regex onSync("(?:fsync|fdatasync)\\(\\d+<([^>]*)>.* = 0");
    std::vector<std::string> steps;
    for (const StSystemCall& call : run.calls) {
        std::smatch found;
        std::string step;
        if (std::regex_match(call.text, found, onFile) && stored.IsNewFile(found[1]))
            step = "write new";
        else if (std::regex_match(call.text, found, onSync))
            step = "sync " + (found[1] == folder           ? "folder"
                              : stored.IsNewFile(found[1]) ? "new"
                                                           : found[1].str());
        else if (call.name.compare(0, 6, "rename") == 0)
            step = "rename";
        if (!step.empty() && (steps.empty() || steps.back() != step))
            steps.push_back(step);
    }
    return steps;
}

const std::vector<std::string> c_durableSave = {"write new", "sync new", "rename", "sync folder"};

class RefusedSystemCall : public testing::TestWithParam<const char*> {};

} // namespace

TEST(StepsOfASave, RegistryIsSyncedBeforeAndAfterTheRename) {
    EXPECT_EQ(stepsOfASave<StoredRegistry>(), c_durableSave);
}

TEST(StepsOfASave, ImageIsSyncedBeforeAndAfterTheRename) {
    EXPECT_EQ(stepsOfASave<StoredImage>(), c_durableSave);
}

TEST_P(RefusedSystemCall, LeavesTheOldOrTheNewRegistry) {
    refuseEachCallOnce<StoredRegistry>(GetParam());
}

TEST_P(RefusedSystemCall, LeavesTheOldOrTheNewImage) {
    refuseEachCallOnce<StoredImage>(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Errors, RefusedSystemCall,
                         testing::Values("ENOSPC", "EIO", "EACCES", "EINTR"),
                         [](const auto& test) { return std::string(test.param); });
