// RunningStandIn: a window that a second start takes for the running program's, on a thread of its own.
#include "tests/e2e/app/RunningStandIn.h"

RunningStandIn::RunningStandIn() : ready(CreateEventW(nullptr, TRUE, FALSE, nullptr))
{
    thread = CreateThread(nullptr, 0, Run, this, 0, nullptr);
    WaitForSingleObject(ready, INFINITE);
}

RunningStandIn::~RunningStandIn()
{
    PostMessageW(window, WM_CLOSE, 0, 0);
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
    CloseHandle(ready);
}

DWORD WINAPI RunningStandIn::Run(void* parameter)
{
    auto* self = static_cast<RunningStandIn*>(parameter);
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    windowClass.lpszClassName = L"QuorvaneApp";
    RegisterClassW(&windowClass);
    self->window = CreateWindowExW(0, L"QuorvaneApp", L"Quorvane", WS_POPUP | WS_VISIBLE, 0, 40, 120, 120,
                                   nullptr, nullptr, windowClass.hInstance, self);
    SetEvent(self->ready);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
    UnregisterClassW(L"QuorvaneApp", windowClass.hInstance);
    return 0;
}

LRESULT CALLBACK RunningStandIn::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE) {
        SetWindowLongPtrW(
            window, GWLP_USERDATA,
            reinterpret_cast<LONG_PTR>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams));
    }
    auto* self = reinterpret_cast<RunningStandIn*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_COPYDATA && self) {
        const auto* data = reinterpret_cast<const COPYDATASTRUCT*>(lParam);
        const auto* first = static_cast<const std::byte*>(data->lpData);
        self->records.push_back({data->dwData, {first, first + data->cbData}});
        return TRUE;
    }
    if (message == WM_DESTROY) {
        PostQuitMessage(0);
    }
    return DefWindowProcW(window, message, wParam, lParam);
}
