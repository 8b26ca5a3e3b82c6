// The handheld's control window: how programs ask the shell of the handheld for its keys.
#pragma once

#include <windows.h>

namespace handheld {

inline constexpr wchar_t controlClass[] = L"QuorvaneHandheldControl";

// Null when no handheld runs on this desktop.
HWND FindControl();

// What a program asks about hot keys. It is sent by WM_COPYDATA, with keyRequest as its kind; the answer is a
// system error code.
inline constexpr ULONG_PTR keyRequest = 0x4B455931;

struct KeyRequest
{
    enum class Kind : DWORD
    {
        Claim,   // the key for a window
        Release, // what the window has claimed under this id
        Drop     // whatever claim there is on the key
    };

    Kind kind;
    DWORD window; // window handles fit into 32 bits; 0 stands for the shell
    INT32 id;
    DWORD modifiers;
    DWORD key;
};

// The window that it names; null for the shell.
HWND WindowOf(const KeyRequest& request);

// Asks the handheld; a system error code, ERROR_SUCCESS when it did what was asked.
DWORD AskControl(const KeyRequest& request);

// To the control window, posted: the device's lock key has been pressed.
inline constexpr UINT WM_LOCK_KEYS = WM_APP + 1;
// The same: a key of the handheld's own, wParam, has been pressed or, with lParam 0, released.
inline constexpr UINT WM_HANDHELD_KEY = WM_APP + 2;
// The same: a key of the PC's keyboard, wParam, has been pressed while the keys are locked; lParam is 1 with
// Shift.
inline constexpr UINT WM_KEY_WHILE_LOCKED = WM_APP + 3;

// Whether a button of the handheld is held down.
bool IsButtonHeld(int key);

// Says so for everybody, from now on.
void SetButtonHeld(HWND control, int key, bool held);

} // namespace handheld
