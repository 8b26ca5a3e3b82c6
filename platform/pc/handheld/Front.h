// Which window is in front of the handheld's programs.
#pragma once

#include <windows.h>

// After a window of the shell has had the front: to the one that had it before or, when that has gone, to the
// next one below. Does nothing when the user has gone elsewhere.
void GiveFrontBack(HWND owner, HWND previous);

// Asks the menu that is open in front to go, as a device's menus do when a hardware button is pressed. True
// when it is the shell's own: it has gone when a message that is posted now is read.
bool EndMenuInFront();
