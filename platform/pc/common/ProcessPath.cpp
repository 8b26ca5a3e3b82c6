// Which program a process runs, and what the active profile says of it.
#include "platform/pc/common/ProcessPath.h"

namespace handheld {

static constexpr DWORD longestPath = 32768; // characters; what Windows knows

std::wstring PathOfProcess(HANDLE process)
{
    std::wstring path(longestPath, L'\0');
    DWORD length = longestPath;
    if (!QueryFullProcessImageNameW(process, 0, path.data(), &length)) {
        return {};
    }
    path.resize(length);
    return path;
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
