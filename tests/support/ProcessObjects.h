// What a running program has created and not given back, seen from outside.
#pragma once

#include <windows.h>

struct ProcessObjects
{
    int gdiObjects = 0; // the system's caches of device contexts are among them, and move by a few
    int windows = 0;    // children included

    // No GDI objects when the process cannot be looked into.
    static ProcessObjects Of(DWORD process);
};
