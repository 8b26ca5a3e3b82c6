// The PC's own walk over processes and modules.
#include "platform/pc/toolhelp/SystemWalk.h"

#include <tlhelp32.h>

static constexpr int mostTries = 10;

// A 64-bit program asks for the modules of 32-bit processes apart, and is told to try again while a process
// loads or frees some.
HANDLE TakeSystemSnapshot(DWORD flags, DWORD processId)
{
    if ((flags & TH32CS_SNAPMODULE) != 0) {
        flags |= TH32CS_SNAPMODULE32;
    }
    HANDLE snapshot = CreateToolhelp32Snapshot(flags, processId);
    for (int i = 1; i < mostTries && snapshot == INVALID_HANDLE_VALUE && GetLastError() == ERROR_BAD_LENGTH;
         ++i) {
        snapshot = CreateToolhelp32Snapshot(flags, processId);
    }
    return snapshot;
}

bool WalkProcesses(HANDLE snapshot, bool first, SystemProcess& process)
{
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof entry;
    BOOL found = (first ? Process32FirstW : Process32NextW)(snapshot, &entry);
    // Windows lists its idle time as a process without an id; a device does not, and takes such an id for the
    // asking process.
    while (found && entry.th32ProcessID == 0) {
        found = Process32NextW(snapshot, &entry);
    }
    if (!found) {
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
