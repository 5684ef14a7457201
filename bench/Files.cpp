#include "Benchmarks.h"
#include "Comparison.h"

#include <FileExtension.h>
#include <benchmark/benchmark.h>
#include <memory>

/// The extension rule beside itself, with as many patterns in shorter filters: the ratio stays at one or
/// below when the cost is linear.
namespace bench {

namespace {

std::string filterOf(int patterns) {
    std::string filter = "Images (";
    for (int i = 0; i < patterns; ++i)
        filter += (i > 0 ? " *.e" : "*.e") + std::to_string(100000 + i);
    return filter + ')';
}

/// Reads \a patterns patterns in all, in filters of \a each.
Operation reading(const std::string& name, int patterns, int each) {
    const auto filter = std::make_shared<std::string>(filterOf(each));
    return [name, filter, times = patterns / each] {
        for (int i = 0; i < times; ++i)
            benchmark::DoNotOptimize(TEVU::missingExtension(name, *filter));
    };
}

void add(const char* name, int patterns, int batch) {
    const int each = patterns / 100;
    compareTime(
        {name, 1.1, batch, [patterns, each] {
             const std::string file = "/images/scan.unlisted";
             return StSides{reading(file, patterns, patterns), reading(file, patterns, each)};
         }});
}

} // namespace

void addFiles() {
    add("Extension rule, 1e3 patterns : 100 filters of 10", 1000, 50);
    add("Extension rule, 1e5 patterns : 100 filters of 1e3", 100000, 1);
}

} // namespace bench
