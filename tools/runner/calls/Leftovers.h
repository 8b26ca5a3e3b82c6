// What the guest was given to give back, and has not.
#pragma once

#include "tools/runner/calls/Guest.h"

namespace runner {

// With who got it; empty when nothing is left. Handles, processes, libraries and image lists may be kept, and
// what stands in a tree goes with it.
std::string Leftovers(const Guest& guest);

} // namespace runner
