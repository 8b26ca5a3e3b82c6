// The Start menu behind the flag of the top bar.
#pragma once

#include <windows.h>

// Puts the first programs into the active profile's Start menu. The PC's own, where the profile has none, is
// left alone.
void FillStartMenu();

// Shows the menu with its corner at a point of the screen, until something is chosen, which is started, or it
// is closed. A tap into button closes it too. The window in front before is in front again, unless another
// one is.
void ShowStartMenu(HWND owner, POINT corner, const RECT& button);
