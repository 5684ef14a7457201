#ifndef RUQGUI_BENCH_RATIOREPORTER_H
#define RUQGUI_BENCH_RATIOREPORTER_H

#include <benchmark/benchmark.h>

namespace bench {

/// Prints a comparison a line: both sides, the ratio with its quartiles, and the target.
class RatioReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
};

} // namespace bench

#endif
