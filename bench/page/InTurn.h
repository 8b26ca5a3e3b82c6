// What the program does against what it cannot do without, measured in turn.
#pragma once

#include <functional>
#include <string>

namespace bench {

// Both once or more, so that what is only fetched at first does not count.
void WarmUp(const std::function<void()>& ofPage, const std::function<void()>& calls);
// Prints a row of the table; rows: how many records both find.
void MeasureInTurn(const std::string& what, double budget, const std::function<void()>& ofPage,
                   const std::function<void()>& calls, size_t rows);

} // namespace bench
