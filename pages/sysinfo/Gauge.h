// How far the bar of a gauge is filled.
#pragma once

#include "platform/ce.h"

// The used part in percent, cut. In unsigned arithmetic, so that a battery of unknown charge (-155 of 100
// free) has 255; 0 where there is nothing that could be used.
uint64_t GaugePercent(uint64_t total, int64_t free);
// The filled part of a bar in pixels, cut; may be wider than the bar.
int GaugeFill(uint64_t percent, int width);
