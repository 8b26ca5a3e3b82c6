// The places on the screen that no two tours have the same.
#pragma once

#include <windows.h>

#include <vector>

// The clock, the blinking caret, and in the report of this dialog, if there is one, the numbers of windows
// and processes.
std::vector<RECT> ChangingPlaces(HWND dialog);
