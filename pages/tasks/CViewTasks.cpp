// The page of the running applications.
#include "pages/tasks/CViewTasks.h"

#include "framework/Assert.h"
#include "framework/CVireoApp.h"
#include "keys/CDialogInfo.h"
#include "keys/CDialogWindows.h"
#include "pages/ProcessFacts.h"
#include "pages/tasks/TaskEnumeration.h"
#include "pages/tasks/TaskWindows.h"
#include "pages/tasks/WindowReport.h"
#include "resources/ids.h"

static constexpr uint32_t initialTasks = 10;
static constexpr UINT_PTR lateStartersTimer = 2;
static constexpr UINT lateStartersMs =
    1000; // one more look for applications still starting when the page first showed
static constexpr DWORD closingMs = 500; // an application gets this long to go before the list is rebuilt
static constexpr const wchar_t* windowGone = L"Window is no longer exists."; // spelled so on purpose

static constexpr SPageTraits tasksPageTraits = {
    L"Running applications", CMD_SHOW_TASKS, PageProcs, PageStart, 0, 2, -1};

CViewTasks::CViewTasks() : CListPage(tasksPageTraits), list(*this) {}

CViewTasks::~CViewTasks()
{
    if (tasks != nullptr) {
        DeleteElements(*tasks);
        delete tasks;
    }
}

void CViewTasks::OnCreate()
{
    tasks = new CArray<STaskInfo*>(initialTasks);
    Assert(tasks != nullptr, ErrorNoMemory, L"CViewTasks::OnCreate", __LINE__);
    CListPage::OnCreate();
}

void CViewTasks::OnActivate(int32_t previousViewId)
{
    CListPage::OnActivate(previousViewId);
    if (firstShow) {
        SetTimer(window, lateStartersTimer, lateStartersMs, nullptr);
        firstShow = false;
    }
}

LRESULT CViewTasks::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_TIMER && wParam == lateStartersTimer) {
        KillTimer(window, lateStartersTimer);
        OnCommand(CMD_REFRESH, 0, 0);
        return 0;
    }
    return CListPage::WindowProc(message, wParam, lParam);
}

HWND CViewTasks::WindowOfRow(int row) const
{
    if (row == -1) {
        row = list.SelectedRow();
    }
    return row >= 0 && row < static_cast<int>(tasks->Count()) ? tasks->At(static_cast<uint32_t>(row))->window
                                                              : nullptr;
}

void CViewTasks::FillList(int row)
{
    Rebuild(WindowOfRow(row));
}

void CViewTasks::Rebuild(HWND keepSelected)
{
    DeleteElements(*tasks);
    EnumWindows(EnumTasksProc, reinterpret_cast<LPARAM>(tasks));
    list.SetCount(tasks->Count());
    for (uint32_t i = 0; keepSelected != nullptr && i < tasks->Count(); ++i) {
        if (tasks->At(i)->window == keepSelected) {
            list.SelectRow(static_cast<int>(i));
            return;
        }
    }
    if (list.SelectedRow() == -1) {
        list.SelectRow(tasks->Count() > 0 ? 0 : -1);
    }
}

void CViewTasks::Refresh()
{
    FillList(-1);
    ShowRefilled();
}

// The page and its records may be gone or rebuilt after every call that shows a dialog or sends a message to
// another program, so each command copies the row and its window first.
void CViewTasks::OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control)
{
    const int row = list.SelectedRow();
    HWND selected = row != -1 ? WindowOfRow(row) : nullptr;
    switch (commandId) {
    case CMD_SWITCH_TO_APPLICATION:
    case CMD_ACTIVATE_ITEM:
        SwitchTo(selected);
        break;
    case CMD_CLOSE_APPLICATION:
        if (selected != nullptr) {
            Close(row, selected);
        }
        break;
    case CMD_APPLICATION_INFO:
        if (selected != nullptr) {
            ShowWindowReport(selected);
        }
        break;
    case CMD_WINDOWS_LIST:
        if (selected != nullptr) {
            ShowWindowsList(selected);
        }
        break;
    default:
        CListPage::OnCommand(commandId, notifyCode, control);
        break;
    }
}

void CViewTasks::SwitchTo(HWND target)
{
    if (target != nullptr && IsWindow(target)) {
        BringToFront(target);
    }
}

void CViewTasks::Close(int row, HWND target)
{
    CVireoApp* app = CVireoApp::Current();
    CStr className;
    WindowClass(target, className);
    if (IsProtectedClass(className)) {
        app->ShowNotice(L"It's forbidden to end this application!");
        return;
    }
    const auto count = static_cast<int>(tasks->Count());
    HWND neighbour = WindowOfRow(row < count - 1 ? row + 1 : row - 1);
    SendMessageW(target, WM_CLOSE, 0, 0);
    if (!app->HasMainWindow()) {
        return; // it was the program itself
    }
    Sleep(closingMs);
    Rebuild(neighbour);
    ShowRefilled();
}

void CViewTasks::ShowWindowsList(HWND target)
{
    if (!IsWindow(target)) {
        CVireoApp::Current()->ShowNotice(windowGone);
        return;
    }
    const DWORD processId = WindowProcessId(target);
    CStr path;
    ProcessImagePath(processId, path);
    CDialogWindows dialog(processId, FileNameOf(path), target);
    dialog.StartDialog(IDD_WINDOWS, IDB_WINDOWS, 0, true);
}

void CViewTasks::ShowWindowReport(HWND target)
{
    if (target == INVALID_HANDLE_VALUE) {
        return;
    }
    if (!IsWindow(target)) {
        CVireoApp::Current()->ShowNotice(windowGone);
        return;
    }
    CStr report;
    AppendWindowReport(report, target);
    CDialogInfo::Show(report);
}
