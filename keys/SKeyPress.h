// What a hardware button was bound to: an action for a press and one for a hold.
#pragma once

#include "framework/CStr.h"
#include "keys/KeyActions.h"
#include "keys/SKeyCommand.h"

struct SKeyPress
{
    int32_t vk = 0; // virtual-key code of the button; 0: no button, a normal start
    int32_t pressAction = KeyActionNone;
    int32_t holdAction = KeyActionNone;
    CStr pressApplication; // the file that KeyActionStart starts
    CStr holdApplication;

    // The command line of a button: its code, a blank, the press's action, "*", the hold's action. tail is
    // what stands behind the program's path. Anything that is not of the form gives a normal start.
    void Parse(const wchar_t* tail);

    // The record with which one instance hands a press to another. Paths are cut to 255 characters.
    void Write(SKeyCommand& record) const;
    // Takes over what another instance handed over; false, and nothing taken, for anything but a whole record
    // of the program's own.
    bool Read(const COPYDATASTRUCT* data);
};
