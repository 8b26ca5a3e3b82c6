// The enumeration of the running applications.
#include "pages/tasks/TaskEnumeration.h"

#include "framework/Assert.h"
#include "framework/CVireoApp.h"
#include "pages/tasks/TaskIcon.h"
#include "pages/tasks/TaskWindows.h"

static bool Contains(const CArray<STaskInfo*>& tasks, HWND window)
{
    for (uint32_t i = 0; i < tasks.Count(); ++i) {
        if (tasks.At(i)->window == window) {
            return true;
        }
    }
    return false;
}

// The name of an untitled task: only the Smartphone's home screen has one.
static void NameUntitled(HWND topOwner, CStr& name)
{
    if (CVireoApp::Current()->PlatformKind() != Platform::Smartphone) {
        return;
    }
    CStr className;
    WindowClass(topOwner, className);
    if (className.CompareNoCase(L"DesktopExplorerWindow") == 0) {
        name = L"Home";
    }
}

static void DescribeTask(STaskInfo& task, CTaskRecords& tasks)
{
    const DWORD processId = WindowProcessId(task.window);
    CStr className;
    WindowClass(task.window, className);
    STaskProcess& process = tasks.Processes().Find(processId);

    const STaskIcon icon = TaskIconForClass(process.shellIcon, className, tasks.Programs());
    task.iconIndex = icon.index;
    if (icon.final) {
        return; // the shell: shown without a heap figure
    }
    task.iconIndex = TaskIconForPath(task.iconIndex, process.path, tasks.Programs());
    task.heapBytes = CTaskProcesses::HeapBytes(process);
}

BOOL CALLBACK EnumTasksProc(HWND window, LPARAM taskArray)
{
    if (window == nullptr) {
        return FALSE;
    }
    if (!IsEligibleWindow(window)) {
        return TRUE;
    }
    auto& tasks = *reinterpret_cast<CTaskRecords*>(taskArray);
    HWND topOwner = TopOwner(window);
    CStr name;
    ChooseTaskName(window, topOwner, name);
    if (name.IsEmpty()) {
        NameUntitled(topOwner, name);
    }
    if (name.IsEmpty() || Contains(tasks, topOwner)) {
        return TRUE;
    }
    auto* task = new STaskInfo;
    Assert(task != nullptr, ErrorNoMemory, L"EnumTasksProc", __LINE__);
    task->name = name;
    task->window = topOwner;
    DescribeTask(*task, tasks);
    tasks.Append(task);
    return TRUE;
}
