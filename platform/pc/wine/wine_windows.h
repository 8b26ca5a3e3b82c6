// What Wine knows of windows, asked of Wine itself: the core of its user32 is loaded wherever its X driver
// is.
#pragma once

#include <X11/Xlib.h>

// How Wine's own functions are called.
#define WINE_CALL __attribute__((ms_abi))

// Whether another thread than this one has the window in front.
int AnotherThreadIsInFront(void);

// Whether it is the X window of a window of this thread that is in front, or that has the same owner in the
// end as the one in front: a dialog, its owner and their pop-ups.
int BelongsToFront(Window window);

// Whether no other window on the screen is behind this one in Wine's order.
int IsLowestWindow(Window window);
