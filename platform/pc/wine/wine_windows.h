// What Wine knows of windows, asked of Wine itself: the core of its user32 is loaded wherever its X driver
// is.
#pragma once

#include <X11/Xlib.h>

// How Wine's own functions are called.
#define WINE_CALL __attribute__((ms_abi))

// Whether another thread than this one has the window in front.
int AnotherThreadIsInFront(void);

// The owner in the end, itself when it has none, of the window of this thread whose X window this is; null
// when there is no such window. A dialog, its owner and their pop-ups have it in common.
void* RootOwnerOf(Window window);

// Whether that owner is the same as the one of the window in front.
int BelongsToFront(Window window);

// Whether no other window on the screen is behind this one in Wine's order.
int IsLowestWindow(Window window);
