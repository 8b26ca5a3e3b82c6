// SHRecognizeGesture: tap-and-hold.
#include "platform/ce.h"
#include "platform/pc/common/ActiveProfile.h"
#include "platform/pc/common/Screen.h"

static constexpr DWORD pollInterval = 10; // ms
static constexpr int stylusTremble = 4;   // pixels at 96 dpi that a held stylus may move

namespace {

// What the notification carries.
struct GestureNotification
{
    NMHDR hdr;
    POINT place; // in the client area
    DWORD_PTR item;
};

} // namespace

static bool IsInPlace(POINT down)
{
    const int tremble = handheld::Scaled(stylusTremble);
    POINT now;
    return GetCursorPos(&now) && abs(now.x - down.x) <= tremble && abs(now.y - down.y) <= tremble;
}

// Messages are left where they are: what the stylus does next belongs to whoever asked.
static bool IsHeld(POINT down)
{
    const DWORD holdTime = static_cast<DWORD>(handheld::ActiveProfile().holdMilliseconds);
    const DWORD begin = GetTickCount();
    while ((GetAsyncKeyState(VK_LBUTTON) & 0x8000) != 0 && IsInPlace(down)) {
        if (GetTickCount() - begin >= holdTime) {
            return true;
        }
        Sleep(pollInterval);
    }
    return false;
}

static LRESULT NotifyParent(const SHRGINFO& info)
{
    GestureNotification notification = {};
    notification.hdr.hwndFrom = info.hwndClient;
    notification.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID(info.hwndClient));
    notification.hdr.code = GN_CONTEXTMENU;
    notification.place = info.ptDown;
    return SendMessageW(GetParent(info.hwndClient), WM_NOTIFY, notification.hdr.idFrom,
                        reinterpret_cast<LPARAM>(&notification));
}

extern "C" DWORD WINAPI ce_SHRecognizeGesture(SHRGINFO* info)
{
    if (!info || info->cbSize != sizeof *info || !IsWindow(info->hwndClient)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    POINT down = info->ptDown;
    ClientToScreen(info->hwndClient, &down);
    if (handheld::ActiveProfile().IsSmartphone() || !IsHeld(down)) {
        return 0;
    }
    if ((info->dwFlags & SHRG_RETURNCMD) != 0) {
        return GN_CONTEXTMENU;
    }
    return static_cast<DWORD>(NotifyParent(*info));
}
