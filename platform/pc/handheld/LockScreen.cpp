// LockScreen: what stands above every program while the keys are locked.
#include "platform/pc/handheld/LockScreen.h"

#include "platform/pc/common/ActiveProfile.h"
#include "platform/pc/common/BarLook.h"
#include "platform/pc/common/Screen.h"

using handheld::KeyLock;
using handheld::Scaled;

static constexpr UINT_PTR frontTimer = 1;
static constexpr UINT frontInterval = 250; // ms; programs go on, and may come to the front
static constexpr UINT_PTR questionTimer = 2;
static constexpr UINT questionTime = 8000;
static constexpr COLORREF night = RGB(24, 34, 54);
static constexpr COLORREF letters = RGB(255, 255, 255);

static bool IsSmartphone()
{
    return handheld::ActiveProfile().IsSmartphone();
}

LockScreen::LockScreen(std::function<void()> unlocked)
    : whenUnlocked(std::move(unlocked)), lock(IsSmartphone()), bold(handheld::CreateScreenFont(9, FW_BOLD)),
      large(handheld::CreateScreenFont(11, FW_BOLD))
{}

LockScreen::~LockScreen()
{
    DeleteObject(bold);
    DeleteObject(large);
}

// It is never active: the program in front keeps the keys that it will get again.
bool LockScreen::Open()
{
    if (!Window() && !Create(L"QuorvaneHandheldLock", L"Locked", 0, WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE,
                             handheld::ScreenRect())) {
        return false;
    }
    lock.Lock();
    CoverScreen();
    SetTimer(Window(), frontTimer, frontInterval, nullptr);
    Show();
    return true;
}

void LockScreen::PressKey(WPARAM key, bool isShiftDown)
{
    lock.Press(key, isShiftDown);
    Show();
}

LRESULT LockScreen::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_TIMER:
        if (wParam == questionTimer) {
            lock.TakeBack();
            Show();
        }
        if (lock.IsLocked() && (GetTopWindow(nullptr) != Window() || !CoversScreen())) {
            CoverScreen();
        }
        return 0;
    case WM_LBUTTONUP:
        Tap({static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))});
        return 0;
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    default:
        return ShellWindow::HandleMessage(message, wParam, lParam);
    }
}

void LockScreen::Tap(POINT point)
{
    const RECT softKey = SoftKey();
    const RECT button = Button();
    if (PtInRect(&softKey, point)) {
        lock.PressUnlock();
    } else if (PtInRect(&button, point) && !IsSmartphone()) {
        lock.Confirm();
    }
    Show();
}

// What the state of the lock has become.
void LockScreen::Show()
{
    switch (lock.Now()) {
    case KeyLock::State::Open:
        KillTimer(Window(), frontTimer);
        KillTimer(Window(), questionTimer);
        whenUnlocked(); // first: who sees the screen go presses keys again
        ShowWindow(Window(), SW_HIDE);
        break;
    case KeyLock::State::Confirming:
        SetTimer(Window(), questionTimer, questionTime, nullptr);
        [[fallthrough]];
    case KeyLock::State::Locked:
        InvalidateRect(Window(), nullptr, FALSE);
        break;
    }
}

// The screen may have been turned.
bool LockScreen::CoversScreen() const
{
    const RECT screen = handheld::ScreenRect();
    RECT place = {};
    GetWindowRect(Window(), &place);
    return EqualRect(&place, &screen) != FALSE;
}

void LockScreen::CoverScreen() const
{
    const RECT place = handheld::ScreenRect();
    SetWindowPos(Window(), HWND_TOP, place.left, place.top, place.right, place.bottom,
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void LockScreen::Paint(handheld::Surface& surface)
{
    const RECT all = surface.Client();
    surface.Fill(all, night);
    const bool asks = lock.Now() == KeyLock::State::Confirming;
    RECT text = all;
    text.bottom = Button().top;
    surface.Text(L"The keys are locked", text, large, letters, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    const RECT button = Button();
    if (asks && IsSmartphone()) {
        surface.Text(L"Now press *", button, bold, letters, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    } else if (asks) {
        handheld::PaintPressedKey(surface, button);
        handheld::PaintKeyText(surface, button, L"Unlock: tap or Enter", bold, true);
    }
    RECT bar = all;
    bar.top = bar.bottom - handheld::BarHeight();
    handheld::PaintBar(surface, bar);
    handheld::PaintKeyText(surface, SoftKey(), L"Unlock", bold, !asks);
}

RECT LockScreen::SoftKey() const
{
    RECT key;
    GetClientRect(Window(), &key);
    key.top = key.bottom - handheld::BarHeight();
    key.right /= 2;
    return key;
}

// In the middle of the screen, far from the soft key.
RECT LockScreen::Button() const
{
    RECT area;
    GetClientRect(Window(), &area);
    const int middle = area.bottom / 2;
    return {Scaled(30), middle - Scaled(20), area.right - Scaled(30), middle + Scaled(20)};
}
