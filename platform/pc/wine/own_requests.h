// The X requests that are this library's own: no error of theirs may reach the program.
#pragma once

#include <X11/Xlib.h>

// Around requests of the library's own, on the calling thread's connection. Whatever they name, a window of
// another program or of another thread, may have gone by the time the X server reads them; the error is
// dropped, also when it comes later. Not nested.
void BeginOwnRequests(Display* display);
void EndOwnRequests(Display* display);
