// What is told of a check that failed, beside the windows on the screen.
#pragma once

#include "rig/Program.h"

#include <optional>

// With which code the program has ended, if it has.
void ReportEnd(const std::optional<rig::Program>& program);
