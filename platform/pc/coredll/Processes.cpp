// Processes as they may be opened and ended.
#include "platform/pc/common/ProcessPath.h"

// Both the handheld and, where one runs, the PC's own desktop have a bar of this class.
static bool IsShell(DWORD processId)
{
    HWND bar = nullptr;
    while ((bar = FindWindowExW(nullptr, bar, L"Shell_TrayWnd", nullptr)) != nullptr) {
        DWORD owner = 0;
        GetWindowThreadProcessId(bar, &owner);
        if (owner == processId) {
            return true;
        }
    }
    return false;
}

// Refuses by the last error that QueryPolicy tells the tier by. On a device every handle can be asked for its
// process's state, whatever it was opened for.
extern "C" HANDLE WINAPI ce_OpenProcess(DWORD access, BOOL inherit, DWORD process)
{
    const handheld::ProcessScript* const script = handheld::ScriptOfProcess(process);
    if ((script && script->refusesOpen) || ((access & PROCESS_TERMINATE) != 0 && IsShell(process))) {
        SetLastError(ERROR_ACCESS_DENIED);
        return nullptr;
    }
    return OpenProcess(access | PROCESS_QUERY_LIMITED_INFORMATION, inherit, process);
}

extern "C" BOOL WINAPI ce_TerminateProcess(HANDLE process, UINT exitCode)
{
    const handheld::Profile& profile = handheld::ActiveProfile();
    if (!profile.processScripts.empty()) {
        const handheld::ProcessScript* const script =
            profile.FindProcessScript(handheld::PathOfProcess(process));
        if (script && script->refusesEnd) {
            SetLastError(ERROR_ACCESS_DENIED);
            return FALSE;
        }
    }
    return TerminateProcess(process, exitCode);
}
