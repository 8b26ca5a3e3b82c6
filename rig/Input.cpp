// Real keys and taps: they go where the user's would, to the window in front or under the stylus.
#include "rig/Input.h"

#include "rig/WaitFor.h"

namespace rig {

static void SendKey(WORD key, WORD character, DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = character ? character : static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof(input));
}

// Absolute mouse positions count the screen in 65536 steps; rounded up, the result is the pixel meant.
static LONG Steps(LONG pixel, int size)
{
    return static_cast<LONG>((static_cast<LONGLONG>(pixel) * 65536 + size - 1) / size);
}

// Moves and presses in one event: a late motion event of the X server cannot come between.
static void SendButton(POINT point, DWORD button)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = Steps(point.x, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = Steps(point.y, GetSystemMetrics(SM_CYSCREEN));
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | button;
    SendInput(1, &input, sizeof(input));
}

void KeyDown(WORD key)
{
    SendKey(key, 0, 0);
}

void KeyUp(WORD key)
{
    SendKey(key, 0, KEYEVENTF_KEYUP);
}

void ExtendedKeyDown(WORD key)
{
    SendKey(key, 0, KEYEVENTF_EXTENDEDKEY);
}

void ExtendedKeyUp(WORD key)
{
    SendKey(key, 0, KEYEVENTF_EXTENDEDKEY | KEYEVENTF_KEYUP);
}

void PressKey(WORD key, int times)
{
    for (int i = 0; i < times; i++) {
        KeyDown(key);
        KeyUp(key);
    }
}

void PressChord(std::initializer_list<WORD> keys)
{
    for (WORD key : keys) {
        KeyDown(key);
    }
    for (auto key = std::rbegin(keys); key != std::rend(keys); ++key) {
        KeyUp(*key);
    }
}

void TypeText(const std::wstring& text)
{
    for (wchar_t character : text) {
        const SHORT key = VkKeyScanW(character);
        if (key > 0 && HIBYTE(key) == 0) {
            PressKey(LOBYTE(key));
        } else {
            SendKey(0, character, KEYEVENTF_UNICODE);
            SendKey(0, character, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
        }
    }
}

void MoveTo(POINT point)
{
    // Not by an input event: under Wine that leaves the X server's pointer where it was, and Wine soon takes
    // its own position from there again. A call that changes nothing in Wine's eyes does not reach the X
    // server either.
    WaitFor([=] {
        POINT now = {};
        SetCursorPos(point.x, point.y);
        if (GetCursorPos(&now) && now.x == point.x && now.y == point.y) {
            return true;
        }
        SetCursorPos(point.x + 1, point.y);
        return false;
    });
}

void StylusDown(POINT point)
{
    MoveTo(point);
    SendButton(point, MOUSEEVENTF_LEFTDOWN);
}

void StylusUp(POINT point)
{
    SendButton(point, MOUSEEVENTF_LEFTUP);
}

void Tap(POINT point)
{
    StylusDown(point);
    StylusUp(point);
}

void DoubleTap(POINT point)
{
    Tap(point);
    Tap(point);
}

POINT PointIn(HWND window, int x, int y)
{
    POINT point = {x, y};
    ClientToScreen(window, &point);
    return point;
}

} // namespace rig
