#ifndef RUQGUI_BENCH_COMPARISON_H
#define RUQGUI_BENCH_COMPARISON_H

#include <functional>
#include <string>

/// Measures an operation of the library and something to compare it with, the two in turn.
namespace bench {

using Operation = std::function<void()>;

/// What an operation works on lives as long as the operation.
struct StSides {
    Operation own;
    Operation beside;
};

struct StComparison {
    std::string name;
    double target; ///< The greatest ratio wished for.
    int batch;     ///< How often an operation is done between two looks at the clock.
    std::function<StSides()> make;
};

/// The ratio of the processor time that both sides take: the median over many pairs of batches. Every
/// second pair begins with the other side.
void compareTime(const StComparison& comparison);

/// compareTime() in the style "Fusion" and in the style "Windows".
void compareTimeInStyles(const StComparison& comparison, double windowsTarget);

/// The ratio of the heap that both sides fill.
/// \param comparison its operations make one more object, which is kept as long as they are
void compareHeap(const StComparison& comparison);

/// The heap in use, in bytes.
double heapInUse();

} // namespace bench

#endif
