// Which program a process runs, and what the active profile says of it.
#include "platform/pc/common/ProcessPath.h"

namespace handheld {

std::wstring PathOfProcess(HANDLE process)
{
    wchar_t path[MAX_PATH] = {};
    DWORD length = MAX_PATH;
    return QueryFullProcessImageNameW(process, 0, path, &length) ? std::wstring(path, length)
                                                                 : std::wstring();
}

const ProcessScript* ScriptOfProcess(DWORD processId)
{
    const DWORD error = GetLastError();
    const Profile& profile = ActiveProfile();
    const ProcessScript* script = nullptr;
    if (!profile.processScripts.empty()) {
        if (const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId)) {
            script = profile.FindProcessScript(PathOfProcess(process));
            CloseHandle(process);
        }
    }
    SetLastError(error);
    return script;
}

} // namespace handheld
