// What is measured inside the program. Each prints its rows of the table.
#pragma once

#include "bench/page/BenchApp.h"

namespace bench {

// How long one row's measurements go on.
inline constexpr double rowMs = 8000;

// The rebuild of the running applications, among windows windows of other programs, against the bare calls.
// False when the two did not list the same number of tasks.
bool MeasureRebuild(BenchApp& app, int windows);

// Painting one row's rectangle against painting the list, and how many rows are drawn for each.
void MeasureRepaint(BenchApp& app);

} // namespace bench
