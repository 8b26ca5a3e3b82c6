// The menu of an edit box on tap-and-hold.
#pragma once

#include "platform/ce.h"

// Waits until it is known what the stylus does that went down at a client point.
bool IsTapAndHold(HWND window, POINT point);
// Shows cut, copy, paste and undo at a client point and posts the box what was chosen.
void ShowEditMenu(HWND edit, POINT point);
