// Making the only column of a list view again, at little cost where it stays as wide as it is.
#pragma once

#include <windows.h>

// For every message of a list view of style LVS_OWNERDATA, before its own procedure, control, gets it. True
// when the message is done with; result is then the answer to it.
bool RemakesColumn(HWND list, WNDPROC control, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
