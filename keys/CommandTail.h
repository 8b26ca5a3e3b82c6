// The command line of a button: the key code, a blank, the short-press token, "*", the hold token.
#pragma once

#include "framework/CStr.h"

// Actions that the parser itself gives.
enum KeyAction : uint32_t
{
    KeyActionNone = 1,     // an empty token
    KeyActionStartFile = 2 // a token that is no number: the file to start
};

struct SCommandTail
{
    uint32_t keyCode = 0; // 0: no button, a normal start
    uint32_t shortAction = KeyActionNone;
    uint32_t longAction = KeyActionNone;
    CStr shortFile; // set when the action is KeyActionStartFile
    CStr longFile;

    // text is the command line behind the program's path. Anything that is not of the form gives a normal
    // start.
    void Parse(const wchar_t* text);
};
