// ScreenTurn: turns the screen of the handheld, with all windows on it.
#pragma once

// One of the DISP_CHANGE_ values; nothing has changed unless it is DISP_CHANGE_SUCCESSFUL. Waits for no
// program.
long TurnScreen(int orientation);

// Before there is any window. The screen of a new session stands upright, whatever an earlier one has left
// behind; it stays so when it cannot be turned.
void StartTurned(int orientation);
