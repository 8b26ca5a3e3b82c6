// The application: its start and end, and the services that its pages ask for.
#include "app/CApp.h"

#include "framework/Assert.h"
#include "framework/CFileUtils.h"
#include "keys/CommandTail.h"
#include "lists/SystemIcons.h"
#include "pages/procs/CViewProcs.h"
#include "pages/start/CViewStart.h"
#include "pages/sysinfo/CViewSysInfo.h"
#include "pages/tasks/CViewTasks.h"
#include "resources/ids.h"

bool CApp::CheckPrevInstance(HWND existingWindow, const wchar_t* commandLine)
{
    SCommandTail tail;
    tail.Parse(commandLine);
    keyCode = tail.keyCode;
    shortAction = tail.shortAction;
    longAction = tail.longAction;
    shortFile = tail.shortFile;
    longFile = tail.longFile;

    if (existingWindow == nullptr) {
        startMinimised = keyCode != 0; // a button's action is performed in the background
        return true;
    }
    if (keyCode != 0) {
        SendKeyCommand(existingWindow);
    } else {
        BringToFront(existingWindow);
    }
    return false;
}

bool CApp::OnCreate()
{
    CoInitializeEx(nullptr, 0);
    OpenResources();
    AddPages();
    return true;
}

void CApp::OpenResources()
{
    CStr path(CFileUtils::pathSize);
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
    AddPage(new CViewTasks, PageTasks, IDB_TASKS, IDA_TASKS);
    AddPage(new CViewSysInfo, PageSysInfo, IDB_SYSINFO, IDA_SYSINFO);
    AddPage(new CViewStart, PageStart, IDB_START, IDA_START);
    AddPage(new CViewProcs, PageProcs, IDB_PROCS, IDA_PROCS);
}

void CApp::OnDestroy()
{
    DeleteElements(applications);
    CResources::Close(resources);
    resources = nullptr;
    CoUninitialize();
}

int CApp::KnownApplicationIcon(uint32_t slot)
{
    const int index = slot < knownApplications.Count() ? knownApplications.At(slot) : -1;
    if (index < 0 || index >= static_cast<int>(applications.Count())) {
        return -1; // not installed, or an index that a shorter list left behind
    }
    SAppsList& application = *applications.At(static_cast<uint32_t>(index));
    if (application.icon == -1) {
        application.icon = SystemIconIndex(application.path);
    }
    return application.icon;
}

void CApp::ShowWindowReport(HWND window)
{
    CViewTasks::ShowWindowReport(window);
}
