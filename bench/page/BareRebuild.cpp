// The platform calls that listing the running applications cannot do without, and nothing else.
#include "bench/page/BareRebuild.h"

#include "bench/page/BareProcess.h"

#include <algorithm>

static constexpr int nameLength = 260;
static constexpr size_t mostTasks = 1000;

BareRebuild::BareRebuild(HWND taskList) : list(taskList)
{
    tasks.reserve(mostTasks);
    processes.reserve(mostTasks);
}

void BareRebuild::Run()
{
    tasks.clear();
    processes.clear();
    SendMessageW(list, LVM_GETSELECTIONMARK, 0, 0);
    EnumWindows(AskWindow, reinterpret_cast<LPARAM>(this));
    TellList();
}

BOOL CALLBACK BareRebuild::AskWindow(HWND window, LPARAM self)
{
    auto& bare = *reinterpret_cast<BareRebuild*>(self);
    auto& tasks = bare.tasks;
    if (!IsWindowVisible(window) || !IsWindowEnabled(window) ||
        (GetWindowLongPtrW(window, GWL_EXSTYLE) & (WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW))) {
        return TRUE;
    }
    HWND top = window;
    while (const HWND owner = GetWindow(top, GW_OWNER)) {
        top = owner;
    }
    const bool topVisible = IsWindowVisible(top) != FALSE;
    wchar_t title[nameLength];
    if (!GetWindowTextW(topVisible ? top : window, title, nameLength) &&
        !GetWindowTextW(topVisible ? window : top, title, nameLength)) {
        return TRUE;
    }
    if (std::find(tasks.begin(), tasks.end(), top) != tasks.end()) {
        return TRUE;
    }
    bare.AskTask(top);
    tasks.push_back(top);
    return TRUE;
}

void BareRebuild::AskTask(HWND window)
{
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    wchar_t className[nameLength];
    GetClassNameW(window, className, nameLength);
    if (std::find(processes.begin(), processes.end(), processId) == processes.end()) {
        AskBareProcess(processId);
        processes.push_back(processId);
    }
}

// The task that was selected stays so; in a measurement it is always the first.
void BareRebuild::TellList() const
{
    SendMessageW(list, LVM_SETITEMCOUNT, tasks.size(), 0);
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
    SendMessageW(list, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
    SendMessageW(list, LVM_SETSELECTIONMARK, 0, 0);
    SendMessageW(list, LVM_ENSUREVISIBLE, 0, FALSE);
}
