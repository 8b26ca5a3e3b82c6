// A hardware button of the device, and what the program was told to do with it.
#pragma once

#include "framework/ArrayNames.h"
#include "framework/CStr.h"
#include "keys/KeyActions.h"

struct SHardwareKey
{
    CStr key;       // the button's key below the shell's, "40C1"
    CStr name;      // what the user knows it by
    CStr command;   // what the shell runs when it is pressed
    int32_t vk = 0; // virtual-key code; 0: no button that can be used
    int32_t pressAction = KeyActionLeave;
    int32_t holdAction = KeyActionLeave;
    CStr pressApplication; // the file that KeyActionStart starts
    CStr holdApplication;

    explicit SHardwareKey(const wchar_t* itsKey) : key(itsKey), name(itsKey) { ReadCode(); }

    // Takes the command that the shell runs now; where it starts this program, its actions with it.
    void SetCommand(const wchar_t* shellCommand);
    // What the shell has to run for the actions.
    void MakeCommand(CStr& line) const;

    // Whether a command starts this program, by the program's file name in it.
    static bool IsOwnCommand(const CStr& shellCommand);

  private:
    void ReadCode();
};

QV_ARRAY_NAMES(SHardwareKey*, "struct SHardwareKey *");
