// ActorWindow: one window of actor.exe, made and behaving as ordered.
#include "rig/actor/ActorWindow.h"

namespace actor {

static const UINT closeCount = RegisterWindowMessageW(closeCountMessage);
static const UINT keyCount = RegisterWindowMessageW(keyCountMessage);
static const UINT moveCount = RegisterWindowMessageW(moveCountMessage);

HWND ActorWindow::Make(const WindowOrder& order)
{
    const HINSTANCE instance = GetModuleHandleW(nullptr);
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = order.className;
    // Several windows may have the same class.
    if (!RegisterClassW(&windowClass) && GetLastError() != ERROR_CLASS_ALREADY_EXISTS) {
        return nullptr;
    }

    // Shown only when it is complete, so that a test never finds half a window.
    auto* self = new ActorWindow(order);
    const RECT& place = order.place;
    const HWND window = CreateWindowExW(
        order.exStyle, order.className, order.title, order.style & ~WS_VISIBLE, place.left, place.top,
        place.right - place.left, place.bottom - place.top, order.owner, nullptr, instance, self);
    if (window && (order.style & WS_VISIBLE)) {
        ShowWindow(window, SW_SHOW);
        UpdateWindow(window);
    }
    return window;
}

LRESULT CALLBACK ActorWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE) {
        auto* self = static_cast<ActorWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        self->window = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<ActorWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        if (self->order.endsActor) {
            PostQuitMessage(static_cast<int>(self->order.exitCode));
        }
        delete self;
        return DefWindowProcW(window, message, wParam, lParam);
    }
    return self->Handle(message, wParam, lParam);
}

LRESULT ActorWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == closeCount) {
        return closes;
    }
    if (message == keyCount) {
        return keys;
    }
    if (message == moveCount) {
        return moves;
    }
    switch (message) {
    case WM_CLOSE:
        OnClose();
        return 0;
    case WM_PAINT:
        OnPaint();
        return 0;
    case WM_KEYDOWN:
        keys++;
        break;
    case WM_MOUSEMOVE:
        moves++;
        break;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

void ActorWindow::OnClose()
{
    closes++;
    switch (order.closing) {
    case Closing::Ignore:
        return;
    case Closing::Delay:
        Sleep(order.delay);
        break;
    case Closing::Ask:
        if (MessageBoxW(window, L"Close this window?", order.title, MB_YESNO) != IDYES) {
            return;
        }
        break;
    case Closing::Close:
        break;
    }
    DestroyWindow(window);
}

void ActorWindow::OnPaint()
{
    PAINTSTRUCT paint;
    const HDC context = BeginPaint(window, &paint);
    const HBRUSH brush = CreateSolidBrush(order.colour);
    FillRect(context, &paint.rcPaint, brush);
    DeleteObject(brush);
    EndPaint(window, &paint);
}

} // namespace actor
