// Expects a step to leave nothing behind, however often it is taken.
#pragma once

#include <cstddef>
#include <functional>

// Takes the step a few times to warm up, then so many times. forget frees what the test itself writes down.
// keptBySystem: blocks that the system is known to keep each time.
void ExpectNothingLeft(int times, const std::function<void()>& step, const std::function<void()>& forget,
                       size_t keptBySystem = 0);
