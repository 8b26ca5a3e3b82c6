// TopBar: the active window's title and the time.
#include "platform/pc/handheld/TopBar.h"

#include "platform/pc/common/BarLook.h"
#include "platform/pc/common/Screen.h"

#include <algorithm>

using handheld::Scaled;

namespace {

constexpr UINT_PTR UpdateTimer = 1;
constexpr UINT UpdateInterval = 250; // ms; Wine 8.0 tells nobody that the foreground has changed

// The four panes at the left end.
constexpr COLORREF Panes[] = {RGB(226, 92, 66), RGB(120, 190, 80), RGB(80, 150, 220), RGB(248, 200, 80)};

std::wstring TitleOf(HWND window)
{
    wchar_t title[128] = {};
    GetWindowTextW(window, title, 128);
    return title;
}

std::wstring TimeOfDay()
{
    wchar_t text[40] = {};
    GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, TIME_NOSECONDS, nullptr, nullptr, text, 40);
    return text;
}

} // namespace

TopBar::TopBar(HWND today)
    : m_today(today), m_bold(handheld::CreateScreenFont(9, FW_BOLD)),
      m_normal(handheld::CreateScreenFont(9, FW_NORMAL))
{}

TopBar::~TopBar()
{
    DeleteObject(m_bold);
    DeleteObject(m_normal);
}

bool TopBar::Open()
{
    RECT rect = handheld::ScreenRect();
    rect.bottom = rect.top + handheld::BarHeight();
    m_title = TitleOfForeground();
    m_time = TimeOfDay();
    const wchar_t* const text =
        m_title.c_str(); // the bar's own text is what it shows, for those who watch it
    // Never top-most: under Wine 8.0 no other window could be raised on the screen then. The class makes Wine
    // keep maximised windows below the bar.
    if (!Create(L"Shell_TrayWnd", text, WS_VISIBLE, WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, rect))
        return false;
    SetTimer(Window(), UpdateTimer, UpdateInterval, nullptr);
    UpdateWindow(Window());
    return true;
}

LRESULT TopBar::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_TIMER:
        Update();
        return 0;
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
    const int pane = Scaled(6);
    const int gap = Scaled(1);
    const int left = Scaled(6);
    const int top = (all.bottom - 2 * pane - gap) / 2;
    for (int i = 0; i < 4; ++i) {
        const int x = left + i % 2 * (pane + gap);
        const int y = top + i / 2 * (pane + gap);
        surface.Fill({x, y, x + pane, y + pane}, Panes[i]);
    }
    RECT clock = all;
    clock.right -= Scaled(6);
    surface.Text(m_time, clock, m_normal, handheld::barText, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
    RECT measured = clock;
    const HGDIOBJ previous = SelectObject(surface.Dc(), m_normal);
    DrawTextW(surface.Dc(), m_time.c_str(), static_cast<int>(m_time.size()), &measured,
              DT_CALCRECT | DT_SINGLELINE);
    SelectObject(surface.Dc(), previous);
    const RECT title = {left + 2 * pane + Scaled(8), 0,
                        clock.right - (measured.right - measured.left) - Scaled(6), all.bottom};
    surface.Text(m_title, title, m_bold, handheld::barText,
                 DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
}

// A window without a title shows its owner's.
std::wstring TopBar::TitleOfForeground() const
{
    HWND window = GetForegroundWindow();
    std::wstring title = window == m_today ? std::wstring() : TitleOf(window);
    while (title.empty() && window && (window = GetWindow(window, GW_OWNER)) != nullptr)
        title = TitleOf(window);
    return title.empty() ? L"Start" : title;
}

// The PC's own programs know nothing of the bar: the one in front is moved from under it and made to fit. Not
// on a desktop that is larger than the handheld, for it is the user's.
void TopBar::MakeRoom(HWND window) const
{
    const RECT screen = handheld::ScreenRect();
    const RECT area = handheld::ProgramRect();
    const bool ownDesktop =
        GetSystemMetrics(SM_CXSCREEN) == screen.right && GetSystemMetrics(SM_CYSCREEN) == screen.bottom;
    RECT rect;
    if (!ownDesktop || !window || window == Window() || window == GetDesktopWindow() ||
        !GetWindowRect(window, &rect))
        return;
    if (rect.top >= area.top || IsIconic(window))
        return;
    const LONG width = std::min(rect.right - rect.left, area.right);
    const LONG height = std::min(rect.bottom - rect.top, area.bottom - area.top);
    const LONG x = std::clamp(rect.left, 0L, area.right - width);
    SetWindowPos(window, nullptr, x, area.top, width, height,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_ASYNCWINDOWPOS);
}

void TopBar::Update()
{
    MakeRoom(GetForegroundWindow());
    const std::wstring title = TitleOfForeground();
    const std::wstring time = TimeOfDay();
    if (title == m_title && time == m_time)
        return;
    m_title = title;
    m_time = time;
    SetWindowTextW(Window(), title.c_str());
    InvalidateRect(Window(), nullptr, FALSE);
}
