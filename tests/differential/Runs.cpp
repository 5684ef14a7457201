#include "Runs.h"

#include "Digest.h"
#include "Peer.h"
#include "Record.h"
#include "Reduction.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <optional>
#include <stdexcept>

namespace differential {

namespace {

std::ostream& say(const Cases& cases) {
    return std::cout << cases.className() << ", seed " << cases.seed() << ": ";
}

std::uint64_t blocksOf(std::uint64_t operations) {
    return (operations + c_nBlockLength - 1) / c_nBlockLength;
}

void print(const support::Lines& lines) {
    for (const std::string& line : lines)
        std::cout << line << '\n';
}

void print(const Operations& operations) {
    for (const Operation& operation : operations)
        std::cout << "  " << operation.line() << '\n';
}

/// The number of the line where two logs part.
std::size_t partingLine(const support::Lines& here, const support::Lines& there) {
    const auto shortest = static_cast<std::ptrdiff_t>(std::min(here.size(), there.size()));
    const auto parted = std::mismatch(here.begin(), here.begin() + shortest, there.begin());
    return static_cast<std::size_t>(parted.first - here.begin());
}

/// With the one that makes the logs part. The state, which follows each of them, begins with "= ".
std::size_t operationsUntilTheyPart(const support::Lines& here, const support::Lines& there) {
    const auto end = here.begin() + static_cast<std::ptrdiff_t>(partingLine(here, there));
    const auto done = std::count_if(
        here.begin(), end, [](const std::string& line) { return line.compare(0, 2, "= ") == 0; });
    return static_cast<std::size_t>(done) + 1;
}

/// Where two logs part, with what led there.
void printDifference(const support::Lines& here, const support::Lines& there) {
    const std::size_t index = partingLine(here, there);
    for (std::size_t i = index < 6 ? 0 : index - 6; i < index; ++i)
        std::cout << "  both  " << here[i] << '\n';
    for (std::size_t i = index; i < std::min(index + 4, here.size()); ++i)
        std::cout << "  here  " << here[i] << '\n';
    for (std::size_t i = index; i < std::min(index + 4, there.size()); ++i)
        std::cout << "  there " << there[i] << '\n';
}

/// A process that may end under the operations, and is then started anew.
class Victim {
public:
    explicit Victim(const std::string& command,
                    Peer::EnErrors errors = support::SecondProgram::eErrorsShown)
        : m_sCommand(command), m_enErrors(errors) {}

    Peer& peer() {
        if (!m_pPeer || !m_pPeer->isAlive())
            m_pPeer = std::make_unique<Peer>(m_sCommand, m_enErrors);
        return *m_pPeer;
    }

    /// Up to where it ended, if it did.
    support::Lines log(const Operations& operations) {
        peer().askFor(operations);
        return m_pPeer->takeLog();
    }

