// Bringing a window to the foreground and sending it away.
#pragma once

#include <windows.h>

// With its owned pop-ups; a minimised window comes back. False when there is no such window or the system
// refuses.
BOOL BringToForeground(HWND window);

// The window is to be in front of what its program shows in front later.
void KeepAbove(HWND window);

// Minimises: the window goes behind all others and the next one becomes active. Returns whether it was
// visible.
BOOL SendToBackground(HWND window);
