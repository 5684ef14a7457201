#include "Comparison.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <ctime>
#include <malloc.h>
#include <qapplication.h>
#include <vector>

namespace bench {

namespace {

const int c_nPairs = 101;
const int c_nHeapPairs = 5;

/// Of this thread: what other programs take from the machine does not count.
double nanoseconds() {
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e9 + static_cast<double>(now.tv_nsec);
}

double increaseOf(double (*quantity)(), const Operation& operation, int batch) {
    const double before = quantity();
    for (int i = 0; i < batch; ++i)
        operation();
    return (quantity() - before) / batch;
}

double quantile(std::vector<double> values, double part) {
    const auto nth =
        values.begin() + static_cast<std::ptrdiff_t>(part * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), nth, values.end());
    return *nth;
}

/// What both sides took, pair by pair.
class Pairs {
public:
    void measure(double (*quantity)(), const StSides& sides, int batch) {
        const bool bOwnFirst = m_vRatios.size() % 2 == 0;
        const double first = increaseOf(quantity, bOwnFirst ? sides.own : sides.beside, batch);
        const double second = increaseOf(quantity, bOwnFirst ? sides.beside : sides.own, batch);
        m_vOwn.push_back(bOwnFirst ? first : second);
        m_vBeside.push_back(bOwnFirst ? second : first);
        m_vRatios.push_back(m_vOwn.back() / m_vBeside.back());
    }

    void report(benchmark::State& state, double target) const {
        state.counters["own"] = quantile(m_vOwn, 0.5);
        state.counters["beside"] = quantile(m_vBeside, 0.5);
        state.counters["ratio"] = quantile(m_vRatios, 0.5);
        state.counters["low"] = quantile(m_vRatios, 0.25);
        state.counters["high"] = quantile(m_vRatios, 0.75);
        state.counters["target"] = target;
    }

private:
    std::vector<double> m_vOwn;
    std::vector<double> m_vBeside;
    std::vector<double> m_vRatios;
};

void measureTime(benchmark::State& state, const StComparison& comparison) {
    const StSides sides = comparison.make();
    Pairs().measure(nanoseconds, sides, comparison.batch); // fills the caches
    Pairs pairs;
    for (const auto _ : state)
        pairs.measure(nanoseconds, sides, comparison.batch);
    state.SetLabel("ns");
    pairs.report(state, comparison.target);
}

void measureHeap(benchmark::State& state, const StComparison& comparison) {
    const StSides sides = comparison.make();
    Pairs().measure(heapInUse, sides, comparison.batch);
    Pairs pairs;
    for (const auto _ : state)
        pairs.measure(heapInUse, sides, comparison.batch);
    state.SetLabel("bytes");
    pairs.report(state, comparison.target);
}

} // namespace

double heapInUse() {
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

void compareTime(const StComparison& comparison) {
    benchmark::RegisterBenchmark(comparison.name.c_str(), measureTime, comparison)
        ->Iterations(c_nPairs);
}

void compareTimeInStyles(const StComparison& comparison, double windowsTarget) {
    const struct {
        const char* name;
        double target;
    } styles[] = {{"Fusion", comparison.target}, {"Windows", windowsTarget}};
    for (const auto& style : styles) {
        StComparison inStyle = comparison;
        inStyle.name = style.name + std::string("/") + comparison.name;
        inStyle.target = style.target;
        inStyle.make = [make = comparison.make, styleName = style.name] {
            QApplication::setStyle(styleName);
            return make();
        };
        compareTime(inStyle);
    }
}

void compareHeap(const StComparison& comparison) {
    benchmark::RegisterBenchmark(comparison.name.c_str(), measureHeap, comparison)
        ->Iterations(c_nHeapPairs);
}

} // namespace bench
