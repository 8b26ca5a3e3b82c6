// How far the bar of a gauge is filled.
#include "pages/sysinfo/Gauge.h"

static constexpr double widestFill = 32767; // beyond every screen, and within what GDI reckons with

uint64_t GaugePercent(uint64_t total, int64_t free)
{
    if (total == 0) {
        return 0;
    }
    return (total - static_cast<uint64_t>(free)) * 100 / total;
}

int GaugeFill(uint64_t percent, int width)
{
    // From the left: percent * (width * 0.01) would be a pixel short now and then.
    const double fill = static_cast<double>(percent) * width * 0.01;
    if (fill < 0) {
        return 0;
    }
    return static_cast<int>(fill < widestFill ? fill : widestFill);
}
