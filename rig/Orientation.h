// How the handheld is held, and turning it.
#pragma once

namespace rig {

// The values by which a device names them; 90 and 180 degrees are 1 and 2.
inline constexpr int upright = 0;
inline constexpr int turnedBy270 = 4;

// Turns the screen; false when the handheld refuses. Programs may still be laying out their windows
// afterwards.
bool TurnScreen(int orientation);

} // namespace rig
