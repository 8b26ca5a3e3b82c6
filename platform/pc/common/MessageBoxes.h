// Message boxes as a handheld shows them: within its screen, and pressed by the soft keys.
#pragma once

#include <windows.h>

namespace handheld {

// A window property of a box, by which every process knows that it follows the screen by itself.
inline constexpr wchar_t boxProperty[] = L"HandheldBox";

// MessageBoxW whose box is laid out anew where it is wider than the screen: its text is broken into lines.
// The soft keys press its first and last button.
int ShowMessageBox(HWND owner, const wchar_t* text, const wchar_t* caption, UINT type);

} // namespace handheld
