// The application object: what is shown in and over its main window, views, soft keys, dialogs and notices.
#include "framework/CVireoApp.h"

#include "framework/Assert.h"
#include "framework/CVireoDialog.h"
#include "framework/CVireoInfowin.h"
#include "framework/CVireoView.h"

static constexpr uint32_t noticeMs = 3000;

void BringToFront(HWND window)
{
    // The low bit asks the window manager to bring the owned windows along.
    SetForegroundWindow(reinterpret_cast<HWND>(reinterpret_cast<ULONG_PTR>(window) | 1));
}

CVireoView* CVireoApp::FindView(int32_t id) const
{
    for (uint32_t i = 0; i < views->Count(); ++i) {
        if (views->At(i)->Id() == id) {
            return views->At(i);
        }
    }
    return nullptr;
}

static void ShowFocused(HWND window)
{
    ShowWindow(window, SW_SHOWNORMAL);
    SetFocus(window);
    UpdateWindow(window);
}

void CVireoApp::ActivateView(int32_t id)
{
    CVireoView* previous = activeView;
    if (views == nullptr || (previous != nullptr && previous->Id() == id)) {
        return;
    }
    CVireoView* view = FindView(id);
    Assert(view != nullptr, ErrorNotFound, L"CVireoApp::ActivateView", __LINE__);

    // Whatever lets messages in may end the main window with all its views, or show another one, whose turn
    // it is then.
    activeView = view;
    RECT client = {};
    GetClientRect(mainWindow, &client);
    MoveWindow(view->Window(), 0, 0, client.right, client.bottom, FALSE);
    if (activeView == view) {
        CreateMenuBar(mainWindow, view->MenuBarId());
    }
    if (activeView == view) {
        ShowFocused(view->Window());
    }
    if (activeView == view) {
        view->OnActivate(previous != nullptr ? previous->Id() : 0);
    }
    if (views != nullptr && previous != nullptr && previous != activeView) {
        ShowWindow(previous->Window(), SW_HIDE);
        previous->OnDeactivate();
    }
}

void CVireoApp::AddView(CVireoView* view)
{
    if (views != nullptr) {
        views->Append(view);
    }
}

void CVireoApp::ShowInfo(const wchar_t* text, uint32_t hideAfterMs, uint32_t placement)
{
    if (infoWindow != nullptr) {
        infoWindow->Show(text, hideAfterMs, placement, 0);
    }
}

void CVireoApp::HideInfo()
{
    if (infoWindow != nullptr) {
        infoWindow->Hide();
    }
}

void CVireoApp::ShowNotice(const wchar_t* text)
{
    ShowInfo(text, noticeMs, InfoRight);
}

void CVireoApp::BeginModal()
{
    EnableMainWindow(FALSE);
}

// Always enabled, whatever it was before: a dialog or a box above another one may end in another order than
// they began, and a disabled owner would hand the keyboard to another program when the dialog's window goes.
// The full-screen dialog that may still be open below covers the main window.
void CVireoApp::EndModal()
{
    EnableMainWindow(TRUE);
}

void CVireoApp::EnableMainWindow(BOOL enabled)
{
    if (HasMainWindow()) {
        EnableWindow(mainWindow, enabled);
    }
}

void CVireoApp::DialogOpened(CVireoDialog* dialog)
{
    if (dialogs != nullptr) {
        dialogs->Append(dialog);
    }
}

void CVireoApp::DialogClosed(CVireoDialog* dialog)
{
    for (uint32_t i = dialogs != nullptr ? dialogs->Count() : 0; i > 0; --i) {
        if (dialogs->At(i - 1) == dialog) {
            dialogs->Delete(i - 1, 1);
            return;
        }
    }
}

void CVireoApp::EndAllDialogs()
{
    for (uint32_t i = dialogs != nullptr ? dialogs->Count() : 0; i > 0; --i) {
        dialogs->At(i - 1)->End(IDCANCEL);
    }
}

bool CVireoApp::CreateMenuBar(HWND parent, uint32_t menuBarId)
{
    if (HWND old = menuBar) {
        menuBar = nullptr;
        DestroyWindow(old);
    }
    SHMENUBARINFO info = {};
    info.cbSize = sizeof info;
    info.hwndParent = parent;
    info.dwFlags = menuBarId == 0 ? SHCMBF_EMPTYBAR : 0;
    info.nToolBarId = menuBarId;
    info.hInstRes = instance;
    const bool created = SHCreateMenuBar(&info) != FALSE;
    menuBar = created ? info.hwndMB : nullptr;
    return created;
}
