// Which top-level windows belong to running applications, and under which name: the rules that listing them
// and closing them share.
#pragma once

#include "framework/WindowFacts.h"

// Visible, enabled, and neither a tool window nor one that cannot be activated. Looks at the window itself,
// not at its owner.
bool IsEligibleWindow(HWND window);
// The title of a visible top owner, else the window's; where that is empty, the other one's. Cut to 259
// characters.
void ChooseTaskName(HWND window, HWND topOwner, CStr& name);
// The home screen's or the shell's window class: nothing in the program closes those.
bool IsProtectedClass(const CStr& className);
