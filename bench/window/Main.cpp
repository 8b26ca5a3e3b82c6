// bench_window.exe: the least that a program can show, a window with a list of a few rows, as the measure of
// what starting any program with a window takes.
#include <windows.h>

#include <commctrl.h>

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int)
{
    SetProcessDPIAware();
    InitCommonControls();
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = DefWindowProcW;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = L"QvBenchWindow";
    RegisterClassW(&windowClass);
    const HWND window = CreateWindowExW(0, windowClass.lpszClassName, L"Bare window", WS_POPUP, 0, 26, 240,
                                        268, nullptr, nullptr, instance, nullptr);
    const HWND list =
        CreateWindowExW(0, WC_LISTVIEWW, nullptr, WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_NOCOLUMNHEADER, 0,
                        0, 240, 268, window, nullptr, instance, nullptr);
    LVCOLUMNW column = {};
    column.mask = LVCF_WIDTH;
    column.cx = 240;
    SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    wchar_t text[] = L"Application";
    for (int row = 0; row < 10; row++) {
        LVITEMW item = {};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        item.pszText = text;
        SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    ShowWindow(window, SW_SHOW);
    UpdateWindow(window);

    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
    return 0;
}
