// Real keys and taps: they go where the user's would, to the window in front or under the stylus.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>

namespace rig {

void KeyDown(WORD key);
void KeyUp(WORD key);
// The keys between letters and number pad, such as Home, where KeyDown and KeyUp mean the number pad's.
void ExtendedKeyDown(WORD key);
void ExtendedKeyUp(WORD key);
void PressKey(WORD key, int times = 1);
// Pressed together, released in the reverse order.
void PressChord(std::initializer_list<WORD> keys);
// Letters, digits and blanks by their keys, any other character as it is.
void TypeText(const std::wstring& text);

// Taps by points on the screen.
void MoveTo(POINT point);
void StylusDown(POINT point);
void StylusUp(POINT point);
void Tap(POINT point);
void DoubleTap(POINT point);

// The point on the screen of a point in a window's client area.
POINT PointIn(HWND window, int x, int y);

} // namespace rig
