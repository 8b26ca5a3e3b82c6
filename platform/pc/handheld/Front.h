// Which window is in front of the handheld's programs.
#pragma once

#include <windows.h>

// After a window of the shell has had the front: to the one that had it before or, when that has gone, to the
// next one below. Does nothing when the user has gone elsewhere.
void GiveFrontBack(HWND owner, HWND previous);
