// All figures of the table.
#pragma once

#include "tests/runner/counts/Figure.h"

#include <functional>

namespace counts {

// In the table's order. When something does not come about, what it is is told, and the list ends there.
std::vector<Figure> MeasureAll(const std::function<void(const std::string&)>& complain);

} // namespace counts
