// The PC's own walk over processes and modules.
#include "platform/pc/toolhelp/SystemWalk.h"

#include <tlhelp32.h>

HANDLE TakeSystemSnapshot(DWORD flags, DWORD processId)
{
    return CreateToolhelp32Snapshot(flags, processId);
}

bool WalkProcesses(HANDLE snapshot, bool first, SystemProcess& process)
{
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof entry;
    if (!(first ? Process32FirstW : Process32NextW)(snapshot, &entry)) {
        return false;
    }
    process.id = entry.th32ProcessID;
    process.threads = entry.cntThreads;
    process.parentId = entry.th32ParentProcessID;
    process.basePriority = entry.pcPriClassBase;
    lstrcpynW(process.name, entry.szExeFile, MAX_PATH);
    return true;
}

bool WalkModules(HANDLE snapshot, bool first, SystemModule& module)
{
    MODULEENTRY32W entry = {};
    entry.dwSize = sizeof entry;
    if (!(first ? Module32FirstW : Module32NextW)(snapshot, &entry)) {
        return false;
    }
    module.id = entry.th32ModuleID;
    module.processId = entry.th32ProcessID;
    module.globalUses = entry.GlblcntUsage;
    module.usesByProcess = entry.ProccntUsage;
    module.base = entry.modBaseAddr;
    module.size = entry.modBaseSize;
    module.handle = entry.hModule;
    lstrcpynW(module.name, entry.szModule, MAX_PATH);
    lstrcpynW(module.path, entry.szExePath, MAX_PATH);
    return true;
}
