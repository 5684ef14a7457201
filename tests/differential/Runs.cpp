#include "Runs.h"

#include "Digest.h"
#include "Peer.h"
#include "Record.h"
#include "Reduction.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
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

/// Where two logs part, with what led there.
void printDifference(const support::Lines& here, const support::Lines& there) {
    const auto shortest = static_cast<std::ptrdiff_t>(std::min(here.size(), there.size()));
    const auto parted = std::mismatch(here.begin(), here.begin() + shortest, there.begin());
    const auto index = static_cast<std::size_t>(parted.first - here.begin());
    for (std::size_t i = index < 6 ? 0 : index - 6; i < index; ++i)
        std::cout << "  both  " << here[i] << '\n';
    for (std::size_t i = index; i < std::min(index + 4, here.size()); ++i)
        std::cout << "  here  " << here[i] << '\n';
    for (std::size_t i = index; i < std::min(index + 4, there.size()); ++i)
        std::cout << "  there " << there[i] << '\n';
}

bool toldBroken(const Cases& cases, const std::string& broken) {
    if (!broken.empty())
        say(cases) << broken << std::endl;
    return !broken.empty();
}

} // namespace

bool runSummary(Cases& cases, const Options& options) {
    Digest digest;
    std::string broken;
    std::uint64_t lines = 0;
    for (std::uint64_t index = 0; index < casesOf(options.operations); ++index) {
        const support::Lines log = cases.log(index);
        const std::string verdict = verdictOn(log);
        if (isBroken(verdict) && broken.empty())
            broken = "case " + std::to_string(index) + ": " + verdict;
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
    std::string broken;
    for (std::uint64_t block = 0; block < blocksOf(options.operations); ++block)
        record.digests.push_back(blockDigest(cases, block, &broken));
    record.write(options.file, cases.className());
    say(cases) << record.digests.size() * c_nBlockLength << " operations recorded" << std::endl;
    return !toldBroken(cases, broken);
}

bool runCheck(Cases& cases, const Options& options) {
    const Record record = Record::read(options.file, cases.className());
    if (record.seed != cases.seed())
        throw std::runtime_error("the record has seed " + std::to_string(record.seed));
    const std::uint64_t blocks =
        std::min<std::uint64_t>(blocksOf(options.operations), record.digests.size());
    std::string broken;
    for (std::uint64_t block = 0; block < blocks; ++block) {
        if (blockDigest(cases, block, &broken) == record.digests[block])
            continue;
        const std::uint64_t first = block * c_nBlockLength;
        say(cases) << "differs from the record in the operations " << first << " to "
                   << first + c_nBlockLength - 1 << std::endl;
        const support::Lines log = cases.log(0);
        if (block == 0 && log != record.log)
            printDifference(log, record.log);
        return false;
    }
    say(cases) << blocks * c_nBlockLength << " operations as recorded" << std::endl;
    return !toldBroken(cases, broken) && blocks > 0;
}

bool runAgainst(Cases& cases, const Options& options) {
    Peer peer(options.command + " --class " + cases.className() + " --seed " +
              std::to_string(cases.seed()));
    const auto logThere = [&](const Operations& operations) {
        peer.askFor(operations);
        return peer.takeLog();
    };
    for (std::uint64_t index = 0; index < casesOf(options.operations); ++index) {
        peer.askForVerdict(index);
        const std::string verdict = verdictOn(cases.log(index));
        const std::string verdictThere = peer.takeVerdict();
        if (verdict == verdictThere && !isBroken(verdict))
            continue;
        say(cases) << "case " << index << " differs: " << verdict << ", " << verdictThere << "\n";
        if (!peer.isAlive())
            throw std::runtime_error("the other program has ended");
        const Operations shortest =
            reduced(cases.operations(index), [&](const Operations& candidate) {
                const support::Lines log = cases.run(candidate);
                return log != logThere(candidate) || isBroken(verdictOn(log));
            });
        std::cout << "reduced to\n";
        print(shortest);
        printDifference(cases.run(shortest), logThere(shortest));
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

namespace {

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

    bool fails(const Operations& operations) {
        peer().askFor(operations);
        const support::Lines log = m_pPeer->takeLog();
        return !m_pPeer->isAlive() || std::any_of(log.begin(), log.end(), isBroken);
    }

private:
    std::string m_sCommand;
    Peer::EnErrors m_enErrors;
    std::unique_ptr<Peer> m_pPeer;
};

} // namespace

bool runIsolated(Cases& cases, const Options& options, const std::string& program) {
    const std::string command = '"' + program + '"' + (options.rubbish ? " --rubbish" : "") +
                                " --class " + cases.className() + " --seed " +
                                std::to_string(cases.seed());
    Victim victim(command);
    for (std::uint64_t index = 0; index < casesOf(options.operations); ++index) {
        victim.peer().askForVerdict(index);
        const std::string verdict = victim.peer().takeVerdict();
        if (!verdict.empty() && !isBroken(verdict))
            continue;
        say(cases) << "case " << index << ": " << (verdict.empty() ? "it crashed" : verdict)
                   << std::endl;
        Victim silent(command, support::SecondProgram::eErrorsHidden);
        const Operations shortest =
            reduced(cases.operations(index),
                    [&](const Operations& candidate) { return silent.fails(candidate); });
        std::cout << "reduced to\n";
        print(shortest);
        std::cout << std::flush;
        victim.fails(shortest); // once more, with what it has to say
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
