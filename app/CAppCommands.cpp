// The application's commands, its main window's messages and the periodic refresh.
#include "app/CApp.h"

#include "framework/CVireoView.h"
#include "keys/CDialogKeys.h"
#include "keys/CDialogKeys_SP.h"
#include "pages/tasks/CloseTasks.h"
#include "resources/ids.h"
#include "resources/version.h"

static constexpr UINT refreshMs = 7500;
static constexpr DWORD closingAllMs =
    1000; // the applications get this long to go before the page is refreshed

#define QV_WIDE_(text) L##text
#define QV_WIDE(text) QV_WIDE_(text)

void CApp::OnCommand(uint32_t id, uint32_t /*notifyCode*/, LPARAM /*control*/)
{
    if (const SPage* page = PageOfCommand(id)) {
        ShowPage(page->id);
        return;
    }
    switch (id) {
    case CMD_HIDE:
        ShowWindow(mainWindow, SW_MINIMIZE);
        break;
    case CMD_EXIT:
        SendMessageW(mainWindow, WM_CLOSE, 0, 0);
        break;
    case CMD_SETTINGS:
        ShowNotice(L"Settings cmd"); // a placeholder on purpose
        break;
    case CMD_HARDWARE_KEYS:
        ShowHardwareKeys();
        break;
    case CMD_CLOSE_ALL:
        CloseAll(nullptr);
        break;
    case CMD_ABOUT:
        ShowAbout();
        break;
    default:
        break;
    }
}

void CApp::ShowPage(int32_t id)
{
    EndAllDialogs();
    ActivateView(id);
    BringToFront(mainWindow);
}

void CApp::CloseAll(HWND spared)
{
    EnumWindows(CloseAllTasksProc, reinterpret_cast<LPARAM>(spared));
    if (HasMainWindow() && HasRefreshablePage()) {
        Sleep(closingAllMs);
        RefreshCurrentPage();
    }
}

void CApp::ShowHardwareKeys()
{
    if (platform == Platform::Smartphone) {
        CDialogKeys_SP::Show(startPrograms, homeKey);
    } else {
        CDialogKeys::Show(startPrograms);
    }
}

void CApp::ShowAbout()
{
    MessageBoxW(mainWindow, L"Quorvane " QV_WIDE(QV_VERSION_TEXT), L"About", MB_OK);
}

void CApp::OnActivate()
{
    RefreshCurrentPage();
    SetTimer(mainWindow, RefreshTimer, refreshMs, nullptr);
}

void CApp::OnDeactivate()
{
    KillTimer(mainWindow, RefreshTimer);
}

bool CApp::HasRefreshablePage() const
{
    return activeView != nullptr && activeView->Id() != PageStart;
}

void CApp::RefreshCurrentPage()
{
    if (HasRefreshablePage()) {
        activeView->OnCommand(CMD_REFRESH, 0, 0);
    }
}

void CApp::OnTimer(WPARAM timer)
{
    switch (timer) {
    case RefreshTimer:
        RefreshCurrentPage();
        break;
    case HoldTimer:
        OnHoldTimer();
        break;
    case HomeTimer:
        OnHomeTimer();
        break;
    default:
        break;
    }
}

LRESULT CApp::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_SETFOCUS:
        // A page that was shown below an open dialog could not take the focus then.
        if (activeView != nullptr) {
            SetFocus(activeView->Window());
        }
        break;
    case WM_COPYDATA:
        if (keyPress.Read(reinterpret_cast<const COPYDATASTRUCT*>(lParam))) {
            AwaitRelease();
        }
        return TRUE;
    case WM_TIMER:
        OnTimer(wParam);
        break;
    case WM_HOTKEY:
        if (HIWORD(lParam) == VK_ESCAPE) {
            SHSendBackToFocusWindow(message, wParam, lParam);
        } else if (HIWORD(lParam) == VK_LWIN) {
            OnHomeKey((LOWORD(lParam) & MOD_KEYUP) != 0);
        }
        break;
    case keyActionMessage:
        PerformAction(wParam);
        break;
    default:
        break;
    }
    return CVireoApp::WindowProc(message, wParam, lParam);
}
