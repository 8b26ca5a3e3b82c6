// What the application does for a hardware key that was pressed or held.
#include "app/CApp.h"
#include "keys/KeyLock.h"
#include "keys/ScreenTurn.h"
#include "pages/start/StartShortcut.h"
#include "pages/tasks/TaskWindows.h"
#include "resources/ids.h"

void CApp::PerformAction(WPARAM pressLength)
{
    if (pressLength != KeyPressed && pressLength != KeyHeld) {
        return;
    }
    const bool held = pressLength == KeyHeld;
    switch (held ? keyPress.holdAction : keyPress.pressAction) {
    case KeyActionStart: {
        // A copy: the start may let the next press in.
        const CStr application(held ? keyPress.holdApplication : keyPress.pressApplication);
        StartShortcut(application);
        break;
    }
    case KeyActionShowTasks:
        ShowPageByKey(PageTasks);
        break;
    case KeyActionShowProcs:
        ShowPageByKey(PageProcs);
        break;
    case KeyActionShowSysInfo:
        ShowPageByKey(PageSysInfo);
        break;
    case KeyActionShowStart:
        ShowPageByKey(PageStart);
        break;
    case KeyActionCloseCurrent:
        CloseCurrent();
        break;
    case KeyActionCloseAll:
        SendMessageW(mainWindow, WM_COMMAND, CMD_CLOSE_ALL, 0);
        ShowNotice(L"Done");
        break;
    case KeyActionCloseOthers:
        CloseOthers();
        break;
    case KeyActionRotateLeft:
    case KeyActionRotateRight: // deliberately the same turn
        TurnScreen();
        break;
    case KeyActionLockKeys:
        LockKeys(platform);
        break;
    default:
        break;
    }
}

void CApp::ShowPageByKey(int32_t id)
{
    EndAllDialogs();
    ShowWindow(mainWindow, SW_SHOW); // it may be minimised
    ActivateView(id);
    BringToFront(mainWindow);
}

// The application in front, by its topmost window; null when none is.
static HWND ApplicationInFront()
{
    HWND foreground = GetForegroundWindow();
    return foreground != nullptr ? TopOwner(foreground) : nullptr;
}

void CApp::CloseCurrent()
{
    HWND current = ApplicationInFront();
    if (current == nullptr) {
        return;
    }
    CStr className;
    WindowClass(current, className);
    if (current == mainWindow || IsProtectedClass(className)) {
        ShowNotice(L"It's forbidden to close this window");
        return;
    }
    SendMessageW(current, WM_CLOSE, 0, 0);
}

void CApp::CloseOthers()
{
    CloseAll(ApplicationInFront());
    ShowNotice(L"Done");
}
