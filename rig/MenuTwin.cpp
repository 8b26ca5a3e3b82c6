// MenuTwin: the menu that a test expects, opened by the test itself, to compare with and to find its lines
// by.
#include "rig/MenuTwin.h"

#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

#include <atomic>

namespace rig {

namespace {

// What the thread that runs the menu shares with the one that looks at it.
struct Tracking
{
    HMENU menu;
    POINT place;
    UINT flags;
    std::atomic<bool> close = false;

    static LRESULT CALLBACK OwnerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        const auto* self = reinterpret_cast<Tracking*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        // Timers go on while a menu is open.
        if (message == WM_TIMER && self && self->close) {
            EndMenu();
        }
        return DefWindowProcW(window, message, wParam, lParam);
    }

    static DWORD WINAPI Run(void* tracking)
    {
        auto* self = static_cast<Tracking*>(tracking);
        const HWND owner = CreateWindowExW(WS_EX_TOOLWINDOW, L"Static", L"", WS_POPUP, 0, 0, 1, 1, nullptr,
                                           nullptr, nullptr, nullptr);
        SetWindowLongPtrW(owner, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
        SetWindowLongPtrW(owner, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OwnerProc));
        SetTimer(owner, 1, 20, nullptr);
        TrackPopupMenuEx(self->menu, self->flags | TPM_RETURNCMD, self->place.x, self->place.y, owner,
                         nullptr);
        DestroyWindow(owner);
        return 0;
    }
};

} // namespace

static HMENU MakeMenu(const std::vector<MenuLine>& lines)
{
    const HMENU menu = CreatePopupMenu();
    UINT_PTR id = 1;
    for (const MenuLine& line : lines) {
        const UINT greyed = line.greyed ? MF_GRAYED : 0;
        if (line.text.empty()) {
            AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
        } else if (line.opensMenu) {
            AppendMenuW(menu, MF_POPUP | greyed, reinterpret_cast<UINT_PTR>(CreatePopupMenu()),
                        line.text.c_str());
        } else {
            AppendMenuW(menu, MF_STRING | greyed, id++, line.text.c_str());
        }
    }
    return menu;
}

MenuTwin::MenuTwin(const std::vector<MenuLine>& expected, POINT place, UINT flags)
{
    ParkStylus();
    Tracking tracking = {MakeMenu(expected), place, flags};
    const HANDLE thread = CreateThread(nullptr, 0, Tracking::Run, &tracking, 0, nullptr);
    const DWORD self = GetCurrentProcessId();
    const HWND window = WaitFor([=] {
        const HWND open = OpenMenu();
        return open && ProcessOf(open) == self ? open : nullptr;
    });
    if (window) {
        // The window can be seen before it has its place.
        Picture::OfSettledScreen();
        area = ScreenRectOf(window);
        picture = Picture::OfScreen(area);
        for (UINT i = 0; i < expected.size(); i++) {
            RECT line = {};
            GetMenuItemRect(nullptr, tracking.menu, i, &line);
            lines.push_back(line);
        }
    }
    tracking.close = true;
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
    DestroyMenu(tracking.menu);
    WaitFor([=] { return !IsWindow(window) || !IsWindowVisible(window); });
}

POINT MenuTwin::Middle(size_t line) const
{
    const RECT rect = line < lines.size() ? lines[line] : RECT{};
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

void ParkStylus()
{
    MoveTo({1, 1});
}

} // namespace rig
