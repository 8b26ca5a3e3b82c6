// ScreenTurn: turns the screen of the handheld, with all windows on it.
#pragma once

// One of the DISP_CHANGE_ values; nothing has changed unless it is DISP_CHANGE_SUCCESSFUL. Waits for no
// program.
long TurnScreen(int orientation);
