#include "Benchmarks.h"
#include "RatioReporter.h"

#include <qapplication.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    bench::addSliders();
    bench::addSpinBoxes();
    bench::addComposites();
    bench::addFiles();
    bench::addImages();

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    bench::RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
