// Keys: the message loop's soft keys and the state of a key.
#include "platform/pc/common/OverriddenKeys.h"
#include "platform/pc/common/SoftKeys.h"

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
// device.
extern "C" SHORT WINAPI ce_GetAsyncKeyState(int virtualKey)
{
    return static_cast<SHORT>(GetAsyncKeyState(virtualKey) & 0x8000);
}
