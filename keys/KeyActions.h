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

inline constexpr uint32_t keyActionCount = 13;
// What the user chooses them by, in the order of their numbers.
extern const wchar_t* const keyActionTexts[keyActionCount];
