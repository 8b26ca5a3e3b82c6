// actor.exe: a program whose windows look and behave as a test orders.
#include "rig/actor/ActorWindow.h"

static DWORD WINAPI DoNothing(void*)
{
    Sleep(INFINITE);
    return 0;
}

static LRESULT StartThreads(DWORD count)
{
    for (DWORD i = 0; i < count; i++) {
        const HANDLE thread = CreateThread(nullptr, 0, DoNothing, nullptr, 0, nullptr);
        if (!thread) {
            return FALSE;
        }
        CloseHandle(thread);
    }
    return TRUE;
}

static LRESULT CALLBACK ControlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_COPYDATA) {
        return DefWindowProcW(window, message, wParam, lParam);
    }

    const auto* data = reinterpret_cast<const COPYDATASTRUCT*>(lParam);
    if (data->dwData == actor::MakeWindow && data->cbData == sizeof(actor::WindowOrder)) {
        return reinterpret_cast<LRESULT>(
            actor::ActorWindow::Make(*static_cast<actor::WindowOrder*>(data->lpData)));
    }
    if (data->dwData == actor::VanishWindow && data->cbData == sizeof(HWND)) {
        return DestroyWindow(*static_cast<HWND*>(data->lpData));
    }
    if (data->dwData == actor::FocusWindow && data->cbData == sizeof(HWND)) {
        return SetFocus(*static_cast<HWND*>(data->lpData)) != nullptr;
    }
    if (data->dwData == actor::StartThreads && data->cbData == sizeof(DWORD)) {
        return StartThreads(*static_cast<DWORD*>(data->lpData));
    }
    if (data->dwData == actor::EndProcess && data->cbData == sizeof(DWORD)) {
        PostQuitMessage(static_cast<int>(*static_cast<DWORD*>(data->lpData)));
        return TRUE;
    }
    return FALSE;
}

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int)
{
    SetProcessDPIAware();
    WNDCLASSW control = {};
    control.lpfnWndProc = ControlProc;
    control.hInstance = instance;
    control.lpszClassName = actor::controlClass;
    RegisterClassW(&control);
    wchar_t title[16];
    wsprintfW(title, L"%u", GetCurrentProcessId());
    if (!CreateWindowExW(0, actor::controlClass, title, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, instance,
                         nullptr)) {
        return 1;
    }

    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}
