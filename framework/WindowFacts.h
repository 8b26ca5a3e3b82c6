// What the program asks about any window of the system.
#pragma once

#include "framework/CStr.h"

// Title and class of a window, at most 259 characters; empty when they cannot be read.
void WindowTitle(HWND window, CStr& title);
void WindowClass(HWND window, CStr& className);
// Process that the window's thread belongs to; 0 for a window that has gone.
DWORD WindowProcessId(HWND window);
// The end of the owner chain; the window itself when it has no owner.
HWND TopOwner(HWND window);
