// The handheld's lock, as a user sees and opens it.
#pragma once

#include <windows.h>

// What covers the screen while the keys are locked; null while they are not.
HWND LockScreen();
HWND WaitForLockScreen();

// The soft key, and then the key that confirms it.
void UnlockKeys();
void ConfirmUnlocking();
