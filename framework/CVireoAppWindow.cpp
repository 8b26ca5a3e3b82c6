// The main window of the application object: its creation, its messages, and what its end takes down.
#include "framework/CVireoApp.h"

#include "framework/CVireoInfowin.h"
#include "framework/CVireoView.h"
#include "framework/WindowObject.h"

bool CVireoApp::CreateMainWindow(const wchar_t* className, const wchar_t* title, uint32_t iconId)
{
    WNDCLASSW windowClass = {};
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = MainWindowProc;
    windowClass.hInstance = instance;
    windowClass.hIcon = LoadIconW(instance, MAKEINTRESOURCEW(iconId));
    windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(NULL_BRUSH));
    windowClass.lpszClassName = className;
    if (!RegisterClassW(&windowClass)) {
        return false;
    }
    return CreateWindowExW(0, className, title, WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                           CW_USEDEFAULT, nullptr, nullptr, instance, this) != nullptr;
}

void CVireoApp::MakeRoomForMenuBar()
{
    if (menuBar == nullptr) {
        return;
    }
    RECT window = {};
    RECT bar = {};
    GetWindowRect(mainWindow, &window);
    GetWindowRect(menuBar, &bar);
    window.bottom -= bar.bottom - bar.top;
    MoveWindow(mainWindow, window.left, window.top, window.right - window.left, window.bottom - window.top,
               FALSE);
}

LRESULT CALLBACK CVireoApp::MainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* app = WindowObject<CVireoApp>(window, message, lParam);
    if (app == nullptr) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    app->mainWindow = window;
    return app->HandleMessage(message, wParam, lParam);
}

// May run while a command of a view is still on the stack; nothing here touches a view after calling it.
LRESULT CVireoApp::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_CREATE:
        CreateMenuBar(mainWindow, 0);
        activateInfo = {};
        activateInfo.cbSize = sizeof activateInfo;
        return 0;
    case WM_DESTROY:
        Tear();
        return 0;
    case WM_SIZE:
        if (activeView != nullptr) {
            MoveWindow(activeView->Window(), 0, 0, LOWORD(lParam), HIWORD(lParam), FALSE);
        }
        return 0;
    case WM_ACTIVATE:
        SHHandleWMActivate(mainWindow, wParam, lParam, &activateInfo, 0);
        LOWORD(wParam) != WA_INACTIVE ? OnActivate() : OnDeactivate();
        return 0;
    case WM_SETTINGCHANGE:
        if (wParam == SPI_SETSIPINFO) {
            SHHandleWMSettingChange(mainWindow, wParam, lParam, &activateInfo);
        }
        return 0;
    case WM_COMMAND:
        activeView != nullptr ? activeView->OnCommand(LOWORD(wParam), HIWORD(wParam), lParam)
                              : OnCommand(LOWORD(wParam), HIWORD(wParam), lParam);
        return 0;
    case WM_INITMENUPOPUP: {
        auto* menu = reinterpret_cast<HMENU>(wParam);
        activeView != nullptr ? activeView->OnInitMenuPopup(menu, LOWORD(lParam))
                              : OnInitMenuPopup(menu, LOWORD(lParam));
        return 0;
    }
    default:
        return WindowProc(message, wParam, lParam);
    }
}

void CVireoApp::Tear()
{
    activeView = nullptr;
    for (uint32_t i = 0; i < views->Count(); ++i) {
        views->At(i)->OnDestroy();
        delete views->At(i);
    }
    delete views;
    views = nullptr;
    delete dialogs;
    dialogs = nullptr;
    if (menuBar != nullptr) {
        DestroyWindow(menuBar);
        menuBar = nullptr;
    }
    delete infoWindow;
    delete secondInfoWindow;
    infoWindow = secondInfoWindow = nullptr;

    OnDestroy();
    PostQuitMessage(0);
}
