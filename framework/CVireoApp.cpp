// The application object: its life, views, dialogs and notices. The window procedure is in
// CVireoAppWindow.cpp.
#include "framework/CVireoApp.h"

#include "framework/Assert.h"
#include "framework/CVireoDialog.h"
#include "framework/CVireoInfowin.h"
#include "framework/CVireoView.h"

static CVireoApp* currentApp = nullptr;

static constexpr uint32_t initialSlots = 8;
static constexpr uint32_t noticeMs = 3000;
static constexpr uint32_t pathLength = 260;

void BringToFront(HWND window)
{
    // The low bit asks the window manager to bring the owned windows along.
    SetForegroundWindow(reinterpret_cast<HWND>(reinterpret_cast<ULONG_PTR>(window) | 1));
}

CVireoApp::CVireoApp()
{
    views = new CArray<CVireoView*>(initialSlots);
    Assert(views != nullptr, ErrorNoMemory, L"CVireoApp::CVireoApp", __LINE__);
    dialogs = new CArray<CVireoDialog*>(initialSlots);
    Assert(dialogs != nullptr, ErrorNoMemory, L"CVireoApp::CVireoApp", __LINE__);
    currentApp = this;
}

CVireoApp::~CVireoApp()
{
    delete views;
    delete dialogs;
    currentApp = nullptr;
}

CVireoApp* CVireoApp::Current()
{
    return currentApp;
}

bool CVireoApp::OnCreate()
{
    return true;
}

void CVireoApp::OnDestroy() {}

bool CVireoApp::CheckPrevInstance(HWND existingWindow, const wchar_t* /*commandLine*/)
{
    if (existingWindow == nullptr) {
        return true;
    }
    BringToFront(existingWindow);
    return false;
}

void CVireoApp::OnCommand(uint32_t /*id*/, uint32_t /*notifyCode*/, LPARAM /*control*/) {}

void CVireoApp::OnInitMenuPopup(HMENU /*menu*/, uint32_t /*index*/) {}

void CVireoApp::OnActivate() {}

void CVireoApp::OnDeactivate() {}

LRESULT CVireoApp::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return DefWindowProcW(mainWindow, message, wParam, lParam);
}

static CVireoInfowin* NewInfoWindow()
{
    auto* info = new CVireoInfowin;
    Assert(info != nullptr, ErrorNoMemory, L"CVireoApp::Run", __LINE__);
    info->Construct();
    return info;
}

int CVireoApp::Run(uint32_t titleStringId, uint32_t iconId, uint32_t acceleratorId, HINSTANCE moduleInstance,
                   HINSTANCE /*previousInstance*/, const wchar_t* /*commandLine*/, int showCommand)
{
    instance = moduleInstance;
    CStr title;
    title.LoadStringW(titleStringId);
    CStr className;
    MakeAppBaseName(className);
    className.Append(L"App");

    AygshellStartup();
    DetectPlatform();

    mainWindow = FindWindowW(className, title);
    if (!CheckPrevInstance(mainWindow, GetCommandLineW())) {
        return 0;
    }
    mainWindow = nullptr;
    if (!CreateMainWindow(className, title, iconId)) {
        return 0;
    }
    MakeRoomForMenuBar();

    infoWindow = NewInfoWindow();
    secondInfoWindow = NewInfoWindow();

    if (!OnCreate()) {
        delete infoWindow;
        delete secondInfoWindow;
        infoWindow = secondInfoWindow = nullptr;
        return -1;
    }
    if (views->Count() > 0) {
        ActivateView(initialViewId != -1 ? initialViewId : views->At(0)->Id());
    }
    ShowWindow(mainWindow, showCommand);
    if (startMinimised) {
        ShowWindow(mainWindow, SW_MINIMIZE);
    }
    UpdateWindow(mainWindow);

    const int result = RunLoop(acceleratorId);
    // A close request that ended a dialog's loop ends this one without having been dispatched.
    if (HasMainWindow()) {
        DestroyWindow(mainWindow);
    }
    return result;
}

