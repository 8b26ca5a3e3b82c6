// TopBar: the active window's title and the time.
#include "platform/pc/handheld/TopBar.h"

#include "platform/pc/common/BarLook.h"
#include "platform/pc/common/Screen.h"

#include <algorithm>

using handheld::Scaled;

static constexpr UINT_PTR updateTimer = 1;
static constexpr UINT updateInterval = 250; // ms; Wine 8.0 tells nobody that the foreground has changed

static std::wstring TitleOf(HWND window)
{
    wchar_t title[128] = {};
    GetWindowTextW(window, title, 128);
    return title;
}

static std::wstring TimeOfDay()
{
    wchar_t text[40] = {};
    GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, TIME_NOSECONDS, nullptr, nullptr, text, 40);
    return text;
}

static POINT PointOf(LPARAM position)
{
    return {static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
}

TopBar::TopBar(HWND homeScreen)
    : today(homeScreen), bold(handheld::CreateScreenFont(9, FW_BOLD)),
      normal(handheld::CreateScreenFont(9, FW_NORMAL))
{}

TopBar::~TopBar()
{
    DeleteObject(bold);
    DeleteObject(normal);
}

RECT TopBar::Place()
{
    RECT rect = handheld::ScreenRect();
    rect.bottom = rect.top + handheld::BarHeight();
    return rect;
}

bool TopBar::Open()
{
    const RECT rect = Place();
    title = TitleOfForeground();
    time = TimeOfDay();
    const wchar_t* const text = title.c_str(); // the bar's own text is what it shows, for those who watch it
    // Never top-most: under Wine 8.0 no other window could be raised on the screen then. The class makes Wine
    // keep maximised windows below the bar.
    if (!Create(L"Shell_TrayWnd", text, WS_VISIBLE, WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, rect)) {
        return false;
    }
    flag.Attach(Window());
    SetTimer(Window(), updateTimer, updateInterval, nullptr);
    UpdateWindow(Window());
    return true;
}

LRESULT TopBar::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_TIMER:
        Update();
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        flag.Press(PointOf(lParam));
        return 0;
    case WM_LBUTTONUP:
        flag.Release(PointOf(lParam));
        return 0;
    case WM_CAPTURECHANGED:
        flag.Cancel();
        return 0;
    case WM_SETTINGCHANGE: {
        const RECT rect = Place();
        SetWindowPos(Window(), nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        return 0;
    }
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    default:
        return ShellWindow::HandleMessage(message, wParam, lParam);
    }
}

void TopBar::Paint(handheld::Surface& surface)
{
    const RECT all = surface.Client();
    handheld::PaintBar(surface, all);
    flag.Paint(surface);
    RECT clock = all;
    clock.right -= Scaled(6);
    surface.Text(time, clock, normal, handheld::barText, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
    RECT measured = clock;
    const HGDIOBJ previous = SelectObject(surface.Dc(), normal);
    DrawTextW(surface.Dc(), time.c_str(), static_cast<int>(time.size()), &measured,
              DT_CALCRECT | DT_SINGLELINE);
    SelectObject(surface.Dc(), previous);
    const RECT middle = {Flag::Place(all).right + Scaled(2), 0,
                         clock.right - (measured.right - measured.left) - Scaled(6), all.bottom};
    surface.Text(title, middle, bold, handheld::barText,
                 DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
}

// A window without a title shows its owner's.
std::wstring TopBar::TitleOfForeground() const
{
    HWND front = GetForegroundWindow();
    std::wstring text = front == today ? std::wstring() : TitleOf(front);
    while (text.empty() && front && (front = GetWindow(front, GW_OWNER)) != nullptr) {
        text = TitleOf(front);
    }
    return text.empty() ? L"Start" : text;
}

// The PC's own programs know nothing of the bar: the one in front is moved from under it and made to fit. Not
// on a desktop that is larger than the handheld, for it is the user's.
void TopBar::MakeRoom(HWND front) const
{
    const RECT area = handheld::ProgramRect();
    RECT rect;
    if (!handheld::HasOwnDesktop() || !front || front == Window() || front == GetDesktopWindow() ||
        !GetWindowRect(front, &rect)) {
        return;
    }
    if (rect.top >= area.top || IsIconic(front)) {
        return;
    }
    const LONG width = std::min(rect.right - rect.left, area.right);
    const LONG height = std::min(rect.bottom - rect.top, area.bottom - area.top);
    const LONG x = std::clamp(rect.left, 0L, area.right - width);
    SetWindowPos(front, nullptr, x, area.top, width, height,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_ASYNCWINDOWPOS);
}

void TopBar::Update()
{
    MakeRoom(GetForegroundWindow());
    const std::wstring newTitle = TitleOfForeground();
    const std::wstring newTime = TimeOfDay();
    if (newTitle == title && newTime == time) {
        return;
    }
    title = newTitle;
    time = newTime;
    SetWindowTextW(Window(), title.c_str());
    InvalidateRect(Window(), nullptr, FALSE);
}
