// Hot keys: the handheld's shell keeps who has claimed which of its keys, and tells the claimant.
#include "platform/pc/common/ControlWindow.h"

using handheld::KeyRequest;

static BOOL Ask(KeyRequest::Kind kind, HWND window, int id, UINT modifiers, UINT key)
{
    const auto handle = static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(window));
    const DWORD error = handheld::AskControl({kind, handle, id, modifiers, key});
    SetLastError(error);
    return error == ERROR_SUCCESS;
}

extern "C" BOOL WINAPI ce_RegisterHotKey(HWND window, int id, UINT modifiers, UINT key)
{
    if (window && !IsWindow(window)) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return FALSE;
    }
    return Ask(KeyRequest::Kind::Claim, window, id, modifiers, key);
}

extern "C" BOOL WINAPI ce_UnregisterHotKey(HWND window, int id)
{
    return Ask(KeyRequest::Kind::Release, window, id, 0, 0);
}

// Takes a key from whoever has it, which may be the shell. No header of the device declares it.
extern "C" BOOL WINAPI ce_UnregisterFunc1(UINT modifiers, UINT key)
{
    return Ask(KeyRequest::Kind::Drop, nullptr, 0, modifiers, key);
}
