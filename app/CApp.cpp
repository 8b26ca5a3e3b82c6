// The application: its start and its end.
#include "app/CApp.h"

#include "framework/Assert.h"
#include "framework/CFileUtils.h"
#include "pages/procs/CViewProcs.h"
#include "pages/start/CViewStart.h"
#include "pages/sysinfo/CViewSysInfo.h"
#include "pages/tasks/CViewTasks.h"
#include "resources/ids.h"

bool CApp::CheckPrevInstance(HWND existingWindow, const wchar_t* commandLine)
{
    keyPress.Parse(commandLine);
    if (existingWindow == nullptr) {
        startMinimised = keyPress.vk != 0; // a button's action is performed in the background
        return true;
    }
    if (keyPress.vk != 0) {
        HandOver(existingWindow);
    } else {
        BringToFront(existingWindow);
    }
    return false;
}

void CApp::HandOver(HWND runningInstance) const
{
    SKeyCommand record;
    keyPress.Write(record);
    COPYDATASTRUCT data = {keyCommandData, sizeof record, &record};
    SendMessageW(runningInstance, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data));
}

bool CApp::OnCreate()
{
    homeHeld = false;
    homeKey.Load();
    CoInitializeEx(nullptr, 0);
    OpenResources();
    startPrograms.Refill(mainWindow);
    AddPages();
    ClaimKeys();
    return true;
}

void CApp::OpenResources()
{
    CStr path(pathSize);
    CFileUtils::MakeAppFilePath(path, L"Quorvane.zrs");
    resources = CResources::Open(path);
    AssertText(resources != nullptr, L"Error opening ZRS resource", L"CApp::OnCreate", __LINE__);
}

void CApp::AddPage(CVireoView* page, PageId id, uint32_t menuBarId, uint32_t acceleratorId)
{
    Assert(page != nullptr, ErrorNoMemory, L"CApp::OnCreate", __LINE__);
    page->Create(id, menuBarId, acceleratorId);
    AddView(page);
}

void CApp::AddPages()
{
    AddPage(new CViewTasks(startPrograms), PageTasks, IDB_TASKS, IDA_TASKS);
    AddPage(new CViewSysInfo(*resources), PageSysInfo, IDB_SYSINFO, IDA_SYSINFO);
    AddPage(new CViewStart(startPrograms), PageStart, IDB_START, IDA_START);
    AddPage(new CViewProcs, PageProcs, IDB_PROCS, IDA_PROCS);
}

void CApp::OnDestroy()
{
    startPrograms.Programs().Clear();
    UnclaimKeys();
    CResources::Close(resources);
    resources = nullptr;
    CoUninitialize();
}
