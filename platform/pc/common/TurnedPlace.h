// Where windows go when the screen is turned.
#pragma once

#include <windows.h>

namespace handheld {

// What programs have of the screen, before and after.
struct ScreenChange
{
    RECT before;
    RECT after;
    LONG barHeight; // of a soft-key bar, which a window may leave free at the bottom
};

// Whether a window has all of the screen that it can have.
bool CoversScreen(const RECT& place, const ScreenChange& change);

// A window that covers the screen covers it again; any other keeps its size, as far as there is room, and its
// distance to the nearer edges, or the middle.
RECT TurnedPlace(const RECT& place, const ScreenChange& change);

} // namespace handheld
