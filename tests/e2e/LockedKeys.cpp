// The handheld's lock, as a user sees and opens it.
#include "tests/e2e/LockedKeys.h"

#include "rig/Desktop.h"
#include "rig/Input.h"
#include "tests/e2e/HandheldKeys.h"

static const rig::WindowQuery lockScreen = {.className = L"QuorvaneHandheldLock"};

HWND LockScreen()
{
    return rig::FindTopWindow(lockScreen);
}

HWND WaitForLockScreen()
{
    return rig::WaitForTopWindow(lockScreen);
}

void UnlockKeys()
{
    rig::PressKey(VK_F1);
    ConfirmUnlocking();
}

void ConfirmUnlocking()
{
    rig::PressKey(IsSmartphoneSession() ? VK_MULTIPLY : VK_RETURN);
}
