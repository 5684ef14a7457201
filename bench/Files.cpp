#include "Benchmarks.h"
#include "Comparison.h"

#include <FileExtension.h>
#include <benchmark/benchmark.h>
#include <memory>

/// The extension rule beside itself, with as many patterns in shorter filters and as many characters in
/// shorter names: the ratio stays at one or below when the cost is linear.
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

void addPatterns(const char* name, int patterns, int batch) {
    const int each = patterns / 100;
    compareTime(
        {name, 1.1, batch, [patterns, each] {
             const std::string file = "/images/scan.unlisted";
             return StSides{reading(file, patterns, patterns), reading(file, patterns, each)};
         }});
}

/// Names of \a characters characters in all, of \a each: \a part again and again.
Operation naming(const std::string& part, int characters, int each) {
    std::string name;
    while (name.size() < static_cast<std::size_t>(each))
        name += part;
    name.resize(static_cast<std::size_t>(each));
    return [name = std::make_shared<std::string>(name),
            filter = std::make_shared<std::string>(filterOf(10)), times = characters / each] {
        for (int i = 0; i < times; ++i)
            benchmark::DoNotOptimize(TEVU::missingExtension(*name, *filter));
    };
}

void addNames(const char* name, const std::string& part, int characters, int batch) {
    const int each = characters / 100;
    compareTime(
        {name, 1.1, batch, [part, characters, each] {
             return StSides{naming(part, characters, characters), naming(part, characters, each)};
         }});
}

} // namespace

void addFiles() {
    addPatterns("Extension rule, 1e3 patterns : 100 filters of 10", 1000, 50);
    addPatterns("Extension rule, 1e5 patterns : 100 filters of 1e3", 100000, 1);
    addNames("Extension rule, 1e3 characters : 100 names of 10", "a", 1000, 50);
    addNames("Extension rule, 1e5 characters : 100 names of 1e3", "a", 100000, 5);
    addNames("Extension rule, 1e5 dots : 100 names of 1e3", ".", 100000, 5);
    addNames("Extension rule, 1e5 characters of an extension : 100 of 1e3", ".rek.gz", 100000, 5);
}

} // namespace bench
