#ifndef RUQGUI_BENCH_BENCHMARKS_H
#define RUQGUI_BENCH_BENCHMARKS_H

namespace bench {

/// Each registers the comparisons of one family.
void addSliders();
void addSpinBoxes();
void addComposites();
void addFiles();
void addImages();

} // namespace bench

#endif
