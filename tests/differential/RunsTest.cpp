#include "Record.h"

#include <SecondProgram.h>
#include <TempDir.h>
#include <algorithm>
#include <gtest/gtest.h>

using differential::Record;
using support::Lines;

namespace {

const char* const c_class = "CRangeControl"; // shows no window
const std::string c_program = '"' + std::string(DIFFERENTIAL) + '"';

struct Report {
    Lines lines;
    bool good;
};

Report reportOf(const std::string& arguments) {
    support::SecondProgram program(c_program + " --class " + c_class + ' ' + arguments);
    Report report;
    for (std::string line; program.readLine(&line);) {
        line.erase(std::remove(line.begin(), line.end(), '\r'), line.end());
        report.lines.push_back(line);
    }
    report.good = program.endsWell();
    return report;
}

/// What follows "reduced to", as far as the lines begin alike.
Lines reducedIn(const Report& report) {
    auto line = std::find(report.lines.begin(), report.lines.end(), "reduced to");
    Lines operations;
    while (line != report.lines.end() && ++line != report.lines.end() &&
           line->compare(0, 6, "  both") != 0 && line->compare(0, 6, "  here") != 0)
        operations.push_back(line->substr(2));
    return operations;
}

bool says(const Report& report, const std::string& text) {
    return std::any_of(report.lines.begin(), report.lines.end(), [&](const std::string& line) {
        return line.find(text) != std::string::npos;
    });
}

/// What was recorded on Qt 3.3, in a folder where it can be falsified.
class DifferentialRunsTest : public testing::Test {
protected:
    Report reportOnRecord() {
        m_record.write(m_dir.path(), c_class);
        return reportOf("--operations 2000 --check \"" + m_dir.path() + '"');
    }

    Record m_record = Record::read(RECORDED, c_class);

private:
    support::TempDir m_dir;
};

TEST_F(DifferentialRunsTest, WhatIsAsRecordedEndsWell) {
    const Report report = reportOnRecord();
    EXPECT_TRUE(report.good);
    EXPECT_TRUE(says(report, "2000 operations as recorded"));
}

TEST_F(DifferentialRunsTest, DifferenceFromTheRecordedCaseIsReducedToWhatLeadsThere) {
    Lines operations;
    for (const std::string& line : m_record.log) {
        if (line[0] != ' ' && line[0] != '=')
            operations.push_back(line);
    }
    operations.resize(3);
    const auto third = std::find(m_record.log.begin(), m_record.log.end(), operations[2]);
    const auto state =
        std::find_if(third, m_record.log.end(), [](const auto& line) { return line[0] == '='; });
    *state = "= falsified";
    m_record.digests[0] = "00000000";

    const Report report = reportOnRecord();

    EXPECT_FALSE(report.good);
    EXPECT_EQ(reducedIn(report), operations);
    EXPECT_TRUE(says(report, "  there = falsified"));
}

TEST_F(DifferentialRunsTest, DifferenceFromADigestNamesTheOperations) {
    m_record.digests[1] = "00000000";
    const Report report = reportOnRecord();
    EXPECT_FALSE(report.good);
    EXPECT_TRUE(says(report, "differs from the record in the operations 1000 to 1999"));
}

// A program that runs another class is one that does otherwise, and so with every operation.
TEST_F(DifferentialRunsTest, DifferenceFromAnotherProgramIsReducedToTheOperationThatShowsIt) {
    const std::string another = "\\\"" DIFFERENTIAL "\\\" --class CDoubleLineEdit";
    const Report report = reportOf("--operations 200 --against \"" + another + '"');
    EXPECT_FALSE(report.good);
    EXPECT_TRUE(says(report, "case 0 differs"));
    EXPECT_EQ(reducedIn(report).size(), 1u);
}

TEST_F(DifferentialRunsTest, OtherProgramThatDoesNotRunIsNoDifference) {
    const std::string another = "\\\"" DIFFERENTIAL "\\\" --unknown";
    const Report report = reportOf("--operations 200 --against \"" + another + '"');
    EXPECT_FALSE(report.good);
    EXPECT_TRUE(reducedIn(report).empty());
}

} // namespace
