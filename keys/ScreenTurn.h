// Turning the screen.
#pragma once

// An upright screen is turned by 270 degrees, any other becomes upright.
void TurnScreen();
