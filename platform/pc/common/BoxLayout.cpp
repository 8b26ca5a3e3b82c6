// BoxLayout: lays a message box out anew that is larger than the handheld's screen.
#include "platform/pc/common/BoxLayout.h"

#include "platform/pc/common/BoxParts.h"
#include "platform/pc/common/Screen.h"

#include <algorithm>
#include <string>

namespace handheld {

static constexpr int marginAt96 = 8;

static SIZE SizeOf(HWND window)
{
    RECT rect = {};
    GetWindowRect(window, &rect);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

// The height of a control's text in lines of this width.
static int TextHeight(HWND control, int width)
{
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(control)) + 1, L'\0');
    GetWindowTextW(control, text.data(), static_cast<int>(text.size()));
    const HDC screen = GetDC(control);
    const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0));
    const HGDIOBJ before = font ? SelectObject(screen, font) : nullptr;
    RECT rect = {0, 0, width, 0};
    DrawTextW(screen, text.c_str(), -1, &rect, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS);
    if (before) {
        SelectObject(screen, before);
    }
    ReleaseDC(control, screen);
    return rect.bottom;
}

// A row in the middle of the width; returns its height.
static int PlaceButtons(const std::vector<HWND>& buttons, int y, int width, int gap)
{
    const int count = static_cast<int>(buttons.size());
    if (count == 0) {
        return 0;
    }
    const int room = (width - gap * (count + 1)) / count;
    int total = gap * (count - 1);
    int height = 0;
    for (HWND button : buttons) {
        const SIZE size = SizeOf(button);
        total += std::min<int>(size.cx, room);
        height = std::max<int>(height, size.cy);
    }
    int x = (width - total) / 2;
    for (HWND button : buttons) {
        const int own = std::min<int>(SizeOf(button).cx, room);
        MoveWindow(button, x, y, own, height, FALSE);
        x += own + gap;
    }
    return height;
}

void FollowScreen(HWND box)
{
    FitIntoScreen(box);
    const RECT screen = ProgramRect();
    const SIZE size = SizeOf(box);
    SetWindowPos(box, nullptr, screen.left + (screen.right - screen.left - size.cx) / 2,
                 screen.top + std::max<int>(0, (screen.bottom - screen.top - size.cy) / 2), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void FitIntoScreen(HWND box)
{
    const RECT screen = ProgramRect();
    const int screenWidth = screen.right - screen.left;
    const SIZE whole = SizeOf(box);
    if (whole.cx <= screenWidth && whole.cy <= screen.bottom - screen.top) {
        return;
    }
    RECT client = {};
    GetClientRect(box, &client);
    const int frameWidth = whole.cx - client.right;
    const int frameHeight = whole.cy - client.bottom;
    const int width = screenWidth - frameWidth;
    const int margin = Scaled(marginAt96);

    const BoxParts parts(box);
    int left = margin;
    int height = 0; // of sign and text
    if (parts.sign) {
        const SIZE sign = SizeOf(parts.sign);
        MoveWindow(parts.sign, margin, margin, sign.cx, sign.cy, FALSE);
        left += sign.cx + margin;
        height = sign.cy;
    }
    if (parts.text) {
        const int textWidth = width - left - margin;
        const int textHeight = TextHeight(parts.text, textWidth);
        MoveWindow(parts.text, left, margin, textWidth, textHeight, FALSE);
        height = std::max(height, textHeight);
    }
    const int row = margin + height + margin;
    const int boxHeight = frameHeight + row + PlaceButtons(parts.buttons, row, width, margin) + margin;
    const int top = screen.top + std::max<int>(0, (screen.bottom - screen.top - boxHeight) / 2);
    SetWindowPos(box, nullptr, screen.left, top, screenWidth, boxHeight, SWP_NOZORDER | SWP_NOACTIVATE);
    RedrawWindow(box, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

} // namespace handheld
