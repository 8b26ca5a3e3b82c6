// The menu of an edit box on tap-and-hold.
#include "pages/start/EditMenu.h"

bool IsTapAndHold(HWND window, POINT point)
{
    SHRGINFO gesture = {};
    gesture.cbSize = sizeof gesture;
    gesture.hwndClient = window;
    gesture.ptDown = point;
    gesture.dwFlags = SHRG_RETURNCMD;
    return SHRecognizeGesture(&gesture) == GN_CONTEXTMENU;
}

static void Add(HMENU menu, UINT message, const wchar_t* text, bool possible)
{
    AppendMenuW(menu, possible ? MF_STRING : MF_STRING | MF_GRAYED, message, text);
}

static bool HasSelection(HWND edit)
{
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return start != end;
}

void ShowEditMenu(HWND edit, POINT point)
{
    HMENU menu = CreatePopupMenu();
    const bool selection = HasSelection(edit);
    Add(menu, WM_CUT, L"Cut", selection);
    Add(menu, WM_COPY, L"Copy", selection);
    Add(menu, WM_PASTE, L"Paste", IsClipboardFormatAvailable(CF_UNICODETEXT) != FALSE);
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    Add(menu, EM_UNDO, L"Undo", SendMessageW(edit, EM_CANUNDO, 0, 0) != 0);

    MapWindowPoints(edit, nullptr, &point, 1);
    const BOOL chosen = TrackPopupMenuEx(menu, TPM_RETURNCMD, point.x, point.y, edit, nullptr);
    DestroyMenu(menu);
    if (chosen != 0) {
        PostMessageW(edit, static_cast<UINT>(chosen), 0, 0);
    }
}
