// Eight processes that write to one registry, each to a key of its own and to one that all share,
// while this one looks at the file.

#include "RegistryText.h"
#include "Rounds.h"
#include "StoredImage.h"
#include "TestFolder.h"

#include <ChildProcess.h>
#include <System.h>
#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueLong.h>

#include <cerrno>
#include <gtest/gtest.h>
#include <iostream>
#include <memory>
#include <system_error>

using namespace TEVU;
using support::ChildProcess;

namespace {

const int c_nWriters = 8;
const long c_nPerWriter = 1000000; ///< Of the shared key: tells whose value it is.

std::string ownKey(int writer) {
    return "own " + std::to_string(writer);
}

/// The arguments: the registry's file, the writer, and how many numbers.
void writeNumbers(ChildProcess::Output&, const ChildProcess::Arguments& arguments) {
    const int writer = std::stoi(arguments[1]);
    const int count = std::stoi(arguments[2]);
    support::setVariable("RUQ_REGISTRY", arguments[0]);
    for (int number = 1; number <= count; ++number) {
        CRegistry::Obj().SetEntry(ownKey(writer), new CValueLong(number));
        CRegistry::Obj().SetEntry("shared", new CValueLong(writer * c_nPerWriter + number));
    }
}

/// The file's content. On Windows it is out of reach for moments, while it is being replaced; missing it is never.
std::string bytesOf(const std::string& path) {
    for (;;) {
        errno = 0;
        const std::ifstream file(path, std::ios::binary);
        if (file) {
            std::ostringstream bytes;
            bytes << file.rdbuf();
            return bytes.str();
        }
        if (errno != EACCES)
            throw std::system_error(errno, std::generic_category(), path);
    }
}

/// The numbers under the writers' own keys; reading throws when the file is torn.
std::vector<long> ownNumbers(const std::string& path) {
    std::vector<long> numbers(c_nWriters, 0);
    const auto settings = RegistryText::read(bytesOf(path));
    for (int writer = 0; writer < c_nWriters; ++writer) {
        const auto found = settings.find(ownKey(writer));
        if (found != settings.end())
            numbers[static_cast<std::size_t>(writer)] = std::get<long>(found->second);
    }
    return numbers;
}

/// Looks until every own number is \a count, and tells how often, or what it saw.
std::string lookUntilComplete(const std::string& path, long count) {
    std::vector<long> before(c_nWriters, 0);
    long looks = 0;
    while (before != std::vector<long>(c_nWriters, count)) {
        const std::vector<long> now = ownNumbers(path);
        for (std::size_t writer = 0; writer < now.size(); ++writer) {
            if (now[writer] < before[writer])
                return "writer " + std::to_string(writer) + " lost a value";
        }
        before = now;
        ++looks;
    }
    return std::to_string(looks) + " looks";
}

/// The arguments: the image's file, the pixel, and how often.
void writeImages(ChildProcess::Output&, const ChildProcess::Arguments& arguments) {
    for (int left = std::stoi(arguments[2]); left > 0; --left)
        StoredImage::SaveAs(arguments[0], std::stoi(arguments[1]));
}

/// The arguments: the image's file, and how often to look. Ends with an exception when an image cannot be read.
void readImages(ChildProcess::Output& output, const ChildProcess::Arguments& arguments) {
    for (int left = std::stoi(arguments[1]); left > 0; --left) {
        const int pixel = StoredImage::PixelOf(arguments[0]);
        if (pixel < 0)
            output.write("pixels of two images\n");
    }
}

using Writers = std::vector<std::unique_ptr<ChildProcess>>;

/// Eight processes; the arguments of each are the path, its number and \a count.
Writers startWriters(ChildProcess::Task task, const std::string& path, int count) {
    Writers writers;
    for (int writer = 0; writer < c_nWriters; ++writer) {
        const ChildProcess::Arguments arguments = {path, std::to_string(writer),
                                                   std::to_string(count)};
        writers.push_back(std::make_unique<ChildProcess>(task, arguments));
    }
    return writers;
}

void expectThatAllEndWell(const Writers& writers) {
    for (const auto& writer : writers) {
        const auto outcome = writer->wait();
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.errors, "");
    }
}

std::string look(const ChildProcess::Arguments& arguments) {
    return lookUntilComplete(arguments[0], std::stol(arguments[1])) + "\n";
}

} // namespace

TEST(ManyWriters, LoseNothingAndTearNothing) {
    const TestFolder folder;
    const int count = rounds(40);
    const std::string path = folder.Path("registry.json");
    ChildProcess(writeNumbers, {path, "0", "1"}).wait();
    ChildProcess looker(
        [](ChildProcess::Output& output, const ChildProcess::Arguments& arguments) {
            output.write(look(arguments));
        },
        {path, std::to_string(count)});
    expectThatAllEndWell(startWriters(writeNumbers, path, count));

    ASSERT_EQ(ownNumbers(path), std::vector<long>(c_nWriters, count));
    const auto settings = RegistryText::read(folder.Read("registry.json"));
    EXPECT_EQ(std::get<long>(settings.at("shared")) % c_nPerWriter, count);
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"registry.json", "registry.json.lock"}));
    const auto seen = looker.wait();
    EXPECT_EQ(seen.errors, "");
    EXPECT_NE(seen.output.find(" looks"), std::string::npos) << seen.output;
    std::cout << c_nWriters << " writers, " << 2 * count << " writes each, " << seen.output;
}

TEST(ManyWriters, OfOneImageEachStoreItWhole) {
    const StoredImage stored;
    const int count = rounds(40);

    ChildProcess reader(readImages, {stored.Path(), std::to_string(10 * count)});
    expectThatAllEndWell(startWriters(writeImages, stored.Path(), count));
    const auto seen = reader.wait();

    EXPECT_EQ(seen.errors, "");
    EXPECT_EQ(seen.output, "");

    EXPECT_LT(stored.Pixel(), c_nWriters);
    EXPECT_GE(stored.Pixel(), 0);
    EXPECT_FALSE(stored.HasNewFile());
    EXPECT_EQ(stored.ComplaintAfterTheNextSave(), "");
}
