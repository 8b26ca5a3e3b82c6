// Control: the hidden window by which scripts find the handheld and end it with WM_CLOSE.
#include "platform/pc/handheld/Control.h"

namespace {

constexpr wchar_t ControlClass[] = L"QuorvaneHandheldControl";
constexpr wchar_t ReadyProperty[] = L"Ready";

} // namespace

HWND Control::Find()
{
    return FindWindowW(ControlClass, nullptr);
}

bool Control::IsReady(HWND control)
{
    return control && GetPropW(control, ReadyProperty) != nullptr;
}

bool Control::Open()
{
    return Create(ControlClass, L"", 0, WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, RECT{});
}

void Control::SetReady()
{
    SetPropW(Window(), ReadyProperty, reinterpret_cast<HANDLE>(1));
}

LRESULT Control::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_CLOSE:
        PostQuitMessage(0);
        return 0;
    case WM_NCDESTROY:
        RemovePropW(Window(), ReadyProperty);
        break;
    }
    return ShellWindow::HandleMessage(message, wParam, lParam);
}
