// KeyList: the handheld's keys, for the user to read.
#include "platform/pc/handheld/KeyList.h"

#include "platform/pc/common/ActiveProfile.h"
#include "platform/pc/common/HandheldKeys.h"
#include "platform/pc/common/Screen.h"
#include "platform/pc/handheld/Front.h"

using handheld::Scaled;

static constexpr int lineHeight = 20; // at 96 dpi
static constexpr COLORREF ground = RGB(255, 255, 255);
static constexpr COLORREF text = RGB(0, 0, 0);

static std::vector<handheld::KeyLine> Lines()
{
    return handheld::ListKeys(handheld::ActiveProfile().IsSmartphone());
}

std::wstring KeyListText()
{
    std::wstring list;
    for (const handheld::KeyLine& line : Lines()) {
        list += line.pcKey + std::wstring(line.pcKey.size() < 16 ? 16 - line.pcKey.size() : 1, L' ') +
                line.meaning + L'\n';
    }
    return list;
}

KeyList::KeyList()
    : bold(handheld::CreateScreenFont(8, FW_BOLD)), normal(handheld::CreateScreenFont(8, FW_NORMAL))
{}

KeyList::~KeyList()
{
    DeleteObject(bold);
    DeleteObject(normal);
}

void KeyList::Toggle()
{
    if (Window() && IsWindowVisible(Window())) {
        Close();
    } else {
        Open();
    }
}

void KeyList::Open()
{
    const RECT place = handheld::ProgramRect();
    if (!Window() && !Create(L"QuorvaneHandheldKeys", L"Keys", 0, WS_EX_TOOLWINDOW, place)) {
        return;
    }
    previous = GetForegroundWindow();
    // It takes the front once: a second time it might take it back from a window that has come since.
    SetWindowPos(Window(), HWND_TOP, place.left, place.top, place.right - place.left,
                 place.bottom - place.top, SWP_SHOWWINDOW | SWP_NOACTIVATE);
    SetForegroundWindow(Window());
}

void KeyList::Close()
{
    // The front first: the system would give it to a window of its own choice.
    GiveFrontBack(Window(), previous);
    ShowWindow(Window(), SW_HIDE);
}

LRESULT KeyList::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_KEYDOWN:
    case WM_LBUTTONUP:
        Close();
        return 0;
    case WM_ACTIVATE:
        if (LOWORD(wParam) == WA_INACTIVE) {
            ShowWindow(Window(), SW_HIDE);
        }
        return 0;
    default:
        return ShellWindow::HandleMessage(message, wParam, lParam);
    }
}

void KeyList::Paint(handheld::Surface& surface)
{
    surface.Fill(surface.Client(), ground);
    RECT key = {Scaled(8), Scaled(8), Scaled(96), Scaled(8 + lineHeight)};
    for (const handheld::KeyLine& line : Lines()) {
        RECT meaning = key;
        meaning.left = key.right;
        meaning.right = surface.Client().right - Scaled(4);
        surface.Text(line.pcKey, key, bold, text, DT_LEFT | DT_VCENTER | DT_SINGLELINE);
        surface.Text(line.meaning, meaning, normal, text,
                     DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
        OffsetRect(&key, 0, Scaled(lineHeight));
    }
}
