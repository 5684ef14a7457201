#include "RatioReporter.h"

#include <cstdio>

namespace bench {

bool RatioReporter::ReportContext(const Context&) {
    std::printf("%-62s %12s %12s %-5s %6s  %-11s %6s\n", "operation", "own", "beside", "", "ratio",
                "quartiles", "target");
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        const std::string name = run.run_name.function_name;
        if (run.error_occurred) {
            std::printf("%-62s %s\n", name.c_str(), run.error_message.c_str());
            continue;
        }
        const auto counter = [&](const char* key) { return run.counters.at(key).value; };
        const bool bReached = counter("ratio") <= counter("target");
        std::printf("%-62s %12.0f %12.0f %-5s %6.2f  %5.2f-%-5.2f %6.2f  %s\n", name.c_str(),
                    counter("own"), counter("beside"), run.report_label.c_str(), counter("ratio"),
                    counter("low"), counter("high"), counter("target"),
                    bReached ? "" : "above the target");
        std::fflush(stdout);
    }
}

} // namespace bench
