// Where the Start menu is.
#pragma once

#include "framework/CStr.h"

// The Start menu's folder with a backslash at its end; false, and path as it was, when the shell does not
// tell. owner: the window that the shell may show something over.
bool StartMenuFolder(HWND owner, CStr& path);
