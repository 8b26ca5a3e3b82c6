// The program that the device's start-up begins: a test's own.
#pragma once

#include <functional>

extern std::function<int()> deviceProgram; // gives its exit code; 0 without one
