// The page of the running applications.
#include "pages/tasks/CViewTasks.h"

#include "dialogs/CDialogWindows.h"
#include "dialogs/WindowReport.h"
#include "framework/CVireoApp.h"
#include "framework/ProcessFacts.h"
#include "pages/tasks/TaskEnumeration.h"
#include "pages/tasks/TaskWindows.h"
#include "resources/ids.h"

static constexpr UINT_PTR lateStartersTimer = 2;
static constexpr UINT lateStartersMs =
    1000; // one more look for applications still starting when the page first showed
static constexpr DWORD closingMs = 500; // an application gets this long to go before the list is rebuilt

static constexpr SPageTraits tasksPageTraits = {0, 2, -1};

CViewTasks::CViewTasks(CStartPrograms& programs)
    : CListPage(tasksPageTraits), tasks(programs), list(look, tasks)
{}

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
    return CopyRow(tasks, row).identity;
}

void CViewTasks::FillList(int row)
{
    Rebuild(WindowOfRow(row != -1 ? row : list.SelectedRow()));
}

void CViewTasks::Collect()
{
    tasks.Clear();
    EnumWindows(EnumTasksProc, reinterpret_cast<LPARAM>(&tasks));
}

void CViewTasks::Rebuild(HWND keepSelected)
{
    if (!Recollect()) {
        return;
    }
    list.SetCount(tasks.Count());
    for (uint32_t i = 0; keepSelected != nullptr && i < tasks.Count(); ++i) {
        if (tasks.At(i)->window == keepSelected) {
            list.SelectRow(static_cast<int>(i));
            return;
        }
    }
    if (list.SelectedRow() == -1) {
        list.SelectRow(tasks.Count() > 0 ? 0 : -1);
    }
}

void CViewTasks::OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control)
{
    const SRowCopy<HWND> selected = CopyRow(tasks, list.SelectedRow());
    switch (commandId) {
    case CMD_SWITCH_TO_APPLICATION:
    case CMD_ACTIVATE_ITEM:
        SwitchTo(selected.identity);
        break;
    case CMD_CLOSE_APPLICATION:
        if (selected) {
            Close(selected);
        }
        break;
    case CMD_APPLICATION_INFO:
        if (selected) {
            ShowWindowReport(selected.identity);
        }
        break;
    case CMD_WINDOWS_LIST:
        if (selected) {
            ShowWindowsList(selected.identity);
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

void CViewTasks::Close(const SRowCopy<HWND>& task)
{
    CVireoApp* app = CVireoApp::Current();
    CStr className;
    WindowClass(task.identity, className);
    if (IsProtectedClass(className)) {
        app->ShowNotice(L"It's forbidden to end this application!");
        return;
    }
    const auto last = static_cast<int>(tasks.Count()) - 1;
    HWND neighbour = WindowOfRow(task.row < last ? task.row + 1 : task.row - 1);
    SendMessageW(task.identity, WM_CLOSE, 0, 0);
    if (!app->HasMainWindow()) {
        return; // it was the program itself
    }
    Sleep(closingMs);
    Rebuild(neighbour);
    ShowRefilled();
}

void CViewTasks::ShowWindowsList(HWND target)
{
    if (TellWhenGone(target)) {
        return;
    }
    const DWORD processId = WindowProcessId(target);
    CStr path;
    ProcessImagePath(processId, path);
    CDialogWindows::Show(processId, FileNameOf(path), target);
}
