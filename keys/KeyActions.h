// The thirteen things that a hardware button can do, pressed or held.
#pragma once

#include "platform/ce.h"

// Their numbers stand in command lines and in the hand-over record. A number behind the last one does
// nothing.
enum KeyAction : int32_t
{
    KeyActionLeave = 0, // the button stays the shell's
    KeyActionNone = 1,
    KeyActionStart = 2, // starts the press's or the hold's application
    KeyActionShowTasks = 3,
    KeyActionShowProcs = 4,
    KeyActionShowSysInfo = 5,
    KeyActionShowStart = 6,
    KeyActionCloseCurrent = 7,
    KeyActionCloseAll = 8,
    KeyActionCloseOthers = 9,
    KeyActionRotateLeft = 10,
    KeyActionRotateRight = 11,
    KeyActionLockKeys = 12
};

// The main window's private message that carries out what was pressed; wParam: how long it was.
inline constexpr UINT keyActionMessage = WM_APP + 100;
enum KeyPressLength : WPARAM
{
    KeyPressed = 1,
    KeyHeld = 2
};

inline constexpr uint32_t keyActionCount = 13;
inline constexpr uint32_t buttonHoldActionCount = KeyActionLockKeys; // only a button's press locks the keys
// What the user chooses them by, in the order of their numbers.
inline constexpr const wchar_t* keyActionTexts[keyActionCount] = {
    L"Don't handle",   L"Handle, do nothing",    L"Start application",  L"Task manager",
    L"Process viewer", L"System information",    L"App. Launcher",      L"Close current",
    L"Close all",      L"Close all but current", L"Screen rotate left", L"Screen rotate right",
    L"Lock keys",
};
