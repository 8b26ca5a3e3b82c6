// The notice popup.
#include "framework/CVireoInfowin.h"

#include "framework/Assert.h"
#include "framework/CVireoApp.h"
#include "framework/Gdi.h"
#include "framework/WindowObject.h"

static constexpr UINT_PTR hideTimerId = 100;
static constexpr UINT_PTR blinkTimerId = 101;
static constexpr int usablePercent = 70; // of the main window's width and height

// value * percent / 100, rounded half up as the platform's MulDiv does for positive values.
static int Percent(int value, int percent)
{
    return (value * percent + 50) / 100;
}

CVireoInfowin::~CVireoInfowin()
{
    KillTimers();
    if (window != nullptr) {
        DestroyWindow(window);
    }
}

void CVireoInfowin::Construct()
{
    CVireoApp* app = CVireoApp::Current();
    CStr className;
    CVireoApp::MakeAppBaseName(className);
    className.Append(L"IW");
    className.AppendUint(static_cast<uint32_t>(reinterpret_cast<UINT_PTR>(this)));

    WNDCLASSW windowClass = {};
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = InfoWindowProc;
    windowClass.hInstance = app->Instance();
    windowClass.hbrBackground = CE_COLOR_BRUSH(COLOR_SCROLLBAR);
    windowClass.lpszClassName = className;
    Assert(RegisterClassW(&windowClass) != 0, ErrorGeneric, L"CVireoInfowin::Construct", __LINE__);

    window = CreateWindowExW(0, className, nullptr, WS_POPUP, 0, 0, 0, 0, app->MainWindow(), nullptr,
                             app->Instance(), this);
    Assert(window != nullptr, ErrorGeneric, L"CVireoInfowin::Construct", __LINE__);
}

void CVireoInfowin::KillTimers()
{
    if (hideTimer != 0) {
        KillTimer(window, hideTimer);
        hideTimer = 0;
    }
    if (blinkTimer != 0) {
        KillTimer(window, blinkTimer);
        blinkTimer = 0;
    }
    textHidden = false;
}

// Lays the text out within the usable part of area; the result is the popup's size.
SIZE CVireoInfowin::Measure(const RECT& area, int& lineGap, int& digitWidth)
{
    ScreenDC screen;
    Selection font(screen, GetStockObject(SYSTEM_FONT));
    TEXTMETRICW metrics = {};
    GetTextMetricsW(screen, &metrics);
    lineGap = metrics.tmHeight + metrics.tmExternalLeading + 1;
    SIZE digit = {};
    GetTextExtentExPointW(screen, L"0", 1, 0, nullptr, nullptr, &digit);
    digitWidth = digit.cx;

    const int half = lineGap / 2;
    textRect.left = digitWidth;
    textRect.top = half;
    textRect.right = Percent(area.right - area.left, usablePercent) - digitWidth;
    textRect.bottom = Percent(area.bottom - area.top, usablePercent) - half;
    DrawTextW(screen, text, -1, &textRect, DT_CALCRECT | DT_WORDBREAK);
    return {textRect.right + digitWidth / 2, textRect.bottom + half};
}

void CVireoInfowin::Show(const wchar_t* newText, uint32_t hideAfterMs, uint32_t placement, uint32_t blinkMs)
{
    KillTimers();
    text = newText;

    HWND mainWindow = CVireoApp::Current()->MainWindow();
    RECT area = {};
    GetClientRect(mainWindow, &area);
    MapWindowPoints(mainWindow, nullptr, reinterpret_cast<POINT*>(&area), 2);
    int lineGap = 0;
    int digitWidth = 0;
    const SIZE size = Measure(area, lineGap, digitWidth);

    // x counts from the main window's left edge, which is the screen's.
    int x = digitWidth;
    if (placement & InfoCentreX) {
        x = (area.right - size.cx - area.left) / 2;
    } else if (placement & InfoRight) {
        x = area.right - size.cx - area.left - digitWidth;
    }
    int y = area.top + lineGap / 2;
    if (placement & InfoCentreY) {
        y = area.top + (area.bottom - size.cy - area.top) / 2;
    } else if (placement & InfoBottom) {
        y = area.bottom - size.cy - lineGap;
    }
    SetWindowPos(window, HWND_TOPMOST, x, y, size.cx, size.cy, SWP_SHOWWINDOW | SWP_NOACTIVATE);
    InvalidateRect(window, nullptr, TRUE);
    UpdateWindow(window);

    if (hideAfterMs != 0) {
        hideTimer = SetTimer(window, hideTimerId, hideAfterMs, nullptr);
    }
    if (blinkMs != 0) {
        blinkTimer = SetTimer(window, blinkTimerId, blinkMs, nullptr);
    }
}

void CVireoInfowin::Hide()
{
    KillTimers();
    ShowWindow(window, SW_HIDE);
}

void CVireoInfowin::Paint(HDC target) const
{
    RECT client = {};
    GetClientRect(window, &client);
    FillRect(target, &client, GetSysColorBrush(COLOR_HIGHLIGHT));
    HBRUSH frame = GetSysColorBrush(COLOR_WINDOWFRAME);
    const RECT edges[] = {{0, 0, client.right, 1},
                          {0, client.bottom - 1, client.right, client.bottom},
                          {0, 0, 1, client.bottom},
                          {client.right - 1, 0, client.right, client.bottom}};
    for (const RECT& edge : edges) {
        FillRect(target, &edge, frame);
    }
    if (textHidden) {
        return;
    }
    Selection font(target, GetStockObject(SYSTEM_FONT));
    SetTextColor(target, GetSysColor(COLOR_HIGHLIGHTTEXT));
    SetBkMode(target, TRANSPARENT);
    RECT rect = textRect;
    DrawTextW(target, text, -1, &rect, DT_WORDBREAK);
}

LRESULT CALLBACK CVireoInfowin::InfoWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* info = WindowObject<CVireoInfowin>(window, message, lParam);
    if (info == nullptr) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    switch (message) {
    case WM_PAINT: {
        PaintDC paint(window);
        if (paint) {
            info->Paint(paint);
        }
        return 0;
    }
    case WM_TIMER:
        if (wParam == hideTimerId) {
            info->Hide();
        } else if (wParam == blinkTimerId) {
            info->textHidden = !info->textHidden;
            InvalidateRect(window, nullptr, FALSE);
        }
        return 0;
    case WM_LBUTTONDOWN:
        info->Hide();
        break;
    default:
        break;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}
