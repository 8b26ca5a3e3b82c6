// Today: the date, a few lines about the handheld, and a soft key that starts the program.
#include "platform/pc/handheld/Today.h"

#include "platform/pc/common/ActiveProfile.h"
#include "platform/pc/common/BarLook.h"
#include "platform/pc/common/Screen.h"
#include "platform/pc/handheld/OwnFolder.h"

using handheld::Scaled;

static constexpr UINT_PTR dateTimer = 1;
static constexpr UINT dateInterval = 20000; // ms
static constexpr int rowHeight = 36;        // at 96 dpi
static constexpr size_t sizeLine = 1;       // which of the lines tells the screen's size
static constexpr wchar_t programFile[] = L"Quorvane.exe";

static constexpr COLORREF skyTop = RGB(28, 74, 140);
static constexpr COLORREF skyBottom = RGB(150, 196, 232);
static constexpr COLORREF bandTop = RGB(60, 112, 184);
static constexpr COLORREF bandBottom = RGB(36, 82, 150);
static constexpr COLORREF rule = RGB(120, 165, 215);
static constexpr COLORREF white = RGB(255, 255, 255);
static constexpr COLORREF pale = RGB(214, 230, 246);

static std::wstring DateOfToday()
{
    wchar_t text[80] = {};
    GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, 0, nullptr, L"dddd, MMMM d", text, 80, nullptr);
    return text;
}

static std::wstring ProgramPath()
{
    std::wstring program = OwnFolder() + L'\\' + programFile;
    return GetFileAttributesW(program.c_str()) == INVALID_FILE_ATTRIBUTES ? std::wstring() : program;
}

static std::wstring OwnerName()
{
    wchar_t name[80] = {};
    DWORD size = 80;
    return GetUserNameW(name, &size) ? name : L"";
}

static std::wstring ScreenSize()
{
    const RECT screen = handheld::ScreenRect();
    return std::to_wstring(screen.right) + L" x " + std::to_wstring(screen.bottom) + L" pixels, " +
           std::to_wstring(handheld::ActiveProfile().dpi) + L" dpi";
}

Today::Today()
    : program(ProgramPath()), bold(handheld::CreateScreenFont(9, FW_BOLD)),
      normal(handheld::CreateScreenFont(8, FW_NORMAL)), large(handheld::CreateScreenFont(11, FW_BOLD))
{
    const handheld::Profile& profile = handheld::ActiveProfile();
    lines = {{L"Owner", OwnerName(), RGB(244, 180, 60)},
             {profile.IsSmartphone() ? L"Smartphone" : L"Pocket PC", ScreenSize(), RGB(110, 190, 90)},
             {L"Keys", L"F1 and F2: soft keys, F12: all keys", RGB(214, 96, 80)}};
}

Today::~Today()
{
    DeleteObject(bold);
    DeleteObject(normal);
    DeleteObject(large);
}

bool Today::Open()
{
    // A Smartphone's home screen has no title; task lists know it by its class.
    const wchar_t* title = handheld::ActiveProfile().IsSmartphone() ? L"" : L"Today";
    date = DateOfToday();
    if (!Create(L"DesktopExplorerWindow", title, WS_VISIBLE, 0, handheld::ProgramRect())) {
        return false;
    }
    SetTimer(Window(), dateTimer, dateInterval, nullptr);
    UpdateWindow(Window());
    return true;
}

LRESULT Today::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_SIZE:
        lines[sizeLine].detail = ScreenSize();
        return 0;
    case WM_TIMER:
        UpdateDate();
        return 0;
    case WM_KEYDOWN:
        if (wParam == VK_F1) {
            StartProgram();
        }
        return 0;
    case WM_LBUTTONUP: {
        const POINT point = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
        RECT leftKey = SoftKeyBar();
        leftKey.right /= 2;
        if (PtInRect(&leftKey, point)) {
            StartProgram();
        }
        return 0;
    }
    default:
        return ShellWindow::HandleMessage(message, wParam, lParam);
    }
}

void Today::Paint(handheld::Surface& surface)
{
    const RECT all = surface.Client();
    surface.FillGradient(all, skyTop, skyBottom);
    RECT band = {0, 0, all.right, Scaled(34)};
    surface.FillGradient(band, bandTop, bandBottom);
    InflateRect(&band, -Scaled(8), 0);
    surface.Text(date, band, large, white, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    int top = Scaled(34);
    for (const Line& line : lines) {
        PaintLine(surface, line, top);
        top += Scaled(rowHeight);
    }
    PaintSoftKeys(surface);
}

void Today::PaintLine(handheld::Surface& surface, const Line& line, int top) const
{
    const int bottom = top + Scaled(rowHeight);
    const int right = surface.Client().right;
    const int left = Scaled(8);
    surface.Fill({left, top + Scaled(12), left + Scaled(12), top + Scaled(24)}, line.badge);
    const RECT title = {left + Scaled(20), top + Scaled(3), right - left, top + Scaled(18)};
    surface.Text(line.title, title, bold, white, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    const RECT detail = {title.left, title.bottom, title.right, bottom - Scaled(2)};
    surface.Text(line.detail, detail, normal, pale, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    surface.Fill({left, bottom - Scaled(1), right - left, bottom}, rule);
}

void Today::PaintSoftKeys(handheld::Surface& surface) const
{
    RECT bar = SoftKeyBar();
    surface.FillGradient(bar, bandTop, bandBottom);
    bar.right /= 2;
    if (!program.empty()) {
        handheld::PaintKeyText(surface, bar, L"Quorvane", bold, true);
    }
}

RECT Today::SoftKeyBar() const
{
    RECT bar;
    GetClientRect(Window(), &bar);
    bar.top = bar.bottom - handheld::BarHeight();
    return bar;
}

void Today::StartProgram()
{
    if (program.empty()) {
        return;
    }
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    std::wstring commandLine = L"\"" + program + L"\"";
    if (!CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process)) {
        return;
    }
    AllowSetForegroundWindow(process.dwProcessId);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

void Today::UpdateDate()
{
    const std::wstring now = DateOfToday();
    if (now == date) {
        return;
    }
    date = now;
    InvalidateRect(Window(), nullptr, FALSE);
}
