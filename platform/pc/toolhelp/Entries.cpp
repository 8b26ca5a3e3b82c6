// The exports of the tool-help substitute that walk over processes and modules.
#include "platform/ce.h"
#include "platform/pc/common/ProcessPath.h"
#include "platform/pc/toolhelp/SystemWalk.h"

// As strict as the device: an entry of another size is refused.
template <class Entry>
static bool HasRightSize(const Entry* entry)
{
    if (entry->dwSize == sizeof(Entry)) {
        return true;
    }
    SetLastError(ERROR_INVALID_PARAMETER);
    return false;
}

// The walk without the processes that the profile hides.
static bool WalkShownProcesses(HANDLE snapshot, bool first, SystemProcess& process)
{
    bool found = WalkProcesses(snapshot, first, process);
    while (found) {
        const handheld::ProcessScript* const script =
            handheld::ActiveProfile().FindProcessScript(process.name);
        if (!script || !script->hidden) {
            return true;
        }
        found = WalkProcesses(snapshot, false, process);
    }
    return false;
}

static BOOL FillProcess(HANDLE snapshot, bool first, PROCESSENTRY32* entry)
{
    SystemProcess process = {};
    if (!HasRightSize(entry) || !WalkShownProcesses(snapshot, first, process)) {
        return FALSE;
    }
    *entry = {};
    entry->dwSize = sizeof *entry;
    entry->th32ProcessID = process.id;
    entry->cntThreads = process.threads;
    entry->th32ParentProcessID = process.parentId;
    entry->pcPriClassBase = process.basePriority;
    lstrcpyW(entry->szExeFile, process.name);
    return TRUE;
}

static BOOL FillModule(HANDLE snapshot, bool first, MODULEENTRY32* entry)
{
    SystemModule module = {};
    if (!HasRightSize(entry) || !WalkModules(snapshot, first, module)) {
        return FALSE;
    }
    const handheld::ProcessScript* const script = handheld::ScriptOfProcess(module.processId);
    if (script && script->noModules) {
        SetLastError(ERROR_NO_MORE_FILES);
        return FALSE;
    }
    *entry = {};
    entry->dwSize = sizeof *entry;
    entry->th32ModuleID = module.id;
    entry->th32ProcessID = module.processId;
    entry->GlblcntUsage = module.globalUses;
    entry->ProccntUsage = module.usesByProcess;
    entry->modBaseAddr = module.base;
    entry->modBaseSize = module.size;
    entry->hModule = module.handle;
    lstrcpyW(entry->szModule, module.name);
    if (!script || !script->noModulePaths) {
        lstrcpyW(entry->szExePath, module.path);
    }
    return TRUE;
}

extern "C" BOOL WINAPI ce_Process32First(HANDLE snapshot, PROCESSENTRY32* entry)
{
    return FillProcess(snapshot, true, entry);
}

extern "C" BOOL WINAPI ce_Process32Next(HANDLE snapshot, PROCESSENTRY32* entry)
{
    return FillProcess(snapshot, false, entry);
}

extern "C" BOOL WINAPI ce_Module32First(HANDLE snapshot, MODULEENTRY32* entry)
{
    return FillModule(snapshot, true, entry);
}

extern "C" BOOL WINAPI ce_Module32Next(HANDLE snapshot, MODULEENTRY32* entry)
{
    return FillModule(snapshot, false, entry);
}