    bool fails(const Operations& operations) {
        const support::Lines lines = log(operations);
        return !m_pPeer->isAlive() || std::any_of(lines.begin(), lines.end(), isBroken);
    }

private:
    std::string m_sCommand;
    Peer::EnErrors m_enErrors;
    std::unique_ptr<Peer> m_pPeer;
};

std::string commandOf(const Cases& cases, const Options& options, const std::string& program) {
    return '"' + program + '"' + (options.rubbish ? " --rubbish" : "") + " --class " +
           cases.className() + " --seed " + std::to_string(cases.seed());
}

/// Reduces the case to what still makes the second program crash or break a promise, and prints that.
void printReducedFault(const Cases& cases, std::uint64_t index, const std::string& command) {
    Victim silent(command, support::SecondProgram::eErrorsHidden);
    const Operations shortest = reduced(cases.operations(index), [&](const Operations& candidate) {
        return silent.fails(candidate);
    });
    std::cout << "reduced to\n";
    print(shortest);
    std::cout << std::flush;
    Victim(command).fails(shortest); // once more, with what it has to say
}

struct BrokenCase {
    std::uint64_t index = 0;
    std::string verdict;
};

/// The digest of a block out of the verdicts on its cases. \a broken becomes the first case that broke a
/// promise, if there was none before.
std::string blockDigest(Cases& cases, std::uint64_t block, std::optional<BrokenCase>* broken) {
    Digest digest;
    const std::uint64_t count = c_nBlockLength / c_nCaseLength;
    for (std::uint64_t index = block * count; index < (block + 1) * count; ++index) {
        const std::string verdict = verdictOn(cases.log(index));
        if (isBroken(verdict) && !broken->has_value())
            *broken = {index, verdict};
        digest.add(verdict);
    }
    return digest.text();
}

bool toldBroken(const Cases& cases, const std::optional<BrokenCase>& broken) {
    if (broken)
        say(cases) << "case " << broken->index << ": " << broken->verdict << std::endl;
    return broken.has_value();
}

/// A record has digests only, but for the first case, which it has whole. There, what comes behind the
/// difference is not needed; more cannot be left out without asking Qt 3.3.
void printDifferenceFromRecord(Cases& cases, const Record& record, std::uint64_t block) {
    const std::uint64_t first = block * c_nBlockLength;
    say(cases) << "differs from the record in the operations " << first << " to "
               << first + c_nBlockLength - 1 << std::endl;
    const support::Lines log = cases.log(0);
    if (block == 0 && log != record.log) {
        Operations operations = cases.operations(0);
        while (operations.size() > operationsUntilTheyPart(log, record.log))
            operations.pop_back();
        std::cout << "reduced to\n";
        print(operations);
        printDifference(log, record.log);
        return;
    }
    std::cout << "  --from " << first << " --to " << first + c_nBlockLength - 1
              << " shows them; --against this program on Qt 3.3 reduces the difference"
              << std::endl;
}

} // namespace

bool runSummary(Cases& cases, const Options& options) {
    Digest digest;
    std::optional<BrokenCase> broken;
    std::uint64_t lines = 0;
    for (std::uint64_t index = 0; index < casesOf(options.operations); ++index) {
        const support::Lines log = cases.log(index);
        const std::string verdict = verdictOn(log);
        if (isBroken(verdict) && !broken)
            broken = {index, verdict};
        digest.add(verdict);
        lines += log.size();
    }
    say(cases) << options.operations << " operations, " << lines << " lines, digest "
               << digest.text() << std::endl;
    return !toldBroken(cases, broken);
}

bool runText(Cases& cases, const Options& options) {
    const std::uint64_t last = std::max(options.from, options.to) / c_nCaseLength;
    for (std::uint64_t index = options.from / c_nCaseLength; index <= last; ++index) {
        std::cout << "# " << cases.className() << ", seed " << cases.seed() << ", case " << index
                  << '\n';
        print(cases.log(index));
    }
    return true;
}

bool runRecord(Cases& cases, const Options& options) {
    Record record;
    record.seed = cases.seed();
    record.log = cases.log(0);
    std::optional<BrokenCase> broken;
    for (std::uint64_t block = 0; block < blocksOf(options.operations); ++block)
        record.digests.push_back(blockDigest(cases, block, &broken));
    record.write(options.file, cases.className());
    say(cases) << record.digests.size() * c_nBlockLength << " operations recorded" << std::endl;
    return !toldBroken(cases, broken);
}

bool runCheck(Cases& cases, const Options& options, const std::string& program) {
    const Record record = Record::read(options.file, cases.className());
    if (record.seed != cases.seed())
        throw std::runtime_error("the record has seed " + std::to_string(record.seed));
    const std::uint64_t blocks =
        std::min<std::uint64_t>(blocksOf(options.operations), record.digests.size());
    for (std::uint64_t block = 0; block < blocks; ++block) {
        std::optional<BrokenCase> broken;
        const bool same = blockDigest(cases, block, &broken) == record.digests[block];
        if (toldBroken(cases, broken)) {
            printReducedFault(cases, broken->index, commandOf(cases, options, program));
            return false;
        }
        if (!same) {
            printDifferenceFromRecord(cases, record, block);
            return false;
        }
    }
    say(cases) << blocks * c_nBlockLength << " operations as recorded" << std::endl;
    return blocks > 0;
}

bool runAgainst(Cases& cases, const Options& options) {
    Victim there(options.command + " --class " + cases.className() + " --seed " +
                 std::to_string(cases.seed()));
    for (std::uint64_t index = 0; index < casesOf(options.operations); ++index) {
        there.peer().askForVerdict(index);
        const std::string verdict = verdictOn(cases.log(index));
        const std::string verdictThere = there.peer().takeVerdict();
        if (verdict == verdictThere && !isBroken(verdict))
            continue;
        say(cases) << "case " << index << " differs: " << verdict << ", " << verdictThere << "\n";
        if (there.fails({}))
            throw std::runtime_error("the other program does not run");
        const Operations shortest =
            reduced(cases.operations(index), [&](const Operations& candidate) {
                const support::Lines log = cases.run(candidate);
                return log != there.log(candidate) || isBroken(verdictOn(log));
            });
        std::cout << "reduced to\n";
        print(shortest);
        printDifference(cases.run(shortest), there.log(shortest));
        return false;
    }
    say(cases) << options.operations << " operations, the same there" << std::endl;
    return true;
}

bool runReplay(Cases& cases, const Options& options) {
    std::ifstream file(options.file);
    if (!file)
        throw std::runtime_error("cannot read " + options.file);
    Operations operations;
    for (std::string line; std::getline(file, line);) {
        const std::size_t begin = line.find_first_not_of(' ');
        if (begin != std::string::npos)
            operations.push_back(Operation::parsed(line.substr(begin)));
    }
    print(cases.run(operations));
    return true;
}

bool runIsolated(Cases& cases, const Options& options, const std::string& program) {
    const std::string command = commandOf(cases, options, program);
    Victim victim(command);
    for (std::uint64_t index = 0; index < casesOf(options.operations); ++index) {
        victim.peer().askForVerdict(index);
        const std::string verdict = victim.peer().takeVerdict();
        if (!verdict.empty() && !isBroken(verdict))
            continue;
        say(cases) << "case " << index << ": " << (verdict.empty() ? "it crashed" : verdict)
                   << std::endl;
        printReducedFault(cases, index, command);
        return false;
    }
    const std::string events = victim.peer().takeEvents();
    if (!victim.peer().endsWell()) {
        say(cases) << "no promise broken, but the second process did not end well" << std::endl;
        return false;
    }
    say(cases) << options.operations << (options.rubbish ? " operations of rubbish" : " operations")
               << ", " << events << " events at its widgets, no promise broken" << std::endl;
    return true;
}

} // namespace differential
