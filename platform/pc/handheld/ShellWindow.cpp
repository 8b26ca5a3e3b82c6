// ShellWindow: a window of the handheld's shell.
#include "platform/pc/handheld/ShellWindow.h"

#include "platform/pc/common/WindowObject.h"

ShellWindow::~ShellWindow()
{
    if (window) {
        DestroyWindow(window);
    }
}

bool ShellWindow::Create(const wchar_t* className, const wchar_t* title, DWORD style, DWORD exStyle,
                         const RECT& rect)
{
    WNDCLASSW windowClass = {};
    windowClass.style = CS_HREDRAW | CS_VREDRAW; // all of a bar or of the home screen depends on its size
    windowClass.lpfnWndProc = WindowProcedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = className;
    if (!RegisterClassW(&windowClass)) {
        return false;
    }
    CreateWindowExW(exStyle, className, title, style | WS_POPUP, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, nullptr, nullptr, windowClass.hInstance, this);
    return window != nullptr;
}

LRESULT ShellWindow::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT: {
        handheld::Surface surface(window);
        Paint(surface);
        return 0;
    }
    case WM_CLOSE: // the shell does not end
        return 0;
    default:
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

void ShellWindow::Paint(handheld::Surface&) {}

LRESULT CALLBACK ShellWindow::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* self = handheld::ObjectOf<ShellWindow>(window, message, lParam);
    if (!self) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    self->window = window;
    const LRESULT result = self->HandleMessage(message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        handheld::ForgetObject(window);
        self->window = nullptr;
    }
    return result;
}
