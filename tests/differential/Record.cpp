#include "Record.h"

#include <fstream>
#include <stdexcept>

namespace differential {

namespace {

const std::size_t c_nDigestsInLine = 10;

std::string pathOf(const std::string& folder, const std::string& className, const char* ending) {
    return folder + '/' + className + ending;
}

} // namespace

Record Record::read(const std::string& folder, const std::string& className) {
    Record record;
    const std::string path = pathOf(folder, className, ".digests");
    std::ifstream digests(path);
    std::string word;
    if (!(digests >> word >> record.seed) || word != "seed")
        throw std::runtime_error("no record in " + path);
    while (digests >> word)
        record.digests.push_back(word);
    std::ifstream log(pathOf(folder, className, ".log"));
    for (std::string line; std::getline(log, line);)
        record.log.push_back(line);
    return record;
}

void Record::write(const std::string& folder, const std::string& className) const {
    std::ofstream all(pathOf(folder, className, ".digests"), std::ios::binary);
    all << "seed " << seed;
    for (std::size_t i = 0; i < digests.size(); ++i)
        all << (i % c_nDigestsInLine ? ' ' : '\n') << digests[i];
    all << '\n';
    std::ofstream lines(pathOf(folder, className, ".log"), std::ios::binary);
    for (const std::string& line : log)
        lines << line << '\n';
    if (!all.flush() || !lines.flush())
        throw std::runtime_error("cannot write into " + folder);
}

} // namespace differential
