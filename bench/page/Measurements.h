// What is measured inside the program. Each prints its rows of the table.
#pragma once

#include "bench/page/BenchApp.h"

#include <string>

namespace bench {

// How long one row's measurements go on.
inline constexpr double rowMs = 8000;

// The rebuild of the running applications, among windows windows of other programs, against the bare calls.
// False when the two did not list the same number of tasks.
bool MeasureRebuild(BenchApp& app, int windows);
// The same of the processes that there are.
bool MeasureProcesses(BenchApp& app);

// A search as it is typed, and the reading of the Start menu, with a thousand programs more than there are.
// False when they could not be made or not all were found.
bool MeasureLauncher(BenchApp& app);

// Painting one row's rectangle, the third row's of the shown part, against painting the list, and how many
// rows are drawn for each. The page is the active one; row: what its rows are called in the table.
void MeasureRepaint(const CListPage& page, const std::string& row);

} // namespace bench
