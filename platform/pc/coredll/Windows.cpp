// Creating windows as the device's window manager does.
#include "platform/pc/common/Screen.h"
#include "platform/pc/coredll/Foreground.h"
#include "platform/pc/coredll/ListViewFix.h"
#include "platform/pc/coredll/SystemFont.h"

#include <commctrl.h>

static bool IsClass(const wchar_t* className, const wchar_t* wanted)
{
    return !IS_INTRESOURCE(className) && lstrcmpiW(className, wanted) == 0;
}

extern "C" HWND WINAPI ce_CreateWindowExW(DWORD exStyle, const wchar_t* className, const wchar_t* title,
                                          DWORD style, int x, int y, int width, int height, HWND parent,
                                          HMENU menu, HINSTANCE instance, void* parameter)
{
    const int unset = static_cast<int>(CW_USEDEFAULT);
    if (parent) {
        // On the device a window with a parent is its child unless it is a pop-up.
        if ((style & (WS_CHILD | WS_POPUP)) == 0) {
            style |= WS_CHILD;
        }
    } else if ((style & WS_CHILD) == 0) {
        const RECT area = handheld::ProgramRect();
        if (x == unset) {
            x = area.left;
            y = area.top;
        }
        if (width == unset) {
            width = area.right - x;
            height = area.bottom - y;
        }
        // The PC would force a caption and a frame on an overlapped window.
        if ((style & WS_CAPTION) != WS_CAPTION) {
            style |= WS_POPUP;
        }
    }
    const HWND window = CreateWindowExW(exStyle, className, title, style, x, y, width, height, parent, menu,
                                        instance, parameter);
    if (window && IsClass(className, WC_LISTVIEWW) && (style & LVS_OWNERDATA) != 0) {
        RepaintWhenListMoves(window);
    }
    if (window && IsClass(className, WC_EDITW)) {
        SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(SystemFont()), FALSE);
    }
    return window;
}

// The handles that the device hands out are even; the PC's Wine takes an odd one for its even neighbour.
extern "C" BOOL WINAPI ce_IsWindow(HWND window)
{
    return (reinterpret_cast<ULONG_PTR>(window) & 1) == 0 && IsWindow(window);
}

// A device's screen shows one program at a time, so what is to be above everything else only has to be in
// front, and to come there again when its program shows another window. Wine 8.0 raises no other window on
// the screen while there is a top-most one.
extern "C" BOOL WINAPI ce_SetWindowPos(HWND window, HWND after, int x, int y, int width, int height,
                                       UINT flags)
{
    if (after == HWND_TOPMOST) {
        KeepAbove(window);
        after = HWND_TOP;
    }
    return SetWindowPos(window, after, x, y, width, height, flags);
}
