// The handheld's screen: its pixels, the bars at its top and bottom, and its font.
#pragma once

#include <windows.h>

namespace handheld {

// Pixels on this screen for n pixels at 96 dpi.
int Scaled(int n);

// Height of the top bar and of a soft-key bar.
int BarHeight();

// The whole screen, as it is turned now. It starts at the top left of the desktop, which under Wine has
// exactly its size.
RECT ScreenRect();

// What a program's main window covers: everything below the top bar.
RECT ProgramRect();

// Whether the desktop is nothing but the handheld's screen. A larger one is the user's.
bool HasOwnDesktop();

// The screen's user-interface font; the caller deletes it.
HFONT CreateScreenFont(int points, int weight);

} // namespace handheld
