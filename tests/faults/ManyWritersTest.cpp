// Eight processes that write to one registry, each to a key of its own and to one that all share,
// while this one looks at the file.

#include "ChildProcess.h"
#include "RegistryText.h"
#include "Rounds.h"
#include "TestFolder.h"

#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueLong.h>

#include <gtest/gtest.h>
#include <iostream>
#include <memory>
#include <unistd.h>

using namespace TEVU;

namespace {

const int c_nWriters = 8;
const long c_nPerWriter = 1000000; ///< Of the shared key: tells whose value it is.

std::string ownKey(int writer) {
    return "own " + std::to_string(writer);
}

void writeNumbers(const std::string& path, int writer, int count) {
    ::setenv("RUQ_REGISTRY", path.c_str(), 1);
    for (int number = 1; number <= count; ++number) {
        CRegistry::Obj().SetEntry(ownKey(writer), new CValueLong(number));
        CRegistry::Obj().SetEntry("shared", new CValueLong(writer * c_nPerWriter + number));
    }
}

/// The numbers under the writers' own keys; reading throws when the file is torn.
std::vector<long> ownNumbers(const TestFolder& folder) {
    std::vector<long> numbers(c_nWriters, 0);
    const auto settings = RegistryText::read(folder.Read("registry.json"));
    for (int writer = 0; writer < c_nWriters; ++writer) {
        const auto found = settings.find(ownKey(writer));
        if (found != settings.end())
            numbers[static_cast<std::size_t>(writer)] = std::get<long>(found->second);
    }
    return numbers;
}

/// Looks until every own number is \a count, and tells how often, or what it saw.
std::string lookUntilComplete(const TestFolder& folder, long count) {
    std::vector<long> before(c_nWriters, 0);
    long looks = 0;
    while (before != std::vector<long>(c_nWriters, count)) {
        const std::vector<long> now = ownNumbers(folder);
        for (std::size_t writer = 0; writer < now.size(); ++writer) {
            if (now[writer] < before[writer])
                return "writer " + std::to_string(writer) + " lost a value";
        }
        before = now;
        ++looks;
    }
    return std::to_string(looks) + " looks";
}

} // namespace

TEST(ManyWriters, LoseNothingAndTearNothing) {
    const TestFolder folder;
    const int count = rounds(40);
    ChildProcess([&](int) { writeNumbers(folder.Path("registry.json"), 0, 1); }).Wait();
    ChildProcess looker([&](int descriptor) {
        const std::string seen = lookUntilComplete(folder, count) + "\n";
        if (::write(descriptor, seen.data(), seen.size()) < 0)
            ::_exit(4);
    });
    std::vector<std::unique_ptr<ChildProcess>> writers;
    for (int writer = 0; writer < c_nWriters; ++writer)
        writers.push_back(std::make_unique<ChildProcess>(
            [&, writer](int) { writeNumbers(folder.Path("registry.json"), writer, count); }));
    for (const auto& writer : writers) {
        const auto outcome = writer->Wait();
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.errors, "");
    }

    ASSERT_EQ(ownNumbers(folder), std::vector<long>(c_nWriters, count));
    const auto settings = RegistryText::read(folder.Read("registry.json"));
    EXPECT_EQ(std::get<long>(settings.at("shared")) % c_nPerWriter, count);
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"registry.json", "registry.json.lock"}));
    const auto seen = looker.Wait();
    EXPECT_EQ(seen.errors, "");
    EXPECT_NE(seen.output.find(" looks"), std::string::npos) << seen.output;
    std::cout << c_nWriters << " writers, " << 2 * count << " writes each, " << seen.output;
}
