#include <CRangeControl.h>

#include <cstdio>

int main() {
    TEVU::CRangeControl spacing(0.0, 1.0, 0.25, 0.5, 0.0);
    spacing.addPage();
    spacing.addLine();
    std::printf("%g\n", spacing.value());
    return spacing.value() == 0.75 ? 0 : 1;
}
