// BoxLayout: lays a message box out anew that is larger than the handheld's screen.
#pragma once

#include <windows.h>

namespace handheld {

// The text is broken into lines beside the sign, the buttons share the width, the box is in the middle below
// the top bar. A box that fits is left as it is.
void FitIntoScreen(HWND box);

// The same for an open box when the screen has been turned, and into the middle in any case.
void FollowScreen(HWND box);

} // namespace handheld
