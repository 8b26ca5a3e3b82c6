// Draws the handheld's own small icons: files, folders, programs, the shell and the home screen.
#pragma once

#include <windows.h>

// The fixed places at the start of the small-icon list.
enum FixedIcon
{
    IconDocument,
    IconBlank,
    IconProgram, // any program without an icon of its own
    IconFolder,
    IconDrive,
    IconDevice,
    IconShortcut,
    IconShell,
    IconHome,
    FixedIconCount
};

// All of them side by side in one bitmap of 32 bits a pixel with alpha, which the caller deletes. Null when
// the system is out of GDI objects.
HBITMAP PaintFixedIcons(int size);
