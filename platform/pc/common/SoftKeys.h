// Soft keys: how the key F1 or F2 reaches the menu bar of the active window, also while a menu is open.
#pragma once

#include <windows.h>

namespace handheld {

inline constexpr wchar_t menuBarClass[] = L"menu_worker";

// To a menu bar: press the soft key wParam, 0 left and 1 right. Sent, never posted.
inline constexpr UINT WM_PRESS_SOFT_KEY = WM_APP + 1;

// To a menu bar: the SHMBOF_ bits that override the key wParam. Sent, never posted.
inline constexpr UINT WM_ASK_KEY_OVERRIDE = WM_APP + 2;

// The front-most bar of a window; null when it has none.
HWND FindMenuBar(HWND owner);

// 0 for the key of the left soft key, 1 for the right one, -1 for any other key.
int SoftKeyIndex(WPARAM virtualKey);

// Presses a soft key of the active window's bar when the message is that key going down. True when the
// message was a soft key for an existing bar and must not go on.
bool HandleSoftKey(const MSG& message);

// The soft key that opened a menu.
struct MenuKey
{
    int index = -1;  // -1 for none
    RECT place = {}; // on the screen
};

// TrackPopupMenuEx during which a soft key closes the menu. Unless it is the key that opened the menu it is
// pressed again afterwards, for the bar; a tap on the key that opened it only closes the menu.
int TrackMenu(HMENU menu, UINT flags, int x, int y, HWND owner, const TPMPARAMS* parameters,
              const MenuKey& ownKey);

} // namespace handheld
