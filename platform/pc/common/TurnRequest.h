// Asking the handheld's shell to turn the screen.
#pragma once

#include <windows.h>

namespace handheld {

// To the control window, sent: turn the screen to the orientation wParam. The answer is turned, or else one
// of the DISP_CHANGE_ values.
inline constexpr UINT WM_TURN_SCREEN = WM_APP + 16;
inline constexpr LRESULT turned = 1; // a window that does not know the message answers 0

// Returns when the screen has its new size and the windows have been told; one of the DISP_CHANGE_ values.
LONG AskToTurn(int orientation);

} // namespace handheld
