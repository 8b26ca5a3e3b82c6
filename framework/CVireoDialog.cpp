// A modal dialog: its life and its message loop. The dialog procedure is in CVireoDialogWindow.cpp.
#include "framework/CVireoDialog.h"

#include "framework/Assert.h"
#include "framework/CVireoApp.h"
#include "resources/ids.h"

CVireoDialog::~CVireoDialog() = default;

void CVireoDialog::OnInitDialog() {}

void CVireoDialog::OnDestroy() {}

void CVireoDialog::OnPaint(HDC /*deviceContext*/) {}

void CVireoDialog::OnCommand(uint32_t /*commandId*/, uint32_t /*notifyCode*/, LPARAM /*control*/) {}

void CVireoDialog::OnInitMenuPopup(HMENU /*menu*/, uint32_t /*index*/) {}

void CVireoDialog::OnCreateMenuBar(SHMENUBARINFO& /*menuBarInfo*/) {}

INT_PTR CVireoDialog::DialogProc(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    return 0;
}

int CVireoDialog::StartDialog(uint32_t templateId, uint32_t barId, uint32_t acceleratorTableId,
                              bool coverScreen)
{
    HINSTANCE instance = CVireoApp::Current()->Instance();
    HRSRC resource = FindResourceW(instance, MAKEINTRESOURCEW(templateId), RT_DIALOG);
    HGLOBAL loaded = resource != nullptr ? LoadResource(instance, resource) : nullptr;
    AssertText(loaded != nullptr, L"Error creating dialog wnd", L"CVireoDialog::StartDialog", __LINE__);
    return Start(static_cast<const DLGTEMPLATE*>(LockResource(loaded)), barId, acceleratorTableId,
                 coverScreen);
}

int CVireoDialog::StartDialogNoTemplate(uint32_t barId, uint32_t acceleratorTableId, bool coverScreen)
{
    // A template is followed by three empty words: no menu, the standard class, no title.
    struct alignas(4)
    {
        DLGTEMPLATE header;
        WORD menu, windowClass, title;
    } empty = {};
    empty.header.style = WS_POPUP | WS_VISIBLE | DS_MODALFRAME | (coverScreen ? 0 : WS_CAPTION);
    return Start(&empty.header, barId, acceleratorTableId, coverScreen);
}

int CVireoDialog::Start(const DLGTEMPLATE* dialogTemplate, uint32_t barId, uint32_t acceleratorTableId,
                        bool coverScreen)
{
    CVireoApp* app = CVireoApp::Current();
    menuBarId = barId;
    acceleratorId = acceleratorTableId;
    fullScreen = coverScreen;
    runsInLoop = true;
    reached = ended = false;
    endResult = 0;
    window = nullptr;
    accelerators =
        acceleratorId != 0 ? LoadAcceleratorsW(app->Instance(), MAKEINTRESOURCEW(acceleratorId)) : nullptr;
    // The handle that comes back tells little: a window that goes while it is initialised leaves a null one
    // on Windows and a stale one on Wine.
    CreateDialogIndirectParamW(app->Instance(), dialogTemplate, app->MainWindow(), DialogWindowProc,
                               reinterpret_cast<LPARAM>(this));
    AssertText(reached, L"Error creating dialog wnd", L"CVireoDialog::StartDialog", __LINE__);
    const int result = RunLoop();
    if (accelerators != nullptr) {
        DestroyAcceleratorTable(accelerators);
        accelerators = nullptr;
    }
    return result;
}

int CVireoDialog::RunLoop()
{
    CVireoApp* app = CVireoApp::Current();
    HWND mainWindow = app->MainWindow();
    if (IsWindow(window)) {
        app->BeginModal();
        ShowWindow(window, SW_SHOW);
    }

    MSG message = {};
    while (!ended && IsWindow(window)) {
        const int got = GetMessageW(&message, nullptr, 0, 0);
        if (got == 0 || got == -1) {
            break; // a quit message ends only this loop; it is not passed on
        }
        if (message.message == WM_CLOSE && message.hwnd == mainWindow) {
            PostQuitMessage(0);
            break;
        }
        if ((accelerators == nullptr || !TranslateAcceleratorW(window, accelerators, &message)) &&
            !IsDialogMessageW(window, &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    app->EndModal();
    if (IsWindow(window)) {
        DestroyWindow(window);
    }
    return endResult;
}

void CVireoDialog::End(int result)
{
    if (runsInLoop) {
        PostMessageW(window, WM_DIALOG_END, static_cast<WPARAM>(result), 0);
    } else {
        EndDialog(window, result);
    }
}

bool CVireoDialog::EndOnCloseCommand(uint32_t commandId)
{
    if (commandId != IDOK && commandId != CMD_DIALOG_ACTION && commandId != IDCANCEL) {
        return false;
    }
    End(commandId == IDCANCEL ? IDCANCEL : IDOK);
    return true;
}
