// Keys: the message loop's soft keys, the state of a key, and keys that a program presses.
#include "platform/pc/common/ControlWindow.h"
#include "platform/pc/common/OverriddenKeys.h"
#include "platform/pc/common/SoftKeys.h"

// The device's shell knows these two as "lock the keys" and as the Smartphone's key lock.
static constexpr BYTE lockKey = 0x85;
static constexpr BYTE smartphoneLockKey = 0xC6;

extern "C" BOOL WINAPI ce_GetMessageW(MSG* message, HWND window, UINT first, UINT last)
{
    const BOOL result = GetMessageW(message, window, first, last);
    // The caller gets something for a soft key too: its window may have gone below the key's menu, and then
    // no other message would ever let it notice.
    if (result > 0 && !handheld::GiveOverriddenKey(*message) && handheld::HandleSoftKey(*message)) {
        message->message = WM_NULL;
    }
    return result;
}

// Only whether the key is down now: the PC's lowest bit, "pressed since the last call", is unknown to the
// device. The handheld's own buttons never reach the PC's key state.
extern "C" SHORT WINAPI ce_GetAsyncKeyState(int virtualKey)
{
    const bool down = (GetAsyncKeyState(virtualKey) & 0x8000) != 0 || handheld::IsButtonHeld(virtualKey);
    return static_cast<SHORT>(down ? 0x8000 : 0);
}

// The keys that lock the handheld stay inside it: the PC's desktop has other meanings for them, or none.
extern "C" void WINAPI ce_keybd_event(BYTE virtualKey, BYTE scanCode, DWORD flags, ULONG_PTR extra)
{
    if (virtualKey != lockKey && virtualKey != smartphoneLockKey) {
        keybd_event(virtualKey, scanCode, flags, extra);
    } else if (virtualKey == lockKey && (flags & KEYEVENTF_KEYUP) == 0) {
        PostMessageW(handheld::FindControl(), handheld::WM_LOCK_KEYS, 0, 0);
    }
}
