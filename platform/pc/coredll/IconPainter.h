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

// The caller destroys the icon. Null when the system is out of GDI objects.
HICON PaintFixedIcon(FixedIcon icon, int size);
