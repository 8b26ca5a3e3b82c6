// The PC's own walk over processes and modules, in records that do not clash with the device's of the same
// names.
#pragma once

#include <windows.h>

struct SystemProcess
{
    DWORD id;
    DWORD threads;
    DWORD parentId;
    LONG basePriority;
    wchar_t name[MAX_PATH]; // of the executable, without its folder
};

struct SystemModule
{
    DWORD id;
    DWORD processId;
    DWORD globalUses;
    DWORD usesByProcess;
    BYTE* base;
    DWORD size; // bytes
    HMODULE handle;
    wchar_t name[MAX_PATH];
    wchar_t path[MAX_PATH];
};

// INVALID_HANDLE_VALUE on failure; the caller closes it with CloseHandle.
HANDLE TakeSystemSnapshot(DWORD flags, DWORD processId);
// The first or the next of a snapshot; false, and nothing written, behind the last or when the handle is
// none.
bool WalkProcesses(HANDLE snapshot, bool first, SystemProcess& process);
bool WalkModules(HANDLE snapshot, bool first, SystemModule& module);
