// When a task manager shows its first page.
#pragma once

#include <windows.h>

// True once the process has a visible window with a visible list, and the list's rows are on the screen: the
// list's rectangle below its header is filled with the window colour and has something written on it. The
// screen is looked at, so it does not matter how a program paints.
bool ShowsFirstPage(DWORD process);
