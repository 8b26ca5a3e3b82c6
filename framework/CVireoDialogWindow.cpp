// The window side of a modal dialog: its procedure, its menu bar and its place on the screen.
#include "framework/CVireoDialog.h"

#include "framework/CVireoApp.h"
#include "framework/Gdi.h"
#include "framework/Scale.h"
#include "framework/WindowObject.h"

static constexpr int marginAt96Dpi = 7;
static constexpr DWORD pocketPcFlags =
    SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN | SHIDIF_EMPTYMENU;
static constexpr DWORD smartphoneFlags = SHIDIF_SIZEDLGFULLSCREEN;

static RECT MainRect()
{
    RECT rect = {};
    GetWindowRect(CVireoApp::Current()->MainWindow(), &rect);
    return rect;
}

INT_PTR CALLBACK CVireoDialog::DialogWindowProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(dialog, GWLP_USERDATA, lParam);
        auto* started = reinterpret_cast<CVireoDialog*>(lParam);
        started->window = dialog;
        started->reached = true;
    }
    auto* object = reinterpret_cast<CVireoDialog*>(GetWindowLongPtrW(dialog, GWLP_USERDATA));
    return object != nullptr ? object->HandleMessage(message, wParam, lParam) : 0;
}

INT_PTR CVireoDialog::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_INITDIALOG:
        return Initialise() ? 1 : 0;
    case WM_DIALOG_END:
        ended = true;
        endResult = static_cast<int>(wParam);
        return 1;
    case WM_DESTROY:
        CVireoApp::Current()->DialogClosed(this);
        OnDestroy();
        return 1;
    case WM_PAINT: {
        PaintDC paint(window);
        if (paint) {
            OnPaint(paint);
        }
        return 1;
    }
    case WM_SETTINGCHANGE:
        SettingChanged(wParam, lParam);
        return DialogProc(message, wParam, lParam);
    case WM_COMMAND:
        OnCommand(LOWORD(wParam), HIWORD(wParam), lParam);
        return 1;
    case WM_INITMENUPOPUP:
        OnInitMenuPopup(reinterpret_cast<HMENU>(wParam), LOWORD(lParam));
        return 1;
    default:
        return DialogProc(message, wParam, lParam);
    }
}

bool CVireoDialog::Initialise()
{
    if (fullScreen) {
        SHINITDLGINFO info = {};
        info.dwMask = SHIDIM_FLAGS;
        info.hDlg = window;
        info.dwFlags =
            CVireoApp::Current()->PlatformKind() == Platform::Smartphone ? smartphoneFlags : pocketPcFlags;
        if (!SHInitDialog(&info)) {
            DestroyWindow(window); // nothing was set up that the loop could run
            return false;
        }
    }
    if (!MakeMenuBar()) {
        DestroyWindow(window);
        return false;
    }
    Place();
    if (!IsWindow(window)) {
        return false; // it went meanwhile, and is not to be listed as open any more
    }
    CVireoApp::Current()->DialogOpened(this);
    OnInitDialog();
    return true;
}

bool CVireoDialog::MakeMenuBar()
{
    SHMENUBARINFO info = {};
    info.cbSize = sizeof info;
    info.hwndParent = window;
    info.dwFlags = menuBarId == 0 ? SHCMBF_EMPTYBAR : 0;
    info.nToolBarId = menuBarId;
    info.hInstRes = CVireoApp::Current()->Instance();
    OnCreateMenuBar(info);
    const bool created = SHCreateMenuBar(&info) != FALSE;
    menuBar = created ? info.hwndMB : nullptr;
    return created;
}

void CVireoDialog::Place()
{
    const RECT main = MainRect();
    if (fullScreen) {
        MoveWindow(window, main.left, main.top, main.right - main.left, main.bottom - main.top, FALSE);
    } else {
        AnchorToBottom(main.bottom);
    }
}

// Full width over the main window, the height kept, ending at bottom (screen coordinates).
void CVireoDialog::AnchorToBottom(int bottom)
{
    const RECT main = MainRect();
    RECT own = {};
    GetWindowRect(window, &own);
    const int height = own.bottom - own.top;
    MoveWindow(window, main.left, bottom - height, main.right - main.left, height, TRUE);
}

void CVireoDialog::SettingChanged(WPARAM wParam, LPARAM lParam)
{
    if (wParam == WM_SETTINGCHANGE_RESET && !fullScreen) {
        AnchorToBottom(MainRect().bottom);
    } else if (wParam == SPI_SETSIPINFO) {
        SHHandleWMSettingChange(window, wParam, lParam, CVireoApp::Current()->ActivateInfo());
        if (fullScreen) {
            InvalidateRect(window, nullptr, TRUE);
            UpdateWindow(window);
        } else {
            RECT own = {};
            GetWindowRect(window, &own);
            AnchorToBottom(own.bottom);
        }
    }
}

int CVireoDialog::Margin()
{
    return ScaleX(marginAt96Dpi);
}

void CVireoDialog::StretchControls(HWND dialog, const int* controlIds, uint32_t count)
{
    RECT client = {};
    GetClientRect(dialog, &client);
    for (uint32_t i = 0; i < count; ++i) {
        HWND control = GetDlgItem(dialog, controlIds[i]);
        RECT rect = {};
        GetWindowRect(control, &rect);
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
        MoveWindow(control, Margin(), rect.top, client.right - 2 * Margin(), rect.bottom - rect.top, TRUE);
    }
}

void CVireoDialog::FillClient(int controlId)
{
    RECT client = {};
    GetClientRect(window, &client);
    MoveWindow(GetDlgItem(window, controlId), 0, 0, client.right, client.bottom, TRUE);
}
