#include "Differences.h"
#include "Options.h"
#include "Peer.h"
#include "Runs.h"
#include "subjects/Subjects.h"

#include <Display.h>
#include <gtest/gtest.h>
#include <iostream>
#include <qapplication.h>
#include <stdexcept>

using differential::Cases;
using differential::Options;

namespace {

bool runClass(Cases& cases, const Options& options, const std::string& program) {
    switch (options.mode) {
    case Options::Text:
        return runText(cases, options);
    case Options::Record:
        return runRecord(cases, options);
    case Options::Check:
        return runCheck(cases, options, program);
    case Options::Against:
        return runAgainst(cases, options);
    case Options::Replay:
        return runReplay(cases, options);
    case Options::Serve:
        serve(cases);
        return true;
    default:
        return options.isolated ? runIsolated(cases, options, program) : runSummary(cases, options);
    }
}

bool run(Options options, const std::string& program) {
    if (options.classes.empty()) {
        for (const differential::SubjectKind& kind : differential::subjectKinds())
            options.classes.push_back(kind.className);
    }
    differential::Stage stage;
    bool good = true;
    for (const std::string& name : options.classes) {
        Cases cases(stage, name, options.seed, options.rubbish);
        good = runClass(cases, options, program) && good;
    }
    return good;
}

bool explain(Options::Mode mode) {
    if (mode == Options::Help)
        std::cout << Options::usage();
    for (const differential::Difference& each : differential::differences()) {
        if (mode == Options::Differences)
            std::cout << "- " << each.what << ".\n  Why: " << each.reason
                      << ".\n  So: " << each.keptOut << ".\n";
    }
    return mode == Options::Help || mode == Options::Differences;
}

} // namespace

int main(int argc, char** argv) {
    const std::string program = argv[0];
    try {
        const Options options = Options::parsed({argv + 1, argv + argc});
        if (explain(options.mode))
            return 0;
        testing::InitGoogleTest(&argc, argv); // the tests' support tells faults to it
        support::prepareDisplay();
        QApplication::setDesktopSettingsAware(false);
        const QApplication application(argc, argv);
        support::setTestedStyle();
        return run(options, program) ? 0 : 1;
    } catch (const std::exception& fault) {
        std::cerr << "differential: " << fault.what() << '\n';
        return 2;
    }
}
