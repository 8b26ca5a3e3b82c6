// Control: the hidden window by which scripts find the handheld and end it with WM_CLOSE.
#include "platform/pc/handheld/Control.h"

#include "platform/pc/common/ControlWindow.h"
#include "platform/pc/common/TurnRequest.h"
#include "platform/pc/handheld/Keys.h"
#include "platform/pc/handheld/ScreenTurn.h"

static constexpr wchar_t readyProperty[] = L"Ready";

HWND Control::Find()
{
    return handheld::FindControl();
}

bool Control::IsReady(HWND control)
{
    return control && GetPropW(control, readyProperty) != nullptr;
}

bool Control::Open()
{
    return Create(handheld::controlClass, L"", 0, WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, RECT{});
}

void Control::SetReady()
{
    SetPropW(Window(), readyProperty, reinterpret_cast<HANDLE>(1));
}

LRESULT Control::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT answer = 0;
    if (keys && keys->HandleMessage(message, wParam, lParam, answer)) {
        return answer;
    }
    switch (message) {
    case WM_CLOSE:
        PostQuitMessage(0);
        return 0;
    case handheld::WM_TURN_SCREEN: {
        const long result = TurnScreen(static_cast<int>(wParam));
        return result == DISP_CHANGE_SUCCESSFUL ? handheld::turned : result;
    }
    case WM_NCDESTROY:
        RemovePropW(Window(), readyProperty);
        break;
    }
    return ShellWindow::HandleMessage(message, wParam, lParam);
}