void CVireoApp::DetectPlatform()
{
    platform = Platform::Unknown;
    osMajor = osMinor = osBuild = 0;

    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    wchar_t name[pathLength] = {};
    if (!GetVersionExW(&version) || version.dwPlatformId != VER_PLATFORM_WIN32_CE ||
        !SystemParametersInfoW(SPI_GETPLATFORMTYPE, pathLength, name, 0)) {
        return;
    }
    CStr lowered(name);
    lowered.MakeLower();
    if (lowered.Find(L"smartphone", 0) != -1) {
        platform = Platform::Smartphone;
    } else if (lowered.Find(L"pocketpc", 0) != -1) {
        platform = Platform::PocketPC;
    }
    osMajor = version.dwMajorVersion;
    osMinor = version.dwMinorVersion;
    osBuild = version.dwBuildNumber;
}

int CVireoApp::RunLoop(uint32_t acceleratorId)
{
    HACCEL accelerators = LoadAcceleratorsW(instance, MAKEINTRESOURCEW(acceleratorId));
    MSG message = {};
    // A dialog's loop consumes the quit message of a main window that went while it ran; without the window
    // there is nothing left to wait for.
    while (HasMainWindow() && GetMessageW(&message, nullptr, 0, 0) > 0) {
        HWND target = activeView != nullptr ? activeView->Window() : mainWindow;
        if (activeView != nullptr && activeView->Accelerators() != nullptr &&
            TranslateAcceleratorW(target, activeView->Accelerators(), &message)) {
            continue;
        }
        if (TranslateAcceleratorW(target, accelerators, &message)) {
            continue;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    if (accelerators != nullptr) {
        DestroyAcceleratorTable(accelerators);
    }
    return message.message == WM_QUIT ? static_cast<int>(message.wParam) : 0;
}

void CVireoApp::MakeAppBaseName(CStr& out)
{
    wchar_t path[pathLength] = {};
    GetModuleFileNameW(nullptr, path, pathLength);
    MakeBaseName(out, path);
}

void CVireoApp::MakeBaseName(CStr& out, const wchar_t* modulePath)
{
    CStr path(modulePath);
    const int slash = path.ReverseFind(L'\\');
    const int dot = path.ReverseFind(L'.');
    Assert(slash != -1 && dot != -1 && dot > slash + 1, ErrorNotFound, L"CVireoApp::MakeAppBaseName",
           __LINE__);
    out = path.Mid(static_cast<uint32_t>(slash + 1), static_cast<uint32_t>(dot - slash - 1));
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

void CVireoApp::ActivateView(int32_t id)
{
    CVireoView* previous = activeView;
    if (previous != nullptr && previous->Id() == id) {
        return;
    }
    CVireoView* view = FindView(id);
    Assert(view != nullptr, ErrorNotFound, L"CVireoApp::ActivateView", __LINE__);

    activeView = view;
    RECT client = {};
    GetClientRect(mainWindow, &client);
    MoveWindow(view->Window(), 0, 0, client.right, client.bottom, FALSE);
    CreateMenuBar(mainWindow, view->MenuBarId());
    ShowWindow(view->Window(), SW_SHOWNORMAL);
    SetFocus(view->Window());
    UpdateWindow(view->Window());

    view->OnActivate(previous != nullptr ? previous->Id() : 0);
    if (previous != nullptr) {
        ShowWindow(previous->Window(), SW_HIDE);
        previous->OnDeactivate();
    }
}

void CVireoApp::AddView(CVireoView* view)
{
    views->Append(view);
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

void CVireoApp::EndAllDialogs()
{
    for (uint32_t i = dialogs != nullptr ? dialogs->Count() : 0; i > 0; --i) {
        dialogs->At(i - 1)->End(IDCANCEL);
    }
}

void CVireoApp::DialogOpened(CVireoDialog* dialog)
{
    dialogs->Append(dialog);
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

bool CVireoApp::CreateMenuBar(HWND parent, uint32_t menuBarId)
{
    if (menuBar != nullptr) {
        DestroyWindow(menuBar);
        menuBar = nullptr;
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
