// Keeps a soft-key bar with its owner: shown, hidden and raised together.
#pragma once

#include <windows.h>

// To be called for every window that gets a bar; further calls do nothing. On Windows pop-ups follow their
// owner by themselves only in the order of windows, and under Wine 8.0 not even there.
void KeepBarWithOwner(HWND owner);
