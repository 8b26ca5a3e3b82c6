// How the handheld is held, which all its processes share.
#pragma once

namespace handheld {

inline constexpr wchar_t orientationValue[] = L"Orientation"; // beside the profile's

// The values by which a device names its orientations; 90 degrees and their multiples.
inline constexpr int upright = 0;
inline constexpr int allTurns = 1 | 2 | 4;

bool IsOrientation(unsigned long value);

// Whether the screen's width is its height then.
bool IsSideways(int orientation);

int ScreenOrientation();

// Only remembers it for ScreenOrientation of all processes; false when the registry refuses.
bool KeepOrientation(int orientation);

} // namespace handheld
