// One save with each of its calls of the system's refused once, or the last thing that its process does, and the
// order in which a save makes them.

#include "HookedCalls.h"
#include "Rounds.h"
#include "Saving.h"
#include "StoredImage.h"
#include "StoredRegistry.h"

#include <ChildProcess.h>

#include <gtest/gtest.h>
#include <iostream>
#include <random>
#include <set>
#include <sstream>
#include <windows.h>

using support::ChildProcess;

namespace {

using Calls = std::vector<std::string>;

const char* const c_rename = "NtSetInformationFile 10";

const int c_deadStatus = 9; // ChildProcess's own

enum EnFault : long {
    eNone,
    eTermination,
    eExit
}; ///< Others are the status that a refused call has.

std::string textOf(const Calls& calls) {
    std::string text;
    for (const std::string& call : calls)
        text += call + "\n";
    return text;
}

Calls linesOf(const std::string& text) {
    Calls lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// Saves once. Writes the calls, then "saved" when it is; or the call that was chosen, before anything happens to it.
/// The arguments: kind, path, EnFault, the number of the call.
void save(ChildProcess::Output& output, const ChildProcess::Arguments& arguments) {
    const long fault = std::stol(arguments[2]);
    const auto instead = [&output, fault](const std::string& call) {
        output.write(call + "\n");
        if (fault == eTermination)
            ChildProcess::killThis();
        if (fault == eExit)
            ::ExitProcess(c_deadStatus);
        return fault;
    };
    // The first random number loads a library of the system's. Not to find it ends the process.
    std::random_device()();
    Calls calls;
    const bool saved = savesOnce(
        arguments[0], arguments[1], [&] { hooked_calls::begin(std::stoi(arguments[3]), instead); },
        [&] { calls = hooked_calls::end(); });
    if (fault == eNone)
        output.write(textOf(calls));
    if (saved)
        output.write("saved\n");
}

/// What save() wrote.
template <class Stored>
Calls saving(const Stored& stored, long fault = eNone, std::size_t number = 0) {
    const auto outcome = ChildProcess(save, {Stored::c_sKind, stored.Path(), std::to_string(fault),
                                             std::to_string(number)})
                             .wait();
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.status, fault == eTermination || fault == eExit ? c_deadStatus : 0);
    return linesOf(outcome.output);
}

template <class Stored>
Calls callsOfASave() {
    const Stored stored;
    Calls calls = saving(stored);
    EXPECT_EQ(calls.back(), "saved");
    EXPECT_EQ(stored.Complaint(true), "");
    calls.pop_back();
    return calls;
}

/// The numbers, from 1, of the calls before which the files are in another state than before the last, or would be if
/// the call had not come: those that make files, write, lock and rename, and the one behind the rename.
std::vector<std::size_t> steps(const Calls& calls) {
    std::vector<std::size_t> numbers;
    for (std::size_t at = 0; at < calls.size(); ++at) {
        if (calls[at] == "NtCreateFile" || calls[at] == "NtLockFile" ||
            calls[at] == "NtWriteFile" || calls[at] == "NtFlushBuffersFile" ||
            calls[at] == c_rename || (at > 0 && calls[at - 1] == c_rename))
            numbers.push_back(at + 1);
    }
    return numbers;
}

template <class Stored>
void dieAtEachStep(EnFault death) {
    const Calls calls = callsOfASave<Stored>();
    std::set<std::string> diedAt;
    int remains = 0;
    for (const std::size_t number : steps(calls)) {
        const Stored stored;
        const std::string& call = calls[number - 1];
        SCOPED_TRACE("death at call " + std::to_string(number) + ", " + call);
        EXPECT_EQ(saving(stored, death, number), Calls{call});
        remains += stored.HasNewFile();
        EXPECT_EQ(stored.Complaint(false), "");
        diedAt.insert(call);
    }
    for (const char* call : {"NtLockFile", "NtWriteFile", "NtFlushBuffersFile", c_rename})
        EXPECT_EQ(diedAt.count(call), 1u) << call;
    EXPECT_GE(remains, 3) << "at least while writing, before the flush, before the rename";
    std::cout << steps(calls).size() << " deaths, " << remains << " in the middle of writing"
              << std::endl;
}

template <class Stored>
void refuseCalls(long status) {
    const Calls calls = callsOfASave<Stored>();
    const std::size_t distance = isLongRun() ? 1 : 12;
    int refused = 0;
    for (std::size_t number = 1 + seed() % distance; number <= calls.size(); number += distance) {
        const std::string& call = calls[number - 1];
        if (call == "NtClose") // the system does not refuse it
            continue;
        const Stored stored;
        SCOPED_TRACE("refused: call " + std::to_string(number) + ", " + call);
        const Calls said = saving(stored, status, number);
        ASSERT_FALSE(said.empty());
        EXPECT_EQ(said.front(), call);
        EXPECT_EQ(stored.Complaint(said.back() == "saved"), "");
        ++refused;
    }
    EXPECT_GT(refused, 0);
    std::cout << refused << " of " << calls.size() << " calls refused" << std::endl;
}

/// What counts for a save that outlives a power failure, in the order of the calls; repetitions in a row are one.
template <class Stored>
Calls durableSteps() {
    Calls found;
    for (const std::string& call : callsOfASave<Stored>()) {
        const bool counts =
            call == "NtWriteFile" || call == "NtFlushBuffersFile" || call == c_rename;
        if (counts && (found.empty() || found.back() != call))
            found.push_back(call);
    }
    return found;
}

const Calls c_durableSave = {"NtWriteFile", "NtFlushBuffersFile", c_rename};

struct StDeath {
    const char* name;
    EnFault how;
};
class DeathAtASystemCall : public testing::TestWithParam<StDeath> {};

struct StRefusal {
    const char* name;
    long status;
};
class RefusedSystemCall : public testing::TestWithParam<StRefusal> {};

} // namespace

TEST(StepsOfASave, RegistryIsFlushedBeforeTheRename) {
    EXPECT_EQ(durableSteps<StoredRegistry>(), c_durableSave);
}

TEST(StepsOfASave, ImageIsFlushedBeforeTheRename) {
    EXPECT_EQ(durableSteps<StoredImage>(), c_durableSave);
}

TEST_P(DeathAtASystemCall, LeavesTheOldOrTheNewRegistry) {
    dieAtEachStep<StoredRegistry>(GetParam().how);
}

TEST_P(DeathAtASystemCall, LeavesTheOldOrTheNewImage) {
    dieAtEachStep<StoredImage>(GetParam().how);
}

INSTANTIATE_TEST_SUITE_P(By, DeathAtASystemCall,
                         testing::Values(StDeath{"TerminateProcess", eTermination},
                                         StDeath{"ExitProcess", eExit}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(RefusedSystemCall, LeavesTheOldOrTheNewRegistry) {
    refuseCalls<StoredRegistry>(GetParam().status);
}

TEST_P(RefusedSystemCall, LeavesTheOldOrTheNewImage) {
    refuseCalls<StoredImage>(GetParam().status);
}

INSTANTIATE_TEST_SUITE_P(Errors, RefusedSystemCall,
                         testing::Values(StRefusal{"DiskFull", long(0xC000007F)},
                                         StRefusal{"IoDeviceError", long(0xC0000185)},
                                         StRefusal{"AccessDenied", long(0xC0000022)},
                                         StRefusal{"SharingViolation", long(0xC0000043)}),
                         [](const auto& test) { return std::string(test.param.name); });
