// The application object: its life and its message loop. Its views, dialogs and notices are in
// CVireoAppViews.cpp, its main window in CVireoAppWindow.cpp.
#include "framework/CVireoApp.h"

#include "framework/Assert.h"
#include "framework/CVireoInfowin.h"
#include "framework/CVireoView.h"
#include "framework/PathText.h"

static CVireoApp* currentApp = nullptr;

static constexpr uint32_t initialSlots = 8;

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

    SHInitExtraControls();
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
    CPathText name;
    if (!GetVersionExW(&version) || version.dwPlatformId != VER_PLATFORM_WIN32_CE ||
        !SystemParametersInfoW(SPI_GETPLATFORMTYPE, pathSize, name.Room(), 0)) {
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
    CPathText path;
    GetModuleFileNameW(nullptr, path.Room(), pathSize);
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
