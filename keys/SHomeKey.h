// What holding the Smartphone's Home key does; kept in the program's own settings.
#pragma once

#include "framework/CStr.h"
#include "keys/KeyActions.h"

struct SHomeKey
{
    uint32_t command = KeyActionLeave; // 0: nothing, and the key stays the shell's
    CStr file;                         // what KeyActionStart starts

    // Nothing is bound when the settings say nothing, or something that cannot be read.
    void Load();
    // False when the settings could not be opened.
    bool Save() const;
};
