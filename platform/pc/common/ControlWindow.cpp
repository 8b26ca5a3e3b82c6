// The handheld's control window.
#include "platform/pc/common/ControlWindow.h"

#include <string>

namespace handheld {

static constexpr UINT longestAnswer = 2000; // ms

// A window's properties can be read from every process.
static std::wstring HeldProperty(int key)
{
    return L"Held " + std::to_wstring(key);
}

HWND FindControl()
{
    return FindWindowW(controlClass, nullptr);
}

HWND WindowOf(const KeyRequest& request)
{
    return reinterpret_cast<HWND>(static_cast<ULONG_PTR>(request.window));
}

DWORD AskControl(const KeyRequest& request)
{
    COPYDATASTRUCT data = {keyRequest, sizeof request, const_cast<KeyRequest*>(&request)};
    DWORD_PTR answer = ERROR_SUCCESS;
    const LRESULT answered =
        SendMessageTimeoutW(FindControl(), WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data),
                            SMTO_ABORTIFHUNG | SMTO_BLOCK, longestAnswer, &answer);
    return answered ? static_cast<DWORD>(answer) : ERROR_NOT_READY;
}

bool IsButtonHeld(int key)
{
    return GetPropW(FindControl(), HeldProperty(key).c_str()) != nullptr;
}

void SetButtonHeld(HWND control, int key, bool held)
{
    if (held) {
        SetPropW(control, HeldProperty(key).c_str(), reinterpret_cast<HANDLE>(1));
    } else {
        RemovePropW(control, HeldProperty(key).c_str());
    }
}

} // namespace handheld
